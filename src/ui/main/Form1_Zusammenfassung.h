#pragma once

#include <QString>

#include "model/Wand.h"

// One line a dialog: what is set in it, shown beside its button in the main window.

namespace rippenscheibe {

QString zusammenfassungRippen(const Wand& w);             // "b x h = 8,0 x 16,0 cm, Nadelholz C24, NKL 1"
QString zusammenfassungBeplankung(const Wand& w);         // "OSB/3 15 mm, zweiseitig"
QString zusammenfassungVerbindungsmittel(const Wand& w);  // "Nägel 2,7 x 50, av = 60 mm"
QString zusammenfassungVerankerung(const Wand& w);
QString zusammenfassungBelastung(const Wand& w);
QString zusammenfassungBemessung(const Wand& w);

}  // namespace rippenscheibe
