#include "cli/Befehle.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "cli/Feldwerte.h"
#include "cli/Herleitung.h"
#include "files/Anweisungen.h"
#include "files/Dateischreiber.h"
#include "files/EigeneMaterialienDatei.h"
#include "files/Kopie.h"
#include "files/Pfad.h"
#include "files/Positionsdatei.h"
#include "files/Zeichensatz.h"
#include "plausibility/Plausibilitaetslauf.h"
#include "report/Rtfausgabe.h"
#include "report/Textausgabe.h"
#include "run/Positionslauf.h"
#include "run/Urteil.h"
#include "run/Zuweisen.h"
#include "study/Lastfaelle.h"
#include "study/Preise.h"
#include "study/Projekt.h"
#include "trace/Herleitung.h"
#include "trace/Rechenweg.h"

namespace rippenscheibe {

namespace {

namespace fs = std::filesystem;

Rueckgabe hoehere(Rueckgabe a, Rueckgabe b) { return std::max(a, b); }

// Carries out one command over all its files.
class Arbeit {
  public:
    Arbeit(const Auftrag& auftrag, const fs::path& programmordner, const Ausgaben& ausgaben)
        : auftrag_(auftrag), programmordner_(programmordner), ausgaben_(ausgaben) {}

    Rueckgabe rechne() {
        if (schriebeUeberEingabe()) return Rueckgabe::aufruf;
        if (!ladeMaterialien() || !ladeLastfaelle()) return Rueckgabe::dateifehler;
        Rueckgabe rueckgabe = Rueckgabe::erfuellt;
        auto wand = frischeWand();
        for (const fs::path& datei : auftrag_.dateien) {
            if (auftrag_.zustand == Zustand::jeDatei) wand = frischeWand();
            rueckgabe = hoehere(rueckgabe, rechneDatei(datei, *wand));
        }
        if (auftrag_.ausgabe == Ausgabeart::rtf && !berichte_.empty()) gibAus(alsRtf(berichte_));
        // Where no file could be read, there is nothing that could take the place of an older report.
        return gelesen_ ? hoehere(rueckgabe, schreibeZieldatei()) : rueckgabe;
    }

    Rueckgabe pruefe() {
        if (!ladeMaterialien()) return Rueckgabe::dateifehler;
        Rueckgabe rueckgabe = Rueckgabe::erfuellt;
        for (const fs::path& datei : auftrag_.dateien) {
            const auto wand = frischeWand();
            rueckgabe = hoehere(rueckgabe, pruefeDatei(datei, *wand));
        }
        return rueckgabe;
    }

    Rueckgabe neu() {
        if (!nimmtPositionAuf()) return Rueckgabe::dateifehler;
        const auto wand = frischeWand();
        gibAus(kodiert(positionstext(*wand)));
        return schreibeZieldatei();
    }

    Rueckgabe uebertrage() {
        if (schriebeUeberEingabe()) return Rueckgabe::aufruf;
        const auto wand = frischeWand();
        if (!nimmtPositionAuf() || !lade(auftrag_.dateien.front(), *wand)) return Rueckgabe::dateifehler;
        gibAus(kodiert(positionstext(*wand)));
        return schreibeZieldatei();
    }

    Rueckgabe felder() {
        gibAus(auftrag_.ausgabe == Ausgabeart::json ? feldverzeichnisJson() : feldverzeichnisText());
        return schreibeZieldatei();
    }

    Rueckgabe herleite() {
        if (const std::string fremd = unbekanntesFeld(auftrag_.herleitung.felder); !fremd.empty()) {
            ausgaben_.meldungen("Unbekanntes Feld: " + fremd + "\nAlle Felder: rippenscheibe-cli felder\n");
            return Rueckgabe::aufruf;
        }
        if (schriebeUeberEingabe()) return Rueckgabe::aufruf;
        if (!ladeMaterialien()) return Rueckgabe::dateifehler;
        const auto wand = frischeWand();
        const Rueckgabe rueckgabe = leiteDateiHer(auftrag_.dateien.front(), *wand);
        // Without a run there is nothing that could take the place of an older derivation.
        return rueckgabe < Rueckgabe::hinweise ? hoehere(rueckgabe, schreibeZieldatei()) : rueckgabe;
    }

    // The verbs that compute many walls. Each file is read on its own, as after program start.
    Rueckgabe studie() {
        if (schriebeUeberEingabe()) return Rueckgabe::aufruf;
        if (!ladeMaterialien()) return Rueckgabe::dateifehler;
        std::vector<fs::path> dateien = auftrag_.dateien;
        if (auftrag_.vorlage) dateien.push_back(*auftrag_.vorlage);
        std::vector<Vorlage> vorlagen;
        for (const fs::path& datei : dateien) {
            const auto wand = frischeWand();
            if (!lade(datei, *wand)) return Rueckgabe::dateifehler;
            vorlagen.push_back({pfadtext(datei), eingaben_});
        }
        const Studienende ende =
            fuehreStudieAus({auftrag_, ausgaben_, materialien_, programmordner_, std::move(vorlagen),
                             [this](std::string_view text) { gibAus(text); }});
        // What did not become whole takes the place of no older output.
        return ende.ganz ? hoehere(ende.rueckgabe, schreibeZieldatei()) : ende.rueckgabe;
    }

  private:
    // The derivation of the last run; the runs before it only leave their results.
    Rueckgabe leiteDateiHer(const fs::path& datei, Wand& w) {
        const std::optional<Grundmasse> felder = lade(datei, w);
        if (!felder) return Rueckgabe::dateifehler;
        laufePosition(w, *felder, auftrag_.laeufe - 1);
        const Wand vorher = w;
        const Positionslauf lauf = laufePosition(w, *felder);
        melde(datei, lauf.meldungen);
        if (!lauf.gerechnet()) return lauf.rueckgabe;
        const herleitung::Graph graph = leiteHer(vorher, *felder);
        switch (auftrag_.ausgabe) {
            case Ausgabeart::json:
                gibAus(herleitungJson(graph, auftrag_.herleitung));
                break;
            case Ausgabeart::text:
                gibAus(herleitungText(graph, auftrag_.herleitung));
                break;
            case Ausgabeart::rtf: {
                const Pruefblatt blatt = pruefblatt(vorher, pfadtext(datei.filename()), bytes_);
                gibAus(alsRtf(fliesstext(rechenweg(graph, w, blatt))));
                break;
            }
        }
        return lauf.rueckgabe;
    }

    // With load cases each of them in a record of its own; which one governs is told at the end.
    Rueckgabe rechneDatei(const fs::path& datei, Wand& w) {
        if (lastfaelle_.empty()) return rechneFall(datei, w, nullptr).rueckgabe;
        Rueckgabe rueckgabe = Rueckgabe::erfuellt;
        double groesster = 0;
        std::string massgebend;
        for (const Lastfallzeile& fall : lastfaelle_) {
            const auto eigene = frischeWand();
            const Fallergebnis ergebnis = rechneFall(datei, *eigene, &fall);
            rueckgabe = hoehere(rueckgabe, ergebnis.rueckgabe);
            if (ergebnis.urteil.maxEta.value_or(0) <= groesster) continue;
            groesster = *ergebnis.urteil.maxEta;
            massgebend = fall.name + ": " + std::string(ergebnis.urteil.massgebend.value_or(""));
        }
        if (!massgebend.empty()) melde(datei, "maßgebend " + massgebend);
        return rueckgabe;
    }

    struct Fallergebnis {
        Rueckgabe rueckgabe = Rueckgabe::dateifehler;
        Urteil urteil{};
    };

    Fallergebnis rechneFall(const fs::path& datei, Wand& w, const Lastfallzeile* fall) {
        const std::optional<Grundmasse> felder = lade(datei, w);
        if (!felder) return {};
        if (fall != nullptr) {
            Feldzugriff zugriff(w);
            for (const auto& [feld, wert] : fall->werte) zugriff.setze(feld, wert);
        }
        const Positionslauf lauf = laufePosition(w, *felder, auftrag_.laeufe, auftrag_.hinweise);
        if (fall != nullptr) melde(datei, "Lastfall " + fall->name);
        melde(datei, lauf.meldungen);
        gibErgebnisAus(datei, w, lauf.gerechnet(), fall);
        return {lauf.rueckgabe, urteil(w, lauf.ergebnis)};
    }

    // The load cases of the command; false when they cannot be read.
    bool ladeLastfaelle() {
        if (!auftrag_.studie.lastfaelle) return true;
        // Told to read commas, it takes points too.
        auto gelesen = lastfaelleAusDatei(*auftrag_.studie.lastfaelle, {.dezimal = ','});
        if (const auto* fehler = std::get_if<std::string>(&gelesen)) {
            ausgaben_.meldungen(*fehler + "\n");
            return false;
        }
        lastfaelle_ = std::get<0>(std::move(gelesen));
        return true;
    }

    Rueckgabe pruefeDatei(const fs::path& datei, Wand& w) {
        if (!lade(datei, w)) return Rueckgabe::dateifehler;
        plausibilitaetslauf(w);
        std::string text;
        for (const Hinweis& hinweis : w.Hinweise) text += pfadtext(datei) + ": " + hinweis.text + "\n";
        gibAus(w.Hinweise.empty() ? pfadtext(datei) + ": keine Hinweise\n" : text);
        return w.Hinweise.empty() ? Rueckgabe::erfuellt : Rueckgabe::hinweise;
    }

    // Opens a position as the window program does; the three fields of its main window come back. Nothing
    // when the file cannot be opened: it is reported and the record is untouched.
    std::optional<Grundmasse> lade(const fs::path& datei, Wand& w) {
        Oeffnung oeffnung = oeffnePosition(datei, w, Einlass::nurPositionen);
        if (oeffnung.gelesen) meldeUnterbrochene(datei);
        if (oeffnung.fehler) {
            ausgaben_.meldungen(*oeffnung.fehler + "\n");
            return std::nullopt;
        }
        gelesen_ = true;
        melde(datei, oeffnung.vorbehalte);
        eingaben_ = w;
        bytes_ = std::move(oeffnung.bytes);
        zuweisen(w, oeffnung.felder);
        if (auftrag_.befehl != Befehl::uebertrage) meldeFehlendesMaterial(datei, w);
        return oeffnung.felder;
    }

    // Without its row an own material has no strengths.
    void meldeFehlendesMaterial(const fs::path& datei, const Wand& w) const {
        for (const Seite n : beideSeiten) {
            const bool beplankt = n == Seite::eins || !w.Einseitig;
            if (!beplankt || !istEigenesMaterial(plattenmaterial(w, n))) continue;
            if (w.eigeneMaterialien.name(w.EigenesMaterial[n]) != nullptr) continue;
            melde(datei, "Beplankung " + std::to_string(nummer(n)) + ": Das eigene Material " +
                             std::to_string(w.EigenesMaterial[n].value()) +
                             " steht nicht in der Tabelle der eigenen Materialien.");
        }
    }

    void gibErgebnisAus(const fs::path& datei, const Wand& w, bool gerechnet, const Lastfallzeile* fall) {
        if (auftrag_.ausgabe == Ausgabeart::json) {
            std::string zeile = jsonZeile(pfadtext(datei), w, gerechnet);
            if (fall != nullptr) zeile.insert(1, "\"lastfall\":" + jsonText(fall->name) + ",");
            gibAus(zeile);
            return;
        }
        if (!gerechnet) return;
        Berichtsoptionen optionen;
        optionen.dezimalzeichen = auftrag_.dezimalzeichen;
        Fliesstext text = fliesstext(bericht(w, auftrag_.form, optionen));
        if (auftrag_.ausgabe == Ausgabeart::text) {
            gibAus(alsText(text));
        } else {
            std::move(text.begin(), text.end(), std::back_inserter(berichte_));
        }
    }

    void melde(const fs::path& datei, const std::string& text) const {
        ausgaben_.meldungen(pfadtext(datei) + ": " + text + "\n");
    }
    void melde(const fs::path& datei, const Texte& texte) const {
        for (const std::string& text : texte) melde(datei, text);
    }

    void gibAus(std::string_view text) {
        if (auftrag_.nach) {
            zieldatei_ += text;
        } else {
            ausgaben_.standard(text);
        }
    }

    Rueckgabe schreibeZieldatei() const {
        if (!auftrag_.nach) return Rueckgabe::erfuellt;
        const std::optional<Dateifehler> fehler = schreibeDauerhaft(*auftrag_.nach, zieldatei_);
        if (!fehler) return Rueckgabe::erfuellt;
        ausgaben_.meldungen(fehler->text + "\n");
        return Rueckgabe::dateifehler;
    }

    // What is read must not be written in the same call.
    bool schriebeUeberEingabe() const {
        if (!auftrag_.nach) return false;
        const std::vector<fs::path> eingaben = gelesene();
        const bool getroffen = std::any_of(eingaben.begin(), eingaben.end(), [&](const fs::path& datei) {
            return sindDieselbeDatei(datei, *auftrag_.nach);
        });
        if (getroffen) melde(*auftrag_.nach, "Eine gelesene Datei kann nicht das Ziel von -o sein.");
        return getroffen;
    }

    // All files that the command reads.
    std::vector<fs::path> gelesene() const {
        std::vector<fs::path> alle = auftrag_.dateien;
        alle.push_back(programmordner_ / materialdatei);
        alle.push_back(programmordner_ / preisdatei);
        const Studienauftrag& studie = auftrag_.studie;
        for (const auto& datei : {auftrag_.material, auftrag_.vorlage, studie.lastfaelle, studie.preise})
            if (datei) alle.push_back(*datei);
        if (auftrag_.befehl == Befehl::projekt) {
            const std::vector<fs::path> projekt = projekteingaben(studie.ordner);
            alle.insert(alle.end(), projekt.begin(), projekt.end());
        }
        return alle;
    }

    // A position is written to a position file only; devices and pipes take anything.
    bool nimmtPositionAuf() const {
        if (!auftrag_.nach) return true;
        const plattform::Ziel ziel = plattform::schreibziel(*auftrag_.nach);
        if (ziel.art == plattform::Zielart::geraet || ziel.art == plattform::Zielart::griff) return true;
        if (!istPositionsdatei(pfadtext(*auftrag_.nach))) {
            melde(*auftrag_.nach, std::string(falscheEndung));
            return false;
        }
        const Dateiinhalt vorhanden = liesDatei(*auftrag_.nach);
        if (vorhanden.lage == Dateilage::unlesbar) {
            ausgaben_.meldungen(vorhanden.fehler->text + "\n");
            return false;
        }
        if (vorhanden.bytes.empty() || positionsbefund(dekodiert(vorhanden.bytes)).masse) return true;
        melde(*auftrag_.nach, "Die Datei ist keine Position und wird nicht überschrieben.");
        return false;
    }

    // A file whose overwriting was cut off: what it held before lies in the program's folder.
    void meldeUnterbrochene(const fs::path& datei) const {
        for (const Kopieplatz& platz : Kopieplatz::verwaiste(programmordner_, Kopieart::ueberschreiben)) {
            if (!sindDieselbeDatei(pfadAus(platz.lies().wert.name), datei)) continue;
            melde(datei, "Das Schreiben der Datei wurde unterbrochen, ihr Stand davor liegt in \"" +
                             pfadtext(platz.datei()) + "\".");
        }
    }

    // Own materials that the command names have to be there, else those of the program are taken. A table
    // that is there has to be readable.
    bool ladeMaterialien() {
        Gelesen<EigeneMaterialien> tabelle = auftrag_.material ? liesEigeneMaterialien(*auftrag_.material)
                                                               : ladeEigeneMaterialien(programmordner_);
        const bool fehlt = auftrag_.material && tabelle.lage == Dateilage::fehlt;
        if (fehlt || tabelle.stoerung()) {
            ausgaben_.meldungen(tabelle.fehler->text + "\n");
            return false;
        }
        materialien_ = std::move(tabelle.wert);
        return true;
    }

    // The state after program start: the defaults with their derived values.
    std::unique_ptr<Wand> frischeWand() const {
        auto wand = std::make_unique<Wand>();
        wand->eigeneMaterialien = materialien_;
        zuweisen(*wand, grundmasse(*wand));
        return wand;
    }

    const Auftrag& auftrag_;
    const fs::path& programmordner_;
    const Ausgaben& ausgaben_;
    EigeneMaterialien materialien_;
    std::vector<Lastfallzeile> lastfaelle_;
    Eingaben eingaben_;  // of the last position, as they were read
    std::string bytes_;  // of its file
    std::string zieldatei_;
    bool gelesen_ = false;  // a position could be read
    Fliesstext berichte_;
};

}  // namespace

Rueckgabe fuehreAus(const Auftrag& auftrag, const fs::path& programmordner, const Ausgaben& ausgaben) {
    Arbeit arbeit(auftrag, programmordner, ausgaben);
    switch (auftrag.befehl) {
        case Befehl::rechne:
            return arbeit.rechne();
        case Befehl::pruefe:
            return arbeit.pruefe();
        case Befehl::neu:
            return arbeit.neu();
        case Befehl::uebertrage:
            return arbeit.uebertrage();
        case Befehl::felder:
            return arbeit.felder();
        case Befehl::herleite:
            return arbeit.herleite();
        case Befehl::stapel:
        case Befehl::variiere:
        case Befehl::legeAus:
        case Befehl::hilft:
        case Befehl::tafel:
        case Befehl::stueckliste:
        case Befehl::lastfaelle:
        case Befehl::projekt:
            return arbeit.studie();
    }
    return Rueckgabe::aufruf;
}

}  // namespace rippenscheibe
