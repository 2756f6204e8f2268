#include "ui/Fensteroeffner.h"

#include "ui/Form10_Randbedingungen.h"
#include "ui/Form11_Ueberstaende.h"
#include "ui/Form12_Bemessungsparameter.h"
#include "ui/Form13_Systemkonfiguration.h"
#include "ui/Form15_Projektdaten.h"
#include "ui/Form16_VMKatalog.h"
#include "ui/Form222_Bemerkungen.h"
#include "ui/Form23_Ergebnisse.h"
#include "ui/Form2_Rippen.h"
#include "ui/Form3_Taschenrechner.h"
#include "ui/Form4_Beplankung.h"
#include "ui/Form5_Verbindungsmittel.h"
#include "ui/Form60_Kalender.h"
#include "ui/Form6_Druck.h"
#include "ui/Form7_Verankerung.h"
#include "ui/Form8_Seitenkopf.h"
#include "ui/Form99_EigeneMaterialien.h"
#include "ui/Form9_Belastung.h"
#include "ui/Meldungen.h"

namespace rippenscheibe {

namespace {

template <class Fensterklasse>
void zeige(Programm& programm, Meldungen& meldungen, QWidget* fenster) {
    Fensterklasse(programm, meldungen, fenster).exec();
}

}  // namespace

void oeffne(Fensterart art, Programm& programm, Meldungen& meldungen, QWidget* fenster) {
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
    }
}

void oeffneKatalog(Form5& dialog, Seite n, Programm& programm, Meldungen& meldungen) {
    Form16(programm, meldungen, &dialog, n).exec();
}

}  // namespace rippenscheibe
