#include "report/Fliesstext.h"

#include <utility>
#include <variant>

namespace rippenscheibe {

namespace {

Absatz absatz(std::string text, Stil stil) {
    Absatz a;
    if (!text.empty()) a.laeufe.push_back({std::move(text), schrift(stil)});
    return a;
}

// Turns the values of the report into paragraphs, one visit each.
class Setzer {
  public:
    void operator()(const Textzeile& z) {
        if (!z.text) return;
        text_.push_back(absatz(*z.text, z.stil));
        text_.back().ausnutzung = z.ausnutzung;
    }
    void operator()(const Schlussbemerkungen& z) {
        for (const std::string& zeile : z.zeilen) text_.push_back(absatz(zeile, Stil::bemerkung));
    }
    void operator()(const Formelzeile& z) { text_.push_back(absatz(z.text, Stil::text)); }
    void operator()(const Leerzeile&) { text_.emplace_back(); }
    void operator()(const Trennlinie& z) {
        constexpr std::size_t breite = 67;
        text_.push_back(absatz(std::string(breite, z.zeichen), Stil::text));
    }
    template <class NurFuerSeiten>
    void operator()(const NurFuerSeiten&) {}

    Fliesstext fertig() && { return std::move(text_); }

  private:
    Fliesstext text_;
};

}  // namespace

Fliesstext fliesstext(const Bericht& bericht) {
    Setzer setzer;
    for (const Zeile& zeile : bericht) std::visit(setzer, zeile);
    return std::move(setzer).fertig();
}

}  // namespace rippenscheibe
