#include "study/WasHilft.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

#include "model/Kataloge.h"
#include "study/Auslegung.h"
#include "study/Raster.h"

namespace rippenscheibe {

namespace {

using Zuweisungen = std::vector<std::pair<int, Feldwert>>;

// Collects the steps of a wall; fields that have the value already are no step.
class Schrittliste {
  public:
    explicit Schrittliste(const Eingaben& vorlage) : felder_(wand_) {
        static_cast<Eingaben&>(wand_) = vorlage;
    }

    const Wand& wand() const { return wand_; }
    std::vector<Hilfeschritt> schritte() && { return std::move(schritte_); }

    void nimmAuf(Zuweisungen setzt) {
        std::erase_if(setzt, [&](const auto& z) { return text(z.first, z.second) == heute(z.first); });
        if (setzt.empty()) return;
        Hilfeschritt schritt{beschreibung(setzt), std::move(setzt), {}};
        const bool bekannt = std::any_of(schritte_.begin(), schritte_.end(),
                                         [&](const Hilfeschritt& s) { return s.text == schritt.text; });
        if (!bekannt) schritte_.push_back(std::move(schritt));
    }

    // A step in the field of side 1, of side 2 and of both; `wert` yields the new value from side and
    // today's, nothing for none.
    template <class Wert>
    void jeSeite(std::string_view name, Wert wert) {
        Zuweisungen beide;
        for (const Seite n : beideSeiten) {
            if (n == Seite::zwei && wand_.Einseitig) continue;
            const int feld = eingabeindex(std::string(name) + std::to_string(nummer(n)));
            const std::optional<double> neu = wert(n, zahlAus(heute(feld)));
            if (!neu) continue;
            nimmAuf({{feld, *neu}});
            beide.emplace_back(feld, *neu);
        }
        if (beide.size() == 2) nimmAuf(std::move(beide));
    }

    template <class Wert>
    void gemeinsam(std::initializer_list<std::string_view> namen, Wert wert) {
        Zuweisungen setzt;
        for (const std::string_view name : namen)
            if (const std::optional<double> neu = wert(zahlAus(heute(eingabeindex(name)))))
                setzt.emplace_back(eingabeindex(name), *neu);
        nimmAuf(std::move(setzt));
    }

    std::string heute(int feld) const {
        std::string t;
        felder_.anfuegeEingabe(t, feld);
        return t;
    }

  private:
    static std::string text(int feld, const Feldwert& wert) {
        Wand w;
        Feldzugriff zugriff(w);
        zugriff.setze(feld, wert);
        std::string t;
        zugriff.anfuegeEingabe(t, feld);
        return t;
    }

    // Fields of the same change share their numbers: "av1, av2 60 -> 55".
    std::string beschreibung(const Zuweisungen& setzt) const {
        std::vector<std::pair<std::string, std::string>> gruppen;  // names, change
        for (const auto& [feld, wert] : setzt) {
            const std::string wechsel = heute(feld) + " -> " + text(feld, wert);
            const auto gleich = std::find_if(gruppen.begin(), gruppen.end(),
                                             [&](const auto& g) { return g.second == wechsel; });
            if (gleich == gruppen.end()) {
                gruppen.emplace_back(eingabefeld(feld).angabe.name, wechsel);
            } else {
                gleich->first.append(", ").append(eingabefeld(feld).angabe.name);
            }
        }
        std::string alles;
        for (auto& [namen, wechsel] : gruppen) {
            std::replace(wechsel.begin(), wechsel.end(), '.', ',');
            alles.append(alles.empty() ? "" : "; ").append(namen).append(" ").append(wechsel);
        }
        return alles;
    }

    Wand wand_;
    Feldzugriff felder_;
    std::vector<Hilfeschritt> schritte_;
};

// The next larger value of a list, if there is one.
auto naechster(std::span<const double> werte) {
    return [werte](double heute) -> std::optional<double> {
        const auto stelle = std::upper_bound(werte.begin(), werte.end(), heute + 1e-9);
        return stelle == werte.end() ? std::nullopt : std::optional(*stelle);
    };
}

std::vector<double> dickenVon(int material) {
    std::vector<double> werte;
    for (const std::string& text : ueblicheDicken(material)) werte.push_back(zahlAus(text));
    return werte;
}

// The row behind today's in the catalogue of the kind.
Zuweisungen naechsteKatalogzeile(const Eingaben& e, Seite n) {
    const int art = e.VMArt[n].value();
    if (static_cast<Art>(art) == Art::naegel) {
        const int typ = e.VMTyp[n].value() + 1;
        return typ <= static_cast<int>(VMTypen().size()) ? setztNagel(n, typ) : Zuweisungen{};
    }
    const VMKataloggruppe& gruppe = kataloggruppe(art);
    for (int zeile = gruppe.ersteZeile; zeile < gruppe.letzteZeile; ++zeile) {
        const VMKatalogzeile& z = VMKatalog()[static_cast<std::size_t>(zeile) - 1];
        if (wieGetippt(z.d) == e.d[n].value() && wieGetippt(z.ln) == e.ln[n].value())
            return setztKatalogzeile(n, zeile + 1);
    }
    return {};
}

std::vector<Hilfeschritt> naechsteSchritte(const Eingaben& e) {
    constexpr std::array breiten{60.0, 80.0, 100.0, 120.0, 140.0, 160.0};
    constexpr std::array hoehen{100.0, 120.0, 140.0, 160.0, 180.0, 200.0, 220.0, 240.0};
    Schrittliste liste(e);
    for (const double schritt : {-5.0, 5.0})
        liste.jeSeite("av", [&](Seite, double av) { return std::optional(av + schritt); });

    Zuweisungen alleZeilen;
    for (const Seite n : beideSeiten) {
        if (n == Seite::zwei && e.Einseitig) continue;
        Zuweisungen zeile = naechsteKatalogzeile(e, n);
        liste.nimmAuf(zeile);
        alleZeilen.insert(alleZeilen.end(), zeile.begin(), zeile.end());
    }
    liste.nimmAuf(std::move(alleZeilen));

    liste.jeSeite("Plattendicke",
                  [&](Seite n, double heute) { return naechster(dickenVon(e.Material[n].value()))(heute); });
    liste.gemeinsam({"bRandrippe"}, naechster(breiten));
    liste.gemeinsam({"bRandrippe", "bInnenrippe"}, naechster(breiten));
    liste.gemeinsam({"hRandrippe", "hInnenrippe"}, naechster(hoehen));
    // Ribs at whole fractions of the panel's width.
    const double breite = e.Plattenbreite[Seite::eins].value();
    for (int teile = 1; teile <= 4; ++teile) {
        const double abstand = std::round(1000 * breite / teile) / 1000;
        const double heute = e.Rippenabstand.value();
        if (abstand > heute / 2.1 && abstand < heute * 2.1)
            liste.gemeinsam({"Rippenabstand"}, [&](double) { return std::optional(abstand); });
    }
    if (e.NachweisVerankerung && e.AnzahlAnker == 1)
        liste.gemeinsam({"AnzahlAnker"}, [](double) { return std::optional(2.0); });
    return std::move(liste).schritte();
}

}  // namespace

Hilfe wasHilft(const Eingaben& vorlage, const EigeneMaterialien& materialien, const Bewertungsregel& regel,
               const Ausfuehrung& ausfuehrung) {
    Hilfe hilfe;
    std::vector<Hilfeschritt> alle = naechsteSchritte(vorlage);
    alle.insert(alle.begin(), Hilfeschritt{});  // the wall as it is
    const auto werkstatt = [&] { return Pruefstand(vorlage, materialien, regel); };
    fliessband(
        ausfuehrung,
        [&, i = std::size_t{0}]() mutable -> std::optional<Hilfeschritt> {
            return i < alle.size() ? std::optional(alle[i++]) : std::nullopt;
        },
        werkstatt,
        [](Pruefstand& stand, Hilfeschritt schritt) {
            stand.beginne();
            for (const auto& [feld, wert] : schritt.setzt) stand.felder().setze(feld, wert);
            schritt.bewertung = stand.bewerte();
            return schritt;
        },
        [&](Hilfeschritt schritt) {
            if (schritt.setzt.empty()) {
                hilfe.heute = schritt.bewertung;
            } else {
                hilfe.schritte.push_back(std::move(schritt));
            }
            return true;
        });
    const auto rang = [](const Hilfeschritt& s) {
        const bool hinweis = s.bewertung.ausgang == Ausgang::hinweis;
        return std::pair(hinweis, hinweis ? 0 : s.bewertung.maxEta);
    };
    std::stable_sort(hilfe.schritte.begin(), hilfe.schritte.end(),
                     [&](const Hilfeschritt& a, const Hilfeschritt& b) { return rang(a) < rang(b); });
    return hilfe;
}

}  // namespace rippenscheibe
