#include "ui/main/Fensterfabrik.h"

#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/folder/Lastfaelle.h"
#include "ui/folder/Projektuebersicht.h"
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
#include "ui/main/Variantenvergleich.h"
#include "ui/output/Form23_Ergebnisse.h"
#include "ui/output/Form6_Druck.h"
#include "ui/output/Form8_Seitenkopf.h"
#include "ui/project/Form15_Projektdaten.h"
#include "ui/project/Form222_Bemerkungen.h"
#include "ui/project/Form60_Kalender.h"
#include "ui/project/Form99_EigeneMaterialien.h"
#include "ui/study/Auslegen.h"
#include "ui/study/Bemessungstafel.h"
#include "ui/study/Einfluss.h"

namespace rippenscheibe {

namespace {

template <class Fensterklasse>
bool zeige(Programm& programm, Meldungen& meldungen, QWidget* fenster) {
    return Fensterklasse(programm, meldungen, fenster).exec() == QDialog::Accepted;
}

bool zeigeRechenweg(Programm& programm, Meldungen& meldungen, QWidget* fenster) {
    return Form6(programm, meldungen, fenster, Form6::Wahl::rechenweg).exec() == QDialog::Accepted;
}

struct Eintrag {
    Fensterart art;
    bool (*zeige)(Programm&, Meldungen&, QWidget*);
    const char* schritt;  // what a change in it is called in "Rückgängig: ..."
};

constexpr Eintrag eintraege[] = {
    {Fensterart::rippen, zeige<Form2>, "Rippen"},
    {Fensterart::beplankung, zeige<Form4>, "Beplankung"},
    {Fensterart::verbindungsmittel, zeige<Form5>, "Verbindungsmittel"},
    {Fensterart::verankerung, zeige<Form7>, "Verankerung"},
    {Fensterart::belastung, zeige<Form9>, "Belastung"},
    {Fensterart::bemessung, zeige<Form12>, "Bemessungsoptionen"},
    {Fensterart::projektdaten, zeige<Form15>, "Projektdaten"},
    {Fensterart::bemerkungen, zeige<Form222>, "Bemerkungen"},
    {Fensterart::varianten, zeige<Variantenvergleich>, "Varianten"},
    {Fensterart::eigeneMaterialien, zeige<Form99>, "Eigene Materialien"},
    {Fensterart::rechner, zeige<Form3>, "Taschenrechner"},
    {Fensterart::kalender, zeige<Form60>, "Kalender"},
    {Fensterart::systemkonfiguration, zeige<Form13>, "Systemkonfiguration"},
    {Fensterart::randbedingungen, zeige<Form10>, "Randbedingungen"},
    {Fensterart::ueberstaende, zeige<Form11>, "Überstände"},
    {Fensterart::seitenkopf, zeige<Form8>, "Seitenkopf"},
    {Fensterart::auslegen, zeige<Auslegen>, "Auslegen"},
    {Fensterart::einfluss, zeige<Einfluss>, "Einfluss"},
    {Fensterart::lastfaelle, zeige<Lastfaelle>, "Lastfälle"},
    {Fensterart::uebersicht, zeige<Projektuebersicht>, "Projektübersicht"},
    {Fensterart::tafel, zeige<Bemessungstafel>, "Bemessungstafel"},
    {Fensterart::druck, zeige<Form6>, "Druck"},
    {Fensterart::rechenweg, zeigeRechenweg, "Rechenweg"},
    {Fensterart::ergebnisse, zeige<Form23>, "Ergebnisse"},
    {Fensterart::ueber, zeige<Ueber>, "Über"},
};

}  // namespace

bool Fensterfabrik::oeffne(Fensterart art, Programm& programm, Meldungen& meldungen, QWidget* fenster) {
    for (const Eintrag& eintrag : eintraege) {
        if (eintrag.art != art) continue;
        const Schritt schritt(programm, qtext(eintrag.schritt));
        return eintrag.zeige(programm, meldungen, fenster);
    }
    return false;
}

}  // namespace rippenscheibe
