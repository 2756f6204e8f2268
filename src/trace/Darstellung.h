#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "trace/Graph.h"

// How the steps of a derivation read, in German: symbols, numbers, conditions, sources.

namespace rippenscheibe {

// "f_{m,d}" of a field without markup: "fm,d".
std::string schlicht(std::string_view zeichen);
// Four significant digits, whole numbers whole; no thousands mark.
std::string lesbar(double wert, char dezimalzeichen = ',');

// The steps of a graph that are told: ribs 1 to AnzahlRippen, and not the element 0 of the running sums.
bool wirdGezeigt(const herleitung::Graph& graph, const herleitung::Stand& stand);

class Darstellung {
  public:
    explicit Darstellung(const herleitung::Graph& graph);

    const herleitung::Graph& graph() const { return graph_; }
    const herleitung::Stand& stand(const herleitung::Schritt& s) const;
    const herleitung::Feldeintrag& feld(const herleitung::Stand& s) const;
    // The stand that a leaf shows; nullptr for any other node.
    const herleitung::Stand* standAus(herleitung::Ort knoten) const;
    const herleitung::Knoten& knoten(herleitung::Ort ort) const;
    // The last step of a field (and rib); none when the run did not assign it.
    const herleitung::Schritt* letzter(herleitung::Ort feld, int rippe = -1) const;

    std::string zeichen(const herleitung::Stand& s) const;   // "Fc,d(3)"
    std::string blattzeichen(herleitung::Ort knoten) const;  // any leaf: symbol of a field, else its number
    std::string blattwert(herleitung::Ort knoten) const;     // any leaf as a number
    std::string wertMitEinheit(const herleitung::Stand& s) const;
    std::string symbolisch(herleitung::Ort ausdruck) const;  // "kmod,Rippen · fm,k / γM"
    std::string eingesetzt(herleitung::Ort ausdruck) const;  // "0,9 · 24 / 1,3"
    // "fm,d = kmod,Rippen · fm,k / γM = 0,9 · 24 / 1,3 = 16,62 N/mm²"
    std::string zeile(const herleitung::Schritt& s) const;
    // What stands under the line: pass, kept value, source, tables, conditions, what is meant.
    std::vector<std::string> anmerkungen(const herleitung::Schritt& s) const;
    std::vector<std::string> bedingungen(const herleitung::Schritt& s) const;
    std::vector<std::string> tabellenwerte(const herleitung::Schritt& s) const;
    // The clause that gives the formula; "" too where a value of the step names it with its row.
    std::string_view quelle(const herleitung::Schritt& s) const;

    // The steps that these rest on, themselves included, in the order of the run.
    std::vector<herleitung::Ort> grundlagen(const std::vector<herleitung::Ort>& schritte) const;

  private:
    int durchgang(const herleitung::Schritt& s) const;
    bool mindertSich(const herleitung::Schritt& s) const;
    std::string seite(herleitung::Ort knoten) const;
    std::string bedingung(const herleitung::Bedingung& b) const;

    const herleitung::Graph& graph_;
};

}  // namespace rippenscheibe
