#include "report/Berichtsbau.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "basis/Zahlenformat.h"

namespace rippenscheibe {

bool Teil::haengeAn(std::string& zeile, char dezimalzeichen) const {
    if (!text_ || (istWert_ && wert_.failed())) return false;
    if (istWert_) {
        zeile += formatiere(*text_, wert_.value(), dezimalzeichen);
    } else {
        zeile += *text_;
    }
    return true;
}

bool Berichtsbau::haengeAn(Textzeile& zeile, Teile teile) const {
    if (!zeile.text) zeile.text.emplace();
    for (const Teil& teil : teile) {
        const std::size_t von = zeile.text->size();
        if (!teil.haengeAn(*zeile.text, optionen.dezimalzeichen)) {
            zeile.text.reset();
            zeile.zahlen.clear();
            return false;
        }
        if (teil.wert()) zeile.zahlen.push_back({von, zeile.text->size(), *teil.wert()});
    }
    return true;
}

void Berichtsbau::zeile(double abstand, Teile teile, Stil stil) {
    Textzeile zeile{.stil = stil, .abstand = abstand};
    haengeAn(zeile, teile);
    neu(std::move(zeile));
}

void Berichtsbau::ueberschrift(Stil stil, std::string_view text, double abstand,
                               std::optional<double> grenze) {
    neu(Leerzeile{});
    if (!gedruckt() && stil == Stil::ueberschrift1) neu(Trennlinie{'-'});
    neu(Textzeile{
        .stil = stil, .abstand = abstand, .grenze = grenze, .text = std::string(text), .ausnutzung = {}});
}

void Berichtsbau::h1(std::string_view text, double abstand, std::optional<double> grenze) {
    ueberschrift(Stil::ueberschrift1, text, abstand, grenze);
}
void Berichtsbau::h2(std::string_view text, double abstand, std::optional<double> grenze) {
    ueberschrift(Stil::ueberschrift2, text, abstand, grenze);
}
void Berichtsbau::h3(std::string_view text, double abstand, std::optional<double> grenze) {
    ueberschrift(Stil::ueberschrift3, text, abstand, grenze);
}

void Berichtsbau::ausnutzung(double abstand, std::string_view name, Zahl eta, Teile davor,
                             std::string_view maske, const Endungen& enden) {
    const bool erfuellt = eta <= 1.0;
    Textzeile zeile{.abstand = abstand, .ausnutzung = Ausnutzung{std::string(name), eta.value(), erfuellt}};
    if (haengeAn(zeile, davor))
        haengeAn(zeile, {{eta, maske}, erfuellt ? enden.erfuellt : enden.ueberschritten});
    neu(std::move(zeile));
}

void Berichtsbau::urteil(double abstand, std::string_view name, Zahl eta, bool erfuellt, Teile teile) {
    const double anzeige = eta.failed() ? std::numeric_limits<double>::infinity() : eta.value();
    Textzeile zeile{.abstand = abstand, .ausnutzung = Ausnutzung{std::string(name), anzeige, erfuellt}};
    haengeAn(zeile, teile);
    neu(std::move(zeile));
}

int listenlaenge(const Wand& w) {
    constexpr float hoechstens = std::numeric_limits<std::int16_t>::max();
    return static_cast<int>(std::clamp(w.AnzahlRippen.value(), 0.0F, hoechstens));
}

std::string rippenname(int i, int anzahl) {
    if (i == 1) return "Randrippe links";
    if (i == anzahl) return "Randrippe rechts";
    return "Innenrippe " + std::to_string(i - 1);
}

}  // namespace rippenscheibe
