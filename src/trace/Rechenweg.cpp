#include "trace/Rechenweg.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

#include "basis/Utf8.h"
#include "basis/Version.h"
#include "report/Berichtsbau.h"
#include "report/Seitenkopf.h"
#include "run/Berechnungslauf.h"
#include "run/FrischerLauf.h"
#include "run/Luecken.h"
#include "run/Urteil.h"
#include "run/Zuweisen.h"
#include "trace/Darstellung.h"
#include "trace/Formel.h"
#include "trace/Pruefsumme.h"

namespace rippenscheibe {

using namespace herleitung;  // the graph is all this file is about

namespace {

constexpr std::size_t breiteText = 88;    // characters of a line of 10 points
constexpr std::size_t breiteKlein = 118;  // of 8 points
constexpr std::size_t breiteMerkmal = 66;
constexpr double seitenende = 262;  // mm
constexpr double spalteMerkmal = 42;
constexpr double spaltePunkt = 5;
constexpr double zeileText = 4.4;  // mm, height of a line
constexpr double zeileKlein = 3.6;
constexpr double luft = 2.2;  // above a step

// Breaks at blanks; the first line begins with `anfang`, those behind it with `einzug`.
std::vector<std::string> umbrochen(const std::string& text, std::size_t breite, const std::string& anfang,
                                   const std::string& einzug) {
    std::vector<std::string> zeilen{anfang};
    bool leer = true;  // nothing but its beginning stands in the line
    std::size_t von = 0;
    while (von <= text.size()) {
        const std::size_t bis = std::min(text.find(' ', von), text.size());
        const std::string wort = text.substr(von, bis - von);
        if (!leer && zeichenzahl(zeilen.back()) + zeichenzahl(wort) + 1 > breite) {
            zeilen.push_back(einzug);
            leer = true;
        }
        zeilen.back() += (leer ? "" : " ") + wort;
        leer = false;
        von = bis + 1;
    }
    return zeilen;
}

// Steps of ribs that read alike but for the number of the rib.
struct Gruppe {
    const Schritt* schritt;  // the first of them
    std::vector<int> rippen;
};

// "Rippen 1, 3 bis 10"
std::string rippennamen(const std::vector<int>& rippen) {
    std::string text = rippen.size() == 1 ? "Rippe " : "Rippen ";
    for (std::size_t i = 0; i < rippen.size();) {
        std::size_t j = i;
        while (j + 1 < rippen.size() && rippen[j + 1] == rippen[j] + 1) ++j;
        if (i > 0) text += ", ";
        text += std::to_string(rippen[i]);
        if (j > i) text += (j == i + 1 ? ", " : " bis ") + std::to_string(rippen[j]);
        i = j + 1;
    }
    return text;
}

class Rechenwegbau {
  public:
    Rechenwegbau(const Graph& graph, const Wand& w, Formelsatz* satz)
        : d_(graph), w_(w), satz_(satz), b_(Form::lang, {}) {}

    Bericht baue(const Pruefblatt& blatt) && {
        b_.neu(Seitenkopfdruck{});
        titel();
        pruefblatt(blatt);
        schritte();
        return std::move(b_).fertig();
    }

  private:
    void titel() {
        b_.neu(Zeilenstand{28});
        b_.zeile(0, {"Position: ", w_.Position, "  ", w_.PositionsBemerkung}, Stil::kopf);
        b_.neu(Zeilenstand{34});
        b_.zeile(0, {"Rechenweg zur Bemessung von Wandtafeln nach DIN 1052 (2008)"}, Stil::kopfUnterstrichen);
        b_.neu(Zeilenstand{45});
    }

    // A text behind a word or a dash, which stands at the margin.
    void absatz(const std::string& wort, const std::string& text, double spalte, std::size_t breite) {
        if (satz_ == nullptr) {
            b_.zeile(0, {wort, " ", text});
            return;
        }
        std::string anfang = wort + "\t";
        for (const std::string& zeile : umbrochen(text, breite, "", "")) {
            b_.neu(Seitenpruefung{seitenende - zeileText});
            b_.neu(Textzeile{.abstand = zeileText, .text = anfang + zeile, .spalte = spalte});
            anfang = "\t";
        }
    }
    void merkmal(const std::string& name, const std::string& wert) {
        absatz(name + ":", wert, spalteMerkmal, breiteMerkmal);
    }
    void punkt(std::string_view satz) { absatz("–", std::string(satz), spaltePunkt, breiteText); }

    void pruefblatt(const Pruefblatt& blatt) {
        b_.h1("Prüfblatt", 0);
        b_.neu(Vorschub{2});
        merkmal("Programm", blatt.programm);
        merkmal("Projekt", w_.Projekt.empty() ? "–" : w_.Projekt);
        merkmal("Datei", blatt.datei.empty() ? "noch nicht gespeichert" : blatt.datei);
        merkmal("SHA-256 der Datei", blatt.pruefsumme.empty() ? "–" : blatt.pruefsumme);
        merkmal("Art des Laufs", blatt.lauf);
        verfahren();
        urteilszeilen();
        offenes();
        vorgaben();
        b_.neu(Seitenpruefung{228});
        b_.neu(Vorschub{8});
        for (const char* wort : {"Aufgestellt", "Geprüft"}) {
            b_.neu(Vorschub{8});
            merkmal(wort, "________________________________   Datum: _______________");
        }
        b_.neu(Seitenpruefung{0});  // the steps begin on a page of their own
    }

    void verfahren() {
        b_.h2("Gewählte Verfahren", 8);
        merkmal("Verbindungsmittel", w_.GenauesVerfahren == 1
                                         ? "vereinfacht nach DIN 1052 (2008), 12.2 bis 12.8"
                                         : "genau nach DIN 1052 (2008), Anhang G.2.2");
        merkmal("Erhöhung um 20 %",
                w_.Erhoehung20 ? "angesetzt nach DIN 1052 (2008), 10.6 (4)" : "nicht angesetzt");
        merkmal("Einhängeeffekt", w_.DeltaRd ? "deltaRd angesetzt" : "nicht angesetzt");
        merkmal("Vertikallasten", w_.VertikallastVerteilung == 2 ? "genau verteilt auf Rippen und Beplankung"
                                                                 : "nur über die Rippen");
        merkmal("Lagesicherheit", w_.LagesicherungVerfahren == 2
                                      ? "genau: Summe der Momente um die Auflager"
                                      : "vereinfacht: Druckkraft über der Randrippe");
        merkmal("Verankerung", w_.NachweisVerankerung ? "Nachweis geführt" : "Nachweis nicht geführt");
    }

    void urteilszeilen() {
        b_.h2("Ergebnis", 8);
        const Urteil u = urteil(w_);
        if (u.maxEta) {
            std::string text = ausnutzung(*u.maxEta);
            if (u.massgebend) text += " (" + std::string(*u.massgebend) + ")";
            merkmal("Größte Ausnutzung", text);
        }
        merkmal("Urteil", w_.AlleNachweiseErfuellt ? "Alle Nachweise werden erfüllt."
                                                   : "Es werden nicht alle Nachweise erfüllt.");
    }
    // A value above 1 never reads as 1.
    static std::string ausnutzung(double eta) {
        std::string text = lesbar(eta);
        return text == "1" && eta > 1 ? "über 1" : text;
    }

    void offenes() {
        b_.h2("Beanspruchungen ohne Nachweis", 8);
        const std::vector<std::string> saetze = lueckensaetze(w_);
        if (saetze.empty()) punkt("keine");
        for (const std::string& satz : saetze) punkt(satz);
    }

    void vorgaben() {
        std::vector<std::string_view> saetze;
        for (const Schritt& s : d_.graph().schritte) {
            for (const std::string_view satz : s.vorgaben)
                if (std::ranges::find(saetze, satz) == saetze.end()) saetze.push_back(satz);
        }
        b_.h2("So vorgegeben", 8);
        if (saetze.empty()) punkt("keine Besonderheiten in diesem Lauf");
        for (const std::string_view satz : saetze) punkt(satz);
    }

    // The report once more, each heading with the steps of its numbers that were not told before.
    void schritte() {
        b_.h1("Rechenweg", 0);
        rest_ = zeileText;
        std::string nummeriert;  // the last heading with a number: some below it have none
        std::string ueberschrift;
        std::vector<Ort> ausdruecke;
        for (const Berichtszeile& zeile : d_.graph().bericht) {
            if (zeile.ueberschrift) {
                abschnitt(ueberschrift, ausdruecke);
                const bool mitNummer = zeile.text.front() >= '1' && zeile.text.front() <= '9';
                if (mitNummer) nummeriert = zeile.text;
                ueberschrift = mitNummer ? zeile.text : nummeriert + ", " + zeile.text;
                ausdruecke.clear();
            }
            for (const herleitung::Zahlstelle& zahl : zeile.zahlen) ausdruecke.push_back(zahl.ausdruck);
        }
        abschnitt(ueberschrift, ausdruecke);
    }

    void abschnitt(const std::string& ueberschrift, const std::vector<Ort>& ausdruecke) {
        std::vector<Ort> gebraucht;
        std::vector<Ort> berichtswerte;
        std::vector<const Stand*> frueher;
        for (const Ort ausdruck : ausdruecke) {
            jederOperand(d_.graph(), ausdruck, [&](Ort ort) {
                const Stand* s = d_.standAus(ort);
                if (s == nullptr) return;
                if (s->schritt != keiner) gebraucht.push_back(s->schritt);
                if (s->schritt == keiner && !d_.feld(*s).eingabe && genannt_.insert(s).second)
                    frueher.push_back(s);
            });
            if (rechnetImBericht(ausdruck)) berichtswerte.push_back(ausdruck);
        }
        std::vector<Ort> neue;
        for (const Ort ort : d_.grundlagen(gebraucht)) {
            const Schritt& s = d_.graph().schritte[static_cast<std::size_t>(ort)];
            if (wirdGezeigt(d_.graph(), d_.stand(s)) && gezeigt_.insert(inhalt(s)).second)
                neue.push_back(ort);
        }
        if (neue.empty() && frueher.empty()) return;
        b_.h2(ueberschrift, rest_ + 5, 245);
        rest_ = zeileText;
        for (const Gruppe& gruppe : gruppiert(neue)) gib(gruppe);
        for (const Stand* s : frueher) gibFrueheren(*s);
        gibBerichtswerte(berichtswerte);
    }

    // What the report forms itself, once for ribs whose numbers are the same.
    void gibBerichtswerte(const std::vector<Ort>& ausdruecke) {
        std::map<std::pair<std::string, std::string>, std::vector<Ort>> gleiche;
        std::vector<std::vector<Ort>*> reihenfolge;
        for (const Ort ort : ausdruecke) {
            const auto [stelle, neu] = gleiche.try_emplace({d_.eingesetzt(ort), lesbar(d_.knoten(ort).wert)});
            stelle->second.push_back(ort);
            if (neu) reihenfolge.push_back(&stelle->second);
        }
        for (const std::vector<Ort>* orte : reihenfolge) {
            std::set<int> rippen;
            for (const Ort ort : *orte) {
                jederOperand(d_.graph(), ort, [&](Ort operand) {
                    const Stand* s = d_.standAus(operand);
                    if (s != nullptr && s->rippe >= 0) rippen.insert(s->rippe);
                });
            }
            std::vector<std::string> worte;
            if (rippen.size() > 1) worte.push_back("ebenso: " + rippennamen({rippen.begin(), rippen.end()}));
            const Ort ort = orte->front();
            gib(satz_ != nullptr
                    ? satz_->ausdruck(d_, ort)
                    : Formelzeile{.text = "im Bericht: " + d_.symbolisch(ort) + " = " + d_.eingesetzt(ort) +
                                          " = " + lesbar(d_.knoten(ort).wert)},
                worte);
        }
    }

    // What a step says: the passes of a run form many values several times from the same ones.
    std::pair<std::string, std::vector<double>> inhalt(const Schritt& s) const {
        std::vector<double> werte{d_.stand(s).wert, s.behalten ? 1.0 : 0.0};
        jederOperand(d_.graph(), s.ausdruck, [&](Ort ort) {
            const double wert = d_.knoten(ort).wert;
            werte.push_back(wert == wert ? wert : 0);
        });
        return {d_.zeichen(d_.stand(s)) + " = " + d_.symbolisch(s.ausdruck), std::move(werte)};
    }

    // Whether the report forms the printed value from several ones; a mere change of units does not count.
    bool rechnetImBericht(Ort ausdruck) const {
        int operanden = 0;
        jederOperand(d_.graph(), ausdruck, [&](Ort) { ++operanden; });
        return operanden > 1;
    }

    std::vector<Gruppe> gruppiert(const std::vector<Ort>& schritte) const {
        std::vector<Gruppe> gruppen;
        std::map<std::tuple<Ort, std::string, std::string>, std::size_t> gleiche;
        for (const Ort ort : schritte) {
            const Schritt& s = d_.graph().schritte[static_cast<std::size_t>(ort)];
            const Stand& x = d_.stand(s);
            if (x.rippe < 0) {
                gruppen.push_back({&s, {}});
                continue;
            }
            const auto schluessel =
                std::tuple(x.feld, d_.eingesetzt(s.ausdruck), lesbar(x.wert) + (s.behalten ? "b" : ""));
            const auto [treffer, neu] = gleiche.try_emplace(schluessel, gruppen.size());
            if (neu) gruppen.push_back({&s, {}});
            std::vector<int>& rippen = gruppen[treffer->second].rippen;
            if (std::ranges::find(rippen, x.rippe) == rippen.end()) rippen.push_back(x.rippe);
        }
        for (Gruppe& gruppe : gruppen) std::ranges::sort(gruppe.rippen);
        return gruppen;
    }

    void gib(const Gruppe& gruppe) {
        std::vector<std::string> worte;
        if (gruppe.rippen.size() > 1) worte.push_back("ebenso: " + rippennamen(gruppe.rippen));
        for (std::string& text : d_.anmerkungen(*gruppe.schritt)) {
            const bool daneben = satz_ != nullptr && text == d_.quelle(*gruppe.schritt);
            if (!daneben) worte.push_back(std::move(text));
        }
        gib(satz_ != nullptr ? satz_->schritt(d_, *gruppe.schritt)
                             : Formelzeile{.text = d_.zeile(*gruppe.schritt)},
            worte);
    }

    void gibFrueheren(const Stand& s) {
        gib(satz_ != nullptr ? satz_->stand(d_, s)
                             : Formelzeile{.text = d_.zeichen(s) + " = " + d_.wertMitEinheit(s)},
            {"nicht zugewiesen, Stand vor dem Lauf"});
    }

    // A formula with what stands under it, on one page.
    void gib(Formelzeile formel, const std::vector<std::string>& worte) {
        std::vector<std::string> zeilen;
        for (const std::string& text : worte) {
            if (satz_ == nullptr) {
                zeilen.push_back("        " + text);
                continue;
            }
            for (std::string& zeile : umbrochen(text, breiteKlein, "\t", "\t  "))
                zeilen.push_back(std::move(zeile));
        }
        const double hoehe = rest_ + luft + formel.hoehe + zeileKlein * static_cast<double>(zeilen.size());
        b_.neu(Seitenpruefung{seitenende - hoehe});
        formel.abstand = rest_ + luft;
        rest_ = 0;
        b_.neu(std::move(formel));
        for (const std::string& zeile : zeilen) anmerkung(zeile);
    }

    void anmerkung(const std::string& zeile) {
        const double abstand = rest_ > 0 ? zeileKlein : 0.4;
        b_.neu(Textzeile{.stil = Stil::anmerkung, .abstand = abstand, .text = zeile, .spalte = spaltePunkt});
        rest_ = zeileKlein;
    }

    const Darstellung d_;
    const Wand& w_;
    Formelsatz* const satz_;
    Berichtsbau b_;
    double rest_ = 0;  // mm from the cursor to the lower edge of what stands there
    std::set<std::pair<std::string, std::vector<double>>> gezeigt_;
    std::set<const Stand*> genannt_;
};

// All numbers that a run leaves behind.
std::vector<double> ergebnisse(const Wand& w) {
    std::vector<double> werte;
    const auto sammle = [&](const Feldangabe&, const auto& feld) {
        if constexpr (requires { feld(1).value(); }) {
            for (int i = 0; i < static_cast<int>(Rippenfeld::laenge); ++i) werte.push_back(feld(i).value());
        } else if constexpr (requires { feld.value(); }) {
            werte.push_back(static_cast<double>(feld.value()));
        }
    };
    jedesErgebnis(w, sammle);
    return werte;
}

}  // namespace

std::string laufart(const Wand& vorDemLauf) {
    Wand ist = vorDemLauf;
    zuweisen(ist, grundmasse(ist));
    const std::vector<double> gesucht = ergebnisse(ist);
    Wand w = vorDemLauf;
    static_cast<Ergebnisse&>(w) = ergebnisseNachProgrammstart();
    zuweisen(w, grundmasse(w));
    if (ergebnisse(w) == gesucht) return "erster Lauf, ohne Ergebnisse früherer Läufe";
    constexpr int laeufe = 3;  // by then the results of equal inputs have settled
    for (int lauf = 1; lauf <= laeufe; ++lauf) {
        berechnungslauf(w);
        zuweisen(w, grundmasse(w));
        if (ergebnisse(w) == gesucht) return "zweiter oder späterer Lauf mit denselben Eingaben";
    }
    return "Lauf nach einer anderen Wand oder anderen Eingaben: was er nicht zuweist, behält den früheren "
           "Stand";
}

Pruefblatt pruefblatt(const Wand& vorDemLauf, std::string datei, std::string_view bytes) {
    return {std::string(Programmzeile) + ", Version " + std::string(programmversion()), std::move(datei),
            bytes.empty() ? "" : sha256(bytes), laufart(vorDemLauf)};
}

Bericht rechenweg(const Graph& graph, const Wand& w, const Pruefblatt& blatt, Formelsatz* satz) {
    return Rechenwegbau(graph, w, satz).baue(blatt);
}

}  // namespace rippenscheibe
