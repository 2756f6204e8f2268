#include "run/Zuweisen.h"

#include "design/Beanspruchungen.h"
#include "materials/Querschnittswerte.h"

namespace rippenscheibe {

Grundmasse grundmasse(const Wand& w) {
    return {w.Wandlaenge.value(), w.Wandhoehe.value(), w.Rippenabstand.value() / 1000};
}

void zuweisen(Wand& w, const Grundmasse& felder) {
    w.Wandlaenge = felder.Wandlaenge;
    w.Wandhoehe = felder.Wandhoehe;
    w.Rippenabstand = Zahl(felder.Rippenabstand) * 1000;
    for (const Seite n : beideSeiten) w.t[n] = Plattendicke(w, n);
    querschnittswerte(w);
    bemessungslasten(w);
}

}  // namespace rippenscheibe
