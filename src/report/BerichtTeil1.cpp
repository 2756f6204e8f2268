#include "report/sections/Abschnitte.h"

namespace rippenscheibe {

void berichtTeil1(Berichtsbau& b, const Wand& w) {
    systemangaben(b, w);
    verbindungsmittelBeiderSeiten(b, w);
    belastung(b, w);
    bemessungUndFestigkeiten(b, w);
    tragfaehigkeiten(b, w);
    beanspruchungen(b, w);
}

}  // namespace rippenscheibe
