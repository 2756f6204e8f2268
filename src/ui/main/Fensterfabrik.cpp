#include "ui/main/Fensterfabrik.h"

#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/help/Form10_Randbedingungen.h"
#include "ui/help/Form11_Ueberstaende.h"
#include "ui/help/Form13_Systemkonfiguration.h"
#include "ui/help/Form3_Taschenrechner.h"
#include "ui/help/Ueber.h"
#include "ui/input/Form12_Bemessungsparameter.h"
#include "ui/input/Form2_Rippen.h"
#include "ui/input/Form4_Beplankung.h"
#include "ui/input/Form5_Verbindungsmittel.h"
#include "ui/input/Form7_Verankerung.h"
#include "ui/input/Form9_Belastung.h"
#include "ui/output/Form23_Ergebnisse.h"
#include "ui/output/Form6_Druck.h"
#include "ui/output/Form8_Seitenkopf.h"
#include "ui/project/Form15_Projektdaten.h"
#include "ui/project/Form222_Bemerkungen.h"
#include "ui/project/Form60_Kalender.h"
#include "ui/project/Form99_EigeneMaterialien.h"

namespace rippenscheibe {

namespace {

template <class Fensterklasse>
bool zeige(Programm& programm, Meldungen& meldungen, QWidget* fenster) {
    return Fensterklasse(programm, meldungen, fenster).exec() == QDialog::Accepted;
}

}  // namespace

bool Fensterfabrik::oeffne(Fensterart art, Programm& programm, Meldungen& meldungen, QWidget* fenster) {
    switch (art) {
        case Fensterart::rippen:
            return zeige<Form2>(programm, meldungen, fenster);
        case Fensterart::beplankung:
            return zeige<Form4>(programm, meldungen, fenster);
        case Fensterart::verbindungsmittel:
            return zeige<Form5>(programm, meldungen, fenster);
        case Fensterart::verankerung:
            return zeige<Form7>(programm, meldungen, fenster);
        case Fensterart::belastung:
            return zeige<Form9>(programm, meldungen, fenster);
        case Fensterart::bemessung:
            return zeige<Form12>(programm, meldungen, fenster);
        case Fensterart::projektdaten:
            return zeige<Form15>(programm, meldungen, fenster);
        case Fensterart::bemerkungen:
            return zeige<Form222>(programm, meldungen, fenster);
        case Fensterart::eigeneMaterialien:
            return zeige<Form99>(programm, meldungen, fenster);
        case Fensterart::rechner:
            return zeige<Form3>(programm, meldungen, fenster);
        case Fensterart::kalender:
            return zeige<Form60>(programm, meldungen, fenster);
        case Fensterart::systemkonfiguration:
            return zeige<Form13>(programm, meldungen, fenster);
        case Fensterart::randbedingungen:
            return zeige<Form10>(programm, meldungen, fenster);
        case Fensterart::ueberstaende:
            return zeige<Form11>(programm, meldungen, fenster);
        case Fensterart::seitenkopf:
            return zeige<Form8>(programm, meldungen, fenster);
        case Fensterart::druck:
            return zeige<Form6>(programm, meldungen, fenster);
        case Fensterart::ergebnisse:
            return zeige<Form23>(programm, meldungen, fenster);
        case Fensterart::ueber:
            return zeige<Ueber>(programm, meldungen, fenster);
    }
    return false;
}

}  // namespace rippenscheibe
