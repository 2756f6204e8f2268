#include "study/Lastfaelle.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "files/Dateischreiber.h"
#include "files/Pfad.h"

namespace rippenscheibe {

namespace {

constexpr std::array<std::string_view, 9> spalten{"Lastfall", "KLED",     "Fvk",  "gk",  "qk",
                                                  "wk",       "WindQuer", "Fcgk", "Fcqk"};
constexpr std::string_view namensspalte = "name";

enum Fall { horizontal = 1, vertikal = 2, beide = 3 };
enum Dauer { staendig = 1, mittel = 3, kurz = 4 };

std::string ort(std::size_t zeile) { return "Zeile " + std::to_string(zeile) + ": "; }

// A truth value of a table may be 0, 1, ja or nein too.
std::string wahrheitswert(const std::string& zelle) {
    if (zelle == "1" || zelle == "ja") return "true";
    if (zelle == "0" || zelle == "nein") return "false";
    return zelle;
}

Lastfallzeile zeileMit(std::string name, const Eingaben& w, int lastfall, int kled, double Fvk, bool voll,
                       double wk) {
    const bool lasten = lastfall != horizontal;
    const auto wert = [](double last, bool wirkt) { return Feldwert(wirkt ? last : 0.0); };
    Lastfallzeile zeile{std::move(name), {}};
    const auto setze = [&](std::string_view feld, Feldwert gesetzt) {
        zeile.werte.emplace_back(eingabeindex(feld), std::move(gesetzt));
    };
    setze("Lastfall", static_cast<double>(lastfall));
    setze("KLED", static_cast<double>(kled));
    setze("Fvk", Fvk);
    setze("gk", wert(w.gk.value(), lasten));
    setze("qk", wert(wieGetippt(w.qk.value()), lasten && voll));
    setze("wk", wk);
    setze("WindQuer", wk != 0);
    setze("Fcgk", wert(w.Fcgk.value(), lasten));
    setze("Fcqk", wert(wieGetippt(w.Fcqk.value()), lasten && voll));
    return zeile;
}

}  // namespace

std::span<const std::string_view> lastfallspalten() { return spalten; }

std::variant<Feldwert, std::string> lastfallwert(std::string_view spalte, const std::string& zelle,
                                                 const Csvform& form) {
    const Feldeintrag& feld = eingabefeld(eingabeindex(spalte));
    const std::string geschrieben = feld.typ == Feldart::wahr ? wahrheitswert(zelle) : mitPunkt(zelle, form);
    const auto wert = feldwertAus(feld, geschrieben);
    if (auto satz = einwand(feld, wert.value_or(Feldwert(zelle)), wert ? zelle : "\"" + zelle + "\"",
                            Grenzen::beachten))
        return std::move(*satz);
    return *wert;
}

std::string lastfallzelle(const Feldwert& wert, const Csvform& form) {
    if (const bool* wahr = std::get_if<bool>(&wert)) return *wahr ? "1" : "0";
    if (const double* zahl = std::get_if<double>(&wert)) return mitDezimalzeichen(zahltext(*zahl), form);
    return std::get<std::string>(wert);
}

std::variant<std::vector<Lastfallzeile>, std::string> lastfaelleAus(std::string_view text,
                                                                    const Csvform& form) {
    std::vector<Lastfallzeile> faelle;
    std::vector<std::string> kopf;
    std::size_t nummer = 0;
    for (const std::string_view zeile : zeilenVon(text)) {
        ++nummer;
        if (zeile.empty()) continue;
        const auto zellen = zellenAus(zeile, form);
        if (!zellen) return ort(nummer) + "Anführungszeichen nicht geschlossen";
        if (kopf.empty()) {
            kopf = *zellen;
            for (const std::string& spalte : kopf) {
                if (spalte != namensspalte &&
                    std::find(spalten.begin(), spalten.end(), spalte) == spalten.end())
                    return ort(nummer) + "unbekannte Spalte \"" + spalte + "\"";
                if (std::count(kopf.begin(), kopf.end(), spalte) > 1)
                    return ort(nummer) + "die Spalte " + spalte + " steht zweimal";
            }
            continue;
        }
        if (zellen->size() != kopf.size())
            return ort(nummer) + std::to_string(zellen->size()) + " Werte statt " +
                   std::to_string(kopf.size());
        Lastfallzeile fall{"Lastfall " + std::to_string(faelle.size() + 1), {}};
        for (std::size_t i = 0; i < kopf.size(); ++i) {
            const std::string& zelle = (*zellen)[i];
            if (kopf[i] == namensspalte && !zelle.empty()) fall.name = zelle;
            if (kopf[i] == namensspalte || zelle.empty()) continue;
            auto wert = lastfallwert(kopf[i], zelle, form);
            if (const auto* satz = std::get_if<std::string>(&wert)) return ort(nummer) + *satz;
            fall.werte.emplace_back(eingabeindex(kopf[i]), std::get<Feldwert>(std::move(wert)));
        }
        faelle.push_back(std::move(fall));
    }
    if (faelle.empty()) return "kein Lastfall";
    return faelle;
}

std::variant<std::vector<Lastfallzeile>, std::string> lastfaelleAusDatei(const std::filesystem::path& datei,
                                                                         const Csvform& form) {
    const Dateiinhalt inhalt = liesDatei(datei);
    if (inhalt.fehler) return inhalt.fehler->text;
    auto faelle = lastfaelleAus(tabellentext(inhalt.bytes), form);
    if (auto* fehler = std::get_if<std::string>(&faelle)) return pfadtext(datei) + ": " + *fehler;
    return faelle;
}

std::optional<std::string> ueberschriebenesFeld(const Raster& raster,
                                                const std::vector<Lastfallzeile>& faelle) {
    for (const Achse& achse : raster.achsen())
        for (const int feld : achse.felder)
            for (const Lastfallzeile& fall : faelle)
                for (const auto& [gesetzt, wert] : fall.werte)
                    if (gesetzt == feld)
                        return std::string(eingabefeld(feld).angabe.name) + " setzt auch der Lastfall \"" +
                               fall.name + "\" und hebt es wieder auf";
    return std::nullopt;
}

std::string lastfaelletext(const std::vector<Lastfallzeile>& faelle, const Csvform& form) {
    std::vector<std::string> zellen{std::string(namensspalte)};
    zellen.insert(zellen.end(), spalten.begin(), spalten.end());
    std::string text = csvZeile(zellen, form);
    for (const Lastfallzeile& fall : faelle) {
        zellen.assign({fall.name});
        for (const std::string_view spalte : spalten) {
            const auto gesetzt = std::find_if(fall.werte.begin(), fall.werte.end(),
                                              [&](const auto& w) { return w.first == eingabeindex(spalte); });
            zellen.push_back(gesetzt == fall.werte.end() ? "" : lastfallzelle(gesetzt->second, form));
        }
        text += csvZeile(zellen, form);
    }
    return text;
}

std::vector<Lastfallzeile> vorgeschlageneLastfaelle(const Eingaben& w) {
    const bool vertikaleLast = w.gk != 0 || w.qk != 0 || w.Fcgk != 0 || w.Fcqk != 0;
    const double Fvk = std::fabs(wieGetippt(w.Fvk.value()));
    const double wk = std::fabs(wieGetippt(w.wk.value()));
    std::vector<Lastfallzeile> faelle;
    const int mitLast = vertikaleLast ? beide : horizontal;
    if (Fvk != 0) {
        for (const bool voll : {true, false}) {
            if (!vertikaleLast && !voll) continue;
            const std::string last = !vertikaleLast ? "" : voll ? ", volle Last" : ", kleinste Last";
            faelle.push_back(zeileMit("Fv nach rechts" + last, w, mitLast, kurz, Fvk, voll, 0));
            faelle.push_back(zeileMit("Fv nach links" + last, w, mitLast, kurz, -Fvk, voll, 0));
        }
    }
    if (vertikaleLast) {
        faelle.push_back(zeileMit("Vertikallast mittel", w, vertikal, mittel, 0, true, 0));
        faelle.push_back(zeileMit("Vertikallast ständig", w, vertikal, staendig, 0, false, 0));
    }
    if (wk != 0) {
        const int fall = vertikaleLast ? vertikal : horizontal;
        faelle.push_back(zeileMit("Winddruck", w, fall, kurz, 0, true, wk));
        faelle.push_back(zeileMit("Windsog", w, fall, kurz, 0, true, -wk));
    }
    return faelle;
}

}  // namespace rippenscheibe
