#include "plausibility/MessageBoxen.h"

namespace rippenscheibe {

void pruefeBeplankungUndVerbindungsmittel(Wand& w, Seite n) {
    pruefePlattendicke(w, n);
    pruefeDurchmesserUndFestigkeit(w, n);
    w.lef[n] = Min(w.lg[n], w.ln[n] - w.t[n]);
    pruefeGewindeKopfUndLaenge(w, n);
}

}  // namespace rippenscheibe
