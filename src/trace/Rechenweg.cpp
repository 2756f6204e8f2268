#include "trace/Rechenweg.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

#include "basis/Utf8.h"
#include "report/Berichtsbau.h"
#include "run/FrischerLauf.h"
#include "run/Luecken.h"
#include "run/Urteil.h"
#include "run/Zuweisen.h"
#include "trace/Darstellung.h"
#include "trace/Formel.h"

namespace rippenscheibe {

using namespace herleitung;  // the graph is all this file is about

namespace {

constexpr std::size_t breiteText = 88;    // characters of a line of 10 points
constexpr std::size_t breiteKlein = 105;  // of 8 points
constexpr double seitenende = 258;        // mm

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
    Rechenwegbau(const Graph& graph, const Wand& w) : d_(graph), w_(w), b_(Form::lang, {}) {}

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

    void absatz(const std::string& text, double abstand = 5) {
        for (const std::string& zeile : umbrochen(text, breiteText, "", "      ")) {
            b_.neu(Seitenpruefung{seitenende});
            b_.zeile(abstand, {zeile});
            abstand = 4;
        }
    }

    void pruefblatt(const Pruefblatt& blatt) {
        b_.h1("Prüfblatt", 0);
        absatz("Programm: " + blatt.programm, 8);
        absatz("Projekt: " + w_.Projekt);
        absatz(blatt.datei.empty() ? "Datei: noch nicht gespeichert" : "Datei: " + blatt.datei);
        if (!blatt.pruefsumme.empty()) absatz("SHA-256: " + blatt.pruefsumme);
        absatz("Art des Laufs: " + blatt.lauf);
        verfahren();
        urteilszeilen();
        offenes();
        vorgaben();
        b_.neu(Seitenpruefung{235});
        absatz("Aufgestellt:  ______________________________   Datum:  ______________", 16);
        absatz("Geprüft:       ______________________________   Datum:  ______________", 12);
        b_.neu(Seitenpruefung{0});  // the steps begin on a page of their own
    }

    void verfahren() {
        b_.h2("Gewählte Verfahren", 8);
        absatz(w_.GenauesVerfahren == 1 ? "Verbindungsmittel vereinfacht nach DIN 1052 (2008), 12.2 bis 12.8"
                                        : "Verbindungsmittel genau nach DIN 1052 (2008), Anhang G.2.2");
        absatz(w_.VertikallastVerteilung == 2 ? "Vertikallasten genau verteilt auf Rippen und Beplankung"
                                              : "Vertikallasten nur über die Rippen");
        absatz(!w_.NachweisVerankerung ? "Nachweis der Verankerung nicht geführt"
               : w_.LagesicherungVerfahren == 2
                   ? "Lagesicherheit genau: Summe der Momente um die Auflager"
                   : "Lagesicherheit vereinfacht: Druckkraft über der Randrippe");
        absatz(w_.Erhoehung20 ? "Rd um 20 % erhöht nach DIN 1052 (2008), 10.6 (4)"
                              : "Rd nicht um 20 % erhöht");
        absatz(w_.DeltaRd ? "Einhängeeffekt (deltaRd) angesetzt"
                          : "Einhängeeffekt (deltaRd) nicht angesetzt");
    }

    void urteilszeilen() {
        b_.h2("Ergebnis", 8);
        const Urteil u = urteil(w_);
        if (u.maxEta) {
            std::string text = "Größte Ausnutzung: " + ausnutzung(*u.maxEta);
            if (u.massgebend) text += " (" + std::string(*u.massgebend) + ")";
            absatz(text);
        }
        absatz(w_.AlleNachweiseErfuellt ? "Alle Nachweise werden erfüllt."
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
        if (saetze.empty()) absatz("keine");
        for (const std::string& satz : saetze) absatz("- " + satz);
    }

    void vorgaben() {
        std::vector<std::string_view> saetze;
        for (const Schritt& s : d_.graph().schritte) {
            for (const std::string_view satz : s.vorgaben)
                if (std::ranges::find(saetze, satz) == saetze.end()) saetze.push_back(satz);
        }
        b_.h2("So vorgegeben", 8);
        if (saetze.empty()) absatz("keine Besonderheiten in diesem Lauf");
        for (const std::string_view satz : saetze) absatz("- " + std::string(satz));
    }

    // The report once more, each heading with the steps of its numbers that were not told before.
    void schritte() {
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
        b_.h2(ueberschrift, 7, 245);
        b_.neu(Vorschub{2});
        for (const Gruppe& gruppe : gruppiert(neue)) gib(gruppe);
        for (const Stand* s : frueher) {
            absatz(d_.zeichen(*s) + " = " + d_.wertMitEinheit(*s));
            anmerkung("nicht zugewiesen, Stand vor dem Lauf");
        }
        std::set<std::string> gesagt;
        for (const Ort ausdruck : berichtswerte) {
            const std::string text = d_.symbolisch(ausdruck) + " = " + d_.eingesetzt(ausdruck) + " = " +
                                     lesbar(d_.knoten(ausdruck).wert);
            if (gesagt.insert(text).second) {
                absatz("im Bericht: " + text);
            }
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
        absatz(d_.zeile(*gruppe.schritt));
        if (gruppe.rippen.size() > 1) anmerkung("ebenso: " + rippennamen(gruppe.rippen));
        for (const std::string& text : d_.anmerkungen(*gruppe.schritt)) anmerkung(text);
    }

    void anmerkung(const std::string& text) {
        for (const std::string& zeile : umbrochen(text, breiteKlein, "        ", "          ")) {
            b_.neu(Seitenpruefung{seitenende});
            b_.zeile(4, {zeile}, Stil::klein);
        }
    }

    const Darstellung d_;
    const Wand& w_;
    Berichtsbau b_;
    std::set<std::pair<std::string, std::vector<double>>> gezeigt_;
    std::set<const Stand*> genannt_;
};

}  // namespace

std::string laufart(const Wand& vorDemLauf) {
    Wand vergleich = vorDemLauf;
    static_cast<Ergebnisse&>(vergleich) = ergebnisseNachProgrammstart();
    zuweisen(vergleich, grundmasse(vergleich));
    Wand ist = vorDemLauf;
    zuweisen(ist, grundmasse(ist));
    bool gleich = true;
    std::vector<double> werte;
    std::size_t stelle = 0;
    bool sammeln = true;
    const auto besuche = [&](const Feldangabe&, const auto& feld) {
        const auto nimm = [&](double wert) {
            if (sammeln) {
                werte.push_back(wert);
            } else {
                gleich = gleich && werte[stelle++] == wert;
            }
        };
        if constexpr (requires { feld(1).value(); }) {
            for (int i = 0; i < static_cast<int>(Rippenfeld::laenge); ++i) nimm(feld(i).value());
        } else if constexpr (requires { feld.value(); }) {
            nimm(static_cast<double>(feld.value()));
        }
    };
    jedesErgebnis(std::as_const(vergleich), besuche);
    sammeln = false;
    jedesErgebnis(std::as_const(ist), besuche);
    return gleich ? "erster Lauf, ohne Ergebnisse früherer Läufe"
                  : "weiterer Lauf: Felder, die er nicht zuweist, behalten den Stand früherer Läufe";
}

Bericht rechenweg(const Graph& graph, const Wand& w, const Pruefblatt& blatt) {
    return Rechenwegbau(graph, w).baue(blatt);
}

}  // namespace rippenscheibe
