#include "study/Auslegung.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <tuple>
#include <utility>

#include "model/Kataloge.h"
#include "model/VMKatalog.h"

namespace rippenscheibe {

namespace {

constexpr std::array<std::string_view, 21> feste{
    "GenauesVerfahren",
    "Erhoehung20",
    "DeltaRd",
    "beta",
    "KlammerWinkelOption",
    "VertikallastVerteilung",
    "LagesicherungVerfahren",
    "NKLRippen",
    "NKLBeplankung1",
    "NKLBeplankung2",
    "KLED",
    "Lastfall",
    "Fvk",
    "gk",
    "qk",
    "wk",
    "Fcgk",
    "Fcqk",
    "WindQuer",
    "gkWand",
    "NachweisVerankerung",
};
constexpr std::size_t blockgroesse = 64;
constexpr std::size_t knappe = 5;

// A range of grid places or of places in the order of cost.
struct Abschnitt {
    std::size_t von;
    std::size_t bis;
};

// Hands out 0 .. `anzahl` in blocks.
auto blockweise(std::size_t anzahl, std::size_t groesse) {
    return [anzahl, groesse, von = std::size_t{0}]() mutable -> std::optional<Abschnitt> {
        if (von >= anzahl) return std::nullopt;
        const Abschnitt abschnitt{von, std::min(von + groesse, anzahl)};
        von = abschnitt.bis;
        return abschnitt;
    };
}

// One thread's record, and what a candidate is worth on it.
class Werkbank {
  public:
    explicit Werkbank(const Auslegungsauftrag& auftrag)
        : auftrag_(auftrag), stand_(auftrag.vorlage, auftrag.materialien, auftrag.regel) {}

    // Nothing when a price is missing.
    std::optional<double> wert(std::size_t nummer) {
        setzeEntwurf(auftrag_, nummer, stand_);
        switch (auftrag_.ziel) {
            case Auslegungsziel::kosten:
                return auftrag_.preise.kosten(stand_.wand(), auftrag_.reihen);
            case Auslegungsziel::verbindungsmittel: {
                const Mengensummen m = mengensummen(stand_.wand(), auftrag_.reihen);
                return m.verbindungsmittel[Seite::eins] + m.verbindungsmittel[Seite::zwei];
            }
            case Auslegungsziel::gewicht:
                return std::nearbyint(stand_.gewicht() * 1e6) / 1e6;
        }
        return std::nullopt;
    }
    Bewertung bewerte(std::size_t nummer) {
        setzeEntwurf(auftrag_, nummer, stand_);
        return stand_.bewerte();
    }
    std::string fehlenderPreis() const { return auftrag_.preise.fehlenderPreis(stand_.wand()); }

  private:
    const Auslegungsauftrag& auftrag_;
    Pruefstand stand_;
};

struct Werte {
    std::vector<double> werte;
    std::string fehler;
};

// The value of each candidate, or a sentence.
std::variant<std::vector<double>, std::string> alleWerte(const Auslegungsauftrag& auftrag,
                                                         const Ausfuehrung& ausfuehrung) {
    std::vector<double> werte;
    werte.reserve(auftrag.raster.anzahl());
    std::string fehler;
    const auto rechne = [](Werkbank& bank, const Abschnitt& block) {
        Werte ergebnis;
        for (std::size_t i = block.von; i < block.bis && ergebnis.fehler.empty(); ++i) {
            const std::optional<double> wert = bank.wert(i);
            if (!wert) ergebnis.fehler = bank.fehlenderPreis();
            ergebnis.werte.push_back(wert.value_or(0));
        }
        return ergebnis;
    };
    fliessband(
        {ausfuehrung.faeden, ausfuehrung.halt, {}}, blockweise(auftrag.raster.anzahl(), 4096),
        [&] { return Werkbank(auftrag); }, rechne,
        [&](const Werte& block) {
            werte.insert(werte.end(), block.werte.begin(), block.werte.end());
            fehler = block.fehler;
            return fehler.empty();
        });
    if (!fehler.empty()) return fehler;
    return werte;
}

bool besser(const Entwurf& a, const Entwurf& b) {
    return std::tie(a.wert, a.bewertung.maxEta, a.nummer) < std::tie(b.wert, b.bewertung.maxEta, b.nummer);
}

// Counts candidates in the order of their value until enough have passed.
class Auslese {
  public:
    Auslese(const Auslegungsauftrag& auftrag, Auslegungsergebnis& ergebnis)
        : auftrag_(auftrag), ergebnis_(ergebnis) {}

    // False when no later candidate can belong to the answer.
    bool nimm(Entwurf entwurf) {
        auto& gefunden = ergebnis_.entwuerfe;
        if (gefunden.size() >= auftrag_.zahl && entwurf.wert > gefunden[auftrag_.zahl - 1].wert) return false;
        ++ergebnis_.geprueft;
        switch (entwurf.bewertung.ausgang) {
            case Ausgang::besteht:
                gefunden.push_back(std::move(entwurf));
                ++ergebnis_.bestanden;
                break;
            case Ausgang::hinweis:
                ++ergebnis_.mitHinweis;
                break;
            case Ausgang::ueberschritten:
                ++ergebnis_.anNachweis[entwurf.bewertung.massgebend.value_or("")];
                if (gefunden.empty()) merkeKnappen(std::move(entwurf));
                break;
            case Ausgang::luecke:
                for (const Lueckenart art : entwurf.bewertung.ausschluss.arten()) ++ergebnis_.anLuecke[art];
                break;
        }
        return true;
    }

    void schliesseAb() {
        auto& gefunden = ergebnis_.entwuerfe;
        std::sort(gefunden.begin(), gefunden.end(), besser);
        if (gefunden.size() > auftrag_.zahl) gefunden.resize(auftrag_.zahl);
        if (!gefunden.empty()) ergebnis_.knappVerfehlt.clear();
    }

  private:
    void merkeKnappen(Entwurf entwurf) {
        auto& knapp = ergebnis_.knappVerfehlt;
        const auto stelle = std::upper_bound(
            knapp.begin(), knapp.end(), entwurf,
            [](const Entwurf& a, const Entwurf& b) { return a.bewertung.maxEta < b.bewertung.maxEta; });
        knapp.insert(stelle, std::move(entwurf));
        if (knapp.size() > knappe) knapp.pop_back();
    }

    const Auslegungsauftrag& auftrag_;
    Auslegungsergebnis& ergebnis_;
};

Achse achse(const std::string& name, const std::vector<std::string>& werte) {
    std::string text = name + "=";
    for (const std::string& wert : werte) text += (text.back() == '=' ? "" : ",") + wert;
    return std::get<Achse>(achseAus(text, Grenzen::uebergehen));
}

// "av1" or "av1,av2": side 2 moves along where the same can be set on it.
std::string beideSeitenNamen(const Eingaben& e, const std::string& name, bool gleicheArt = true) {
    return e.Einseitig || !gleicheArt ? name + "1" : name + "1," + name + "2";
}

// Rows of the catalogue for the kind of side 1, set on all sides in use that have this kind.
Achse katalogachse(const Eingaben& e) {
    const auto art = static_cast<Art>(e.VMArt[Seite::eins].value());
    const bool beide = !e.Einseitig && e.VMArt[Seite::zwei] == e.VMArt[Seite::eins];
    Achse a{{}, beideSeitenNamen(e, art == Art::naegel ? "VMTyp" : "VMKatalog", beide), {}};
    const auto nimmAuf = [&](std::string text, const auto& setzt) {
        Achsenwert wert{std::move(text), {}};
        for (const Seite n : beideSeiten) {
            if (n == Seite::zwei && !beide) continue;
            for (auto& zuweisung : setzt(n)) wert.setzt.push_back(std::move(zuweisung));
        }
        a.werte.push_back(std::move(wert));
    };
    if (art == Art::naegel) {
        for (int typ = 1; typ <= static_cast<int>(VMTypen().size()); ++typ)
            nimmAuf(std::string(nagelname(typ)), [&](Seite n) { return setztNagel(n, typ); });
    } else {
        const VMKataloggruppe& gruppe = kataloggruppe(e.VMArt[Seite::eins].value());
        for (int zeile = gruppe.ersteZeile; zeile <= gruppe.letzteZeile; ++zeile)
            nimmAuf(katalogzeilenname(zeile), [&](Seite n) { return setztKatalogzeile(n, zeile); });
    }
    if (!a.werte.empty())
        for (const auto& [feld, wert] : a.werte.front().setzt) a.felder.push_back(feld);
    return a;
}

}  // namespace

std::string ausscheidegruende(const Auslegungsergebnis& ergebnis) {
    std::string gruende;
    const auto zaehle = [&](std::size_t zahl, const std::string& grund) {
        if (zahl == 0) return;
        gruende.append(gruende.empty() ? "" : ", ").append(std::to_string(zahl)).append(" ").append(grund);
    };
    for (const auto& [nachweis, zahl] : ergebnis.anNachweis) zaehle(zahl, "an " + std::string(nachweis));
    zaehle(ergebnis.mitHinweis, "mit Hinweis");
    for (const auto& [art, zahl] : ergebnis.anLuecke)
        zaehle(zahl, "mit Lücke: " + std::string(lueckenursache(art)));
    return gruende;
}

std::string festesFeld(const Raster& raster) {
    for (const Achse& a : raster.achsen())
        for (const int feld : a.felder) {
            const std::string_view name = eingabefeld(feld).angabe.name;
            if (std::find(feste.begin(), feste.end(), name) != feste.end()) return std::string(name);
        }
    return {};
}

std::vector<int> festeFelder() {
    std::vector<int> felder;
    felder.reserve(feste.size());
    for (const std::string_view name : feste) felder.push_back(eingabeindex(name));
    return felder;
}

void setzeEntwurf(const Auslegungsauftrag& auftrag, std::size_t nummer, Pruefstand& stand) {
    stand.beginne();
    auftrag.raster.setze(nummer, stand.felder());
    if (auftrag.eigengewicht) stand.setzeEigengewicht();
}

std::variant<Auslegungsergebnis, std::string> legeAus(const Auslegungsauftrag& auftrag,
                                                      const Ausfuehrung& ausfuehrung) {
    Auslegungsergebnis ergebnis;
    ergebnis.kandidaten = auftrag.raster.anzahl();
    if (ergebnis.kandidaten > hoechstensKandidaten)
        return "das Raster hat mehr als " + std::to_string(hoechstensKandidaten / 1'000'000) +
               " Millionen Kandidaten";
    auto gelesen = alleWerte(auftrag, ausfuehrung);
    if (auto* fehler = std::get_if<std::string>(&gelesen)) return *fehler;
    const auto& werte = std::get<0>(gelesen);
    if (werte.size() < ergebnis.kandidaten) {
        ergebnis.vollstaendig = false;
        return ergebnis;
    }
    std::vector<std::size_t> reihenfolge(werte.size());
    std::iota(reihenfolge.begin(), reihenfolge.end(), std::size_t{0});
    // Millions take their time to be ordered: the order can be given up.
    struct Halt {};
    try {
        std::stable_sort(reihenfolge.begin(), reihenfolge.end(), [&](std::size_t a, std::size_t b) {
            if (ausfuehrung.halt.stop_requested()) throw Halt{};
            return werte[a] < werte[b];
        });
    } catch (const Halt&) {
        ergebnis.vollstaendig = false;
        return ergebnis;
    }

    Auslese auslese(auftrag, ergebnis);
    bool fertig = false;
    fliessband(
        ausfuehrung, blockweise(reihenfolge.size(), blockgroesse), [&] { return Werkbank(auftrag); },
        [&](Werkbank& bank, const Abschnitt& block) {
            std::vector<Entwurf> entwuerfe;
            entwuerfe.reserve(block.bis - block.von);
            for (std::size_t i = block.von; i < block.bis; ++i)
                entwuerfe.push_back({reihenfolge[i], werte[reihenfolge[i]], bank.bewerte(reihenfolge[i])});
            return entwuerfe;
        },
        [&](std::vector<Entwurf> entwuerfe) {
            for (Entwurf& entwurf : entwuerfe) {
                if (auslese.nimm(std::move(entwurf))) continue;
                fertig = true;
                break;
            }
            if (ausfuehrung.fortschritt)
                ausfuehrung.fortschritt({ergebnis.geprueft, ergebnis.kandidaten, ergebnis.entwuerfe.size()});
            return !fertig;
        });
    ergebnis.vollstaendig = fertig || ergebnis.geprueft == ergebnis.kandidaten;
    auslese.schliesseAb();
    return ergebnis;
}

std::vector<std::string> ueblicheDicken(int material) {
    constexpr int ersteGips = 3;
    constexpr int letzteGips = 6;
    constexpr int gipsfaser = 7;
    if (material >= ersteGips && material <= letzteGips) return {"12.5", "15", "18"};
    if (material == gipsfaser) return {"10", "12.5", "15", "18"};
    return {"10", "12", "15", "18", "22", "25"};
}

std::vector<Standardachse> standardachsen(const Eingaben& e) {
    const auto art = static_cast<Art>(e.VMArt[Seite::eins].value());
    const bool schrauben =
        art == Art::schrauben || art == Art::schraubenMitZulassung || art == Art::schnellbauschrauben;
    std::vector<Standardachse> achsen;
    achsen.push_back(
        {"abstand", achse(beideSeitenNamen(e, "av"), *dezimalreihe("20", schrauben ? "200" : "150", "5"))});
    achsen.push_back({"verbindungsmittel", katalogachse(e)});
    std::vector<std::string> t = ueblicheDicken(e.Material[Seite::eins].value());
    const std::string heute = zahltext(plattendicke(e, Seite::eins));
    if (std::find(t.begin(), t.end(), heute) == t.end()) t.push_back(heute);
    const bool gleichePlatte = e.Material[Seite::eins] == e.Material[Seite::zwei];
    achsen.push_back({"platte", achse(beideSeitenNamen(e, "Plattendicke", gleichePlatte), t)});
    achsen.push_back(
        {"rippenbreite", achse("bRandrippe,bInnenrippe", {"60", "80", "100", "120", "140", "160"})});
    achsen.push_back({"rippenhoehe", achse("hRandrippe,hInnenrippe",
                                           {"100", "120", "140", "160", "180", "200", "220", "240"})});
    achsen.push_back(
        {"holz", achse("Holzart", {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13"})});
    achsen.push_back(
        {"anker", achse("Ankertyp", {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"})});
    return achsen;
}

}  // namespace rippenscheibe
