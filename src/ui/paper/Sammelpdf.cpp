#include "ui/paper/Sammelpdf.h"

#include <algorithm>

#include "files/Pfad.h"
#include "ui/basics/Programm.h"
#include "ui/paper/PdfAusgabe.h"

namespace rippenscheibe {

namespace {

// One document as it grows.
class Sammlung {
  public:
    explicit Sammlung(const Sammelauftrag& auftrag)
        : auftrag_(auftrag), dokument_(qtext(auftrag.titel), auftrag.titel) {}

    void nimmAuf(const Projektdatei& datei) {
        Wand w;
        w.eigeneMaterialien = auftrag_.materialien;
        zuweisen(w, grundmasse(w));
        const Oeffnung oeffnung = oeffnePosition(datei.position.datei, w, Einlass::nurPositionen);
        if (oeffnung.fehler) {
            merke(Rueckgabe::dateifehler);
            ergebnis_.meldungen.push_back(*oeffnung.fehler);
            return;
        }
        const auto melde = [&](const Texte& saetze) {
            for (const std::string& satz : saetze)
                ergebnis_.meldungen.push_back(pfadtext(datei.position.datei.filename()) + ": " + satz);
        };
        melde(oeffnung.vorbehalte);
        const Positionslauf lauf = laufePosition(w, oeffnung.felder);
        merke(lauf.rueckgabe);
        melde(lauf.meldungen);
        if (lauf.gerechnet()) drucke(w, pfadtext(datei.position.datei.stem()));
    }

    Sammelpdf schliesse() {
        const Pdf datei = dokument_.schliesse();
        if (!datei.abgeschnitten.isEmpty())
            ergebnis_.meldungen.push_back(utf8(abgeschnittenText(datei.abgeschnitten)));
        ergebnis_.seiten = dokument_.seiten();
        ergebnis_.letzteSeite = datei.ergebnis.LetzteSeite.value_or(0);
        if (ergebnis_.gedruckt > 0) ergebnis_.bytes = datei.bytes;
        return std::move(ergebnis_);
    }

  private:
    void merke(Rueckgabe rueckgabe) { ergebnis_.rueckgabe = std::max(ergebnis_.rueckgabe, rueckgabe); }

    void drucke(const Wand& w, const std::string& dateiname) {
        Ausdruck ausdruck = standardausdruck(w, auftrag_.einstellungen, auftrag_.logo);
        ausdruck.form = auftrag_.form;
        ausdruck.optionen.dezimalzeichen = auftrag_.dezimalzeichen;
        ausdruck.auftrag.zaehlung.Startseite += dokument_.seiten();
        const std::string name = w.Position.empty() ? dateiname : w.Position;
        dokument_.haengeAn(w, ausdruck,
                           w.PositionsBemerkung.empty() ? name : name + " - " + w.PositionsBemerkung);
        ++ergebnis_.gedruckt;
    }

    const Sammelauftrag& auftrag_;
    Pdfdokument dokument_;
    Sammelpdf ergebnis_;
};

}  // namespace

Sammelpdf sammelpdf(const Sammelauftrag& auftrag, const Ausfuehrung& ausfuehrung) {
    Sammlung sammlung(auftrag);
    Sammelpdf angehalten;
    angehalten.vollstaendig = false;
    std::size_t fertig = 0;
    for (const Projektdatei& datei : auftrag.dateien) {
        if (ausfuehrung.halt.stop_requested()) return angehalten;
        sammlung.nimmAuf(datei);
        ++fertig;
        if (ausfuehrung.fortschritt) ausfuehrung.fortschritt({fertig, auftrag.dateien.size(), fertig});
    }
    return sammlung.schliesse();
}

}  // namespace rippenscheibe
