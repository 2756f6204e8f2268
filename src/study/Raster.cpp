#include "study/Raster.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <span>
#include <utility>

#include "model/Feldangaben.h"
#include "model/Kataloge.h"

namespace rippenscheibe {

namespace {

std::vector<std::string_view> geteilt(std::string_view text, char zeichen) {
    std::vector<std::string_view> teile;
    while (true) {
        const std::size_t ende = text.find(zeichen);
        teile.push_back(text.substr(0, ende));
        if (ende == std::string_view::npos) return teile;
        text.remove_prefix(ende + 1);
    }
}

// A decimal number as a whole number of units of 10^-stellen.
struct Dezimal {
    std::int64_t einheiten;
    int stellen;
};

std::optional<Dezimal> dezimal(std::string_view text) {
    const bool negativ = text.starts_with('-');
    if (negativ) text.remove_prefix(1);
    const std::size_t punkt = text.find('.');
    std::string ziffern(text.substr(0, punkt));
    const std::string_view nachkomma = punkt == std::string_view::npos ? "" : text.substr(punkt + 1);
    constexpr std::size_t hoechstens = 9;
    if (ziffern.size() > hoechstens || nachkomma.size() > hoechstens) return std::nullopt;
    ziffern += nachkomma;
    std::int64_t einheiten = 0;
    const char* const ende = ziffern.data() + ziffern.size();
    const auto [stelle, fehler] = std::from_chars(ziffern.data(), ende, einheiten);
    if (fehler != std::errc{} || stelle != ende || ziffern.starts_with('-')) return std::nullopt;
    return Dezimal{negativ ? -einheiten : einheiten, static_cast<int>(nachkomma.size())};
}

std::int64_t hochgezogen(Dezimal d, int stellen) {
    for (; d.stellen < stellen; ++d.stellen) d.einheiten *= 10;
    return d.einheiten;
}

std::string dezimaltext(std::int64_t einheiten, int stellen) {
    std::string ziffern = std::to_string(einheiten < 0 ? -einheiten : einheiten);
    const auto breite = static_cast<std::size_t>(stellen);
    if (ziffern.size() <= breite) ziffern.insert(0, breite + 1 - ziffern.size(), '0');
    if (stellen > 0) ziffern.insert(ziffern.size() - breite, ".");
    return (einheiten < 0 ? "-" : "") + ziffern;
}

// The last word of a name: "HTT5", "C24".
std::string_view kurzname(std::string_view name) {
    while (name.ends_with(' ')) name.remove_suffix(1);
    return name.substr(name.rfind(' ') + 1);
}

// The row of a catalogue by its name, its last word or, 0 for none.
int katalogzeile(std::string_view feld, std::string_view wert) {
    const auto passt = [&](std::string_view name) { return name == wert || kurzname(name) == wert; };
    const auto eintraege = katalog(feld);
    const auto treffer = std::ranges::find_if(eintraege, passt);
    return treffer == eintraege.end() ? 0 : static_cast<int>(treffer - eintraege.begin()) + 1;
}

// `Material1 = "OSB/5" steht nicht in der Liste: ...`
std::string fehltInListe(std::string_view feld, std::string_view wert) {
    std::string satz = std::string(feld) + " = \"" + std::string(wert) + "\" steht nicht in der Liste: ";
    std::string_view trenner;
    for (const std::string_view eintrag : katalog(feld))
        satz.append(std::exchange(trenner, "; ")).append(eintrag);
    return satz;
}

int vmKatalogzeile(std::string_view wert) {
    for (int zeile = 1; zeile <= static_cast<int>(VMKatalog().size()); ++zeile)
        if (katalogzeilenname(zeile) == wert) return zeile;
    return 0;
}

std::string mitSeite(std::string_view name, Seite n) { return std::string(name) + std::to_string(nummer(n)); }

std::pair<int, Feldwert> zuweisung(std::string_view name, Seite n, double wert) {
    return {eingabeindex(mitSeite(name, n)), wert};
}

// The catalogues of fasteners are no inputs of their own: names of axes that stand for several fields.
constexpr std::string_view vmKatalogachse = "VMKatalog";

struct Achsenfeld {
    int feld;     // -1 for a row of the catalogue of fasteners
    Seite seite;  // of a field with a side
};

std::optional<Achsenfeld> achsenfeld(std::string_view name) {
    const Seite seite = seiteAus(name);
    if (name == mitSeite(vmKatalogachse, seite)) return Achsenfeld{-1, seite};
    const int feld = eingabeindex(name);
    return feld < 0 ? std::nullopt : std::optional(Achsenfeld{feld, seite});
}

// What one written value sets on one field of the axis, or a sentence against it.
std::variant<std::vector<std::pair<int, Feldwert>>, std::string> zuweisungen(const Achsenfeld& achse,
                                                                             std::string_view wert,
                                                                             Grenzen grenzen) {
    if (achse.feld < 0) {
        const int zeile = vmKatalogzeile(wert);
        if (zeile == 0) return "\"" + std::string(wert) + "\" steht nicht im Katalog der Verbindungsmittel";
        return setztKatalogzeile(achse.seite, zeile);
    }
    const Feldeintrag& feld = eingabefeld(achse.feld);
    if (const int zeile = katalogzeile(feld.angabe.name, wert); zeile > 0) {
        if (feld.angabe.name.starts_with("VMTyp")) return setztNagel(achse.seite, zeile);
        return std::vector{std::pair(achse.feld, Feldwert(static_cast<double>(zeile)))};
    }
    const std::optional<Feldwert> gelesen = feldwertAus(feld, wert);
    if (!gelesen && !katalog(feld.angabe.name).empty()) return fehltInListe(feld.angabe.name, wert);
    const std::string geschrieben = gelesen ? std::string(wert) : "\"" + std::string(wert) + "\"";
    if (const auto satz = einwand(feld, gelesen.value_or(Feldwert(std::string(wert))), geschrieben, grenzen))
        return *satz;
    return std::vector{std::pair(achse.feld, *gelesen)};
}

bool setztFeld(const std::vector<std::pair<int, Feldwert>>& setzt, int feld) {
    return std::any_of(setzt.begin(), setzt.end(), [&](const auto& eine) { return eine.first == feld; });
}

bool istKatalogname(const Achsenfeld& achse, std::string_view wert) {
    if (achse.feld < 0) return vmKatalogzeile(wert) > 0;
    return katalogzeile(eingabefeld(achse.feld).angabe.name, wert) > 0;
}

// Values between commas; a name of the catalogue may hold one itself ("2,7x60").
std::vector<std::string> werteAus(std::string_view text, const Achsenfeld& achse) {
    std::vector<std::string> werte;
    const auto teile = geteilt(text, ',');
    for (std::size_t i = 0; i < teile.size(); ++i) {
        if (i + 1 < teile.size()) {
            const std::string beide = std::string(teile[i]) + "," + std::string(teile[i + 1]);
            if (istKatalogname(achse, beide)) {
                werte.push_back(beide);
                ++i;
                continue;
            }
        }
        werte.emplace_back(teile[i]);
    }
    return werte;
}

}  // namespace

std::optional<std::vector<std::string>> dezimalreihe(std::string_view von, std::string_view bis,
                                                     std::string_view schritt) {
    const auto a = dezimal(von);
    const auto b = dezimal(bis);
    const auto s = dezimal(schritt);
    if (!a || !b || !s || s->einheiten <= 0) return std::nullopt;
    const int stellen = std::max({a->stellen, b->stellen, s->stellen});
    const std::int64_t erster = hochgezogen(*a, stellen);
    const std::int64_t letzter = hochgezogen(*b, stellen);
    const std::int64_t weite = hochgezogen(*s, stellen);
    constexpr std::int64_t hoechstens = 1'000'000;
    if ((letzter - erster) / weite >= hoechstens) return std::nullopt;
    std::vector<std::string> texte;
    for (std::int64_t wert = erster; wert <= letzter; wert += weite)
        texte.push_back(dezimaltext(wert, stellen));
    return texte;
}

std::vector<std::pair<int, Feldwert>> setztNagel(Seite n, int typ) {
    const Nageltyp& nagel = VMTypen()[static_cast<std::size_t>(typ) - 1];
    return {zuweisung("VMTyp", n, typ), zuweisung("d", n, nagel.d), zuweisung("ln", n, nagel.ln),
            zuweisung("dk", n, nagel.dk)};
}

std::vector<std::pair<int, Feldwert>> setztKatalogzeile(Seite n, int zeile) {
    const VMKatalogzeile& werte = VMKatalog()[static_cast<std::size_t>(zeile) - 1];
    return {zuweisung("d", n, wieGetippt(werte.d)), zuweisung("ln", n, wieGetippt(werte.ln)),
            zuweisung("dk", n, wieGetippt(werte.dk))};
}

const VMKataloggruppe& kataloggruppe(int art) {
    // Kinds and groups have their last two in opposite order.
    const int stelle = art == static_cast<int>(Art::naegelDin18182)     ? 8
                       : art == static_cast<int>(Art::klammernDin18182) ? 7
                                                                        : art;
    return VMKataloggruppen()[static_cast<std::size_t>(std::clamp(stelle, 1, 8)) - 1];
}

std::string katalogzeilenname(int zeile) {
    const VMKatalogzeile& werte = VMKatalog()[static_cast<std::size_t>(zeile) - 1];
    std::string text;
    for (const VMKataloggruppe& gruppe : VMKataloggruppen()) {
        if (zeile < gruppe.ersteZeile || zeile > gruppe.letzteZeile) continue;
        text = gruppe.name.substr(0, gruppe.name.find(" :"));
    }
    text += ' ';
    anfuegeZahl(text, werte.d);
    text += 'x';
    anfuegeZahl(text, werte.ln);
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

std::variant<Achse, std::string> achseAus(std::string_view text, Grenzen grenzen) {
    const std::size_t gleich = text.find('=');
    if (gleich == std::string_view::npos)
        return "\"" + std::string(text) + "\": erwartet FELD=WERTE, etwa av1,av2=50:150:5";
    Achse achse;
    achse.name = text.substr(0, gleich);
    std::vector<Achsenfeld> felder;
    for (const std::string_view name : geteilt(achse.name, ',')) {
        const auto feld = achsenfeld(name);
        if (!feld) return "unbekanntes Feld \"" + std::string(name) + "\"";
        felder.push_back(*feld);
    }
    std::vector<std::string> werte;
    for (const std::string& teil : werteAus(text.substr(gleich + 1), felder.front())) {
        const auto grenzwerte = geteilt(teil, ':');
        if (grenzwerte.size() == 1) {
            werte.push_back(teil);
            continue;
        }
        const auto reihe =
            grenzwerte.size() == 3 ? dezimalreihe(grenzwerte[0], grenzwerte[1], grenzwerte[2]) : std::nullopt;
        if (!reihe || reihe->empty())
            return achse.name + ": \"" + teil +
                   "\" ist kein Bereich VON:BIS:SCHRITT (Dezimalpunkt, höchstens 1000000 Werte)";
        werte.insert(werte.end(), reihe->begin(), reihe->end());
    }
    for (const std::string& wert : werte) {
        Achsenwert eintrag{wert, {}};
        for (const Achsenfeld& feld : felder) {
            auto setzt = zuweisungen(feld, wert, grenzen);
            if (auto* satz = std::get_if<std::string>(&setzt)) return *satz;
            for (auto& eine : std::get<0>(setzt)) {
                if (setztFeld(eintrag.setzt, eine.first))
                    return std::string(eingabefeld(eine.first).angabe.name) + " steht zweimal";
                eintrag.setzt.push_back(std::move(eine));
            }
        }
        for (const auto& [feld, gesetzt] : eintrag.setzt)
            if (std::find(achse.felder.begin(), achse.felder.end(), feld) == achse.felder.end())
                achse.felder.push_back(feld);
        achse.werte.push_back(std::move(eintrag));
    }
    return achse;
}

Raster::Raster(std::vector<Achse> achsen) : achsen_(std::move(achsen)), weiten_(achsen_.size()) {
    for (std::size_t i = achsen_.size(); i-- > 0;) {
        weiten_[i] = anzahl_;
        const std::size_t werte = achsen_[i].werte.size();
        constexpr std::size_t groesste = std::numeric_limits<std::size_t>::max();
        anzahl_ = anzahl_ > groesste / werte ? groesste : anzahl_ * werte;
    }
}

std::size_t Raster::stelle(std::size_t nummer, std::size_t achse) const {
    return nummer / weiten_[achse] % achsen_[achse].werte.size();
}

const Achsenwert& Raster::wert(std::size_t nummer, std::size_t achse) const {
    return achsen_[achse].werte[stelle(nummer, achse)];
}

void Raster::setze(std::size_t nummer, Feldzugriff& felder) const {
    for (std::size_t achse = 0; achse < achsen_.size(); ++achse)
        for (const auto& [feld, wert] : wert(nummer, achse).setzt) felder.setze(feld, wert);
}

std::optional<std::string> doppeltesFeld(const Raster& raster) {
    std::vector<int> gesehen;
    for (const Achse& achse : raster.achsen())
        for (const int feld : achse.felder) {
            if (std::find(gesehen.begin(), gesehen.end(), feld) != gesehen.end())
                return "zwei Achsen setzen " + std::string(eingabefeld(feld).angabe.name);
            gesehen.push_back(feld);
        }
    return std::nullopt;
}

std::optional<std::string> geloeschteLast(const Raster& raster, const Eingaben& w) {
    // The values that the axes give a field; without an axis nothing.
    const auto werte = [&](std::string_view name) {
        std::vector<Feldwert> alle;
        for (const Achse& achse : raster.achsen())
            for (const Achsenwert& wert : achse.werte)
                for (const auto& [feld, gesetzt] : wert.setzt)
                    if (feld == eingabeindex(name)) alle.push_back(gesetzt);
        return alle;
    };
    const auto kommtVor = [&](std::string_view name, const Feldwert& gesucht, bool inVorlage) {
        const auto alle = werte(name);
        return alle.empty() ? inVorlage : std::find(alle.begin(), alle.end(), gesucht) != alle.end();
    };
    const auto geloescht = [&](std::string_view last, std::string_view grund) {
        return std::string(last) + " wirkt nicht " + std::string(grund) + "; --trotzdem lässt es zu";
    };
    if (!werte("Fvk").empty() && kommtVor("Lastfall", 2.0, w.Lastfall == 2))
        return geloescht("Fvk", "bei Lastfall 2 (nur vertikal)");
    for (const std::string_view last : {"gk", "qk", "Fcgk", "Fcqk"})
        if (!werte(last).empty() && kommtVor("Lastfall", 1.0, w.Lastfall == 1))
            return geloescht(last, "bei Lastfall 1 (nur horizontal)");
    if (!werte("wk").empty() && kommtVor("WindQuer", false, !w.WindQuer))
        return geloescht("wk", "ohne WindQuer");
    return std::nullopt;
}

}  // namespace rippenscheibe
