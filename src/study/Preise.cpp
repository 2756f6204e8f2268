#include "study/Preise.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "files/Dateischreiber.h"
#include "files/Pfad.h"
#include "model/Kataloge.h"
#include "study/Felder.h"

namespace rippenscheibe {

namespace {

std::string inAnfuehrung(std::string_view text) { return "\"" + std::string(text) + "\""; }

std::string_view holzname(const Wand& w) { return eintrag(Holzarten(), w.Holzart.value()); }
std::string_view vmName(const Wand& w, Seite n) { return eintrag(VMArten(), w.VMArt[n].value()); }

}  // namespace

std::variant<Preise, std::string> Preise::aus(std::string_view text, const Csvform& form) {
    Preise preise;
    std::size_t nummer = 0;
    bool kopf = true;
    for (const std::string_view zeile : zeilenVon(text)) {
        const std::string ort = "Zeile " + std::to_string(++nummer) + ": ";
        if (zeile.starts_with('#') && preise.herkunft_.empty())
            preise.herkunft_ = zeile.substr(std::min<std::size_t>(2, zeile.size()));
        if (zeile.empty() || zeile.starts_with('#')) continue;
        if (std::exchange(kopf, false)) continue;
        const auto zellen = zellenAus(zeile, form);
        if (!zellen || zellen->size() < 4) return ort + "erwartet Art;Name;Dicke;Preis";
        const auto zahl = [&](std::size_t spalte) {
            const auto wert = feldwertAus({{}, Feldart::f64, {}}, mitPunkt((*zellen)[spalte], form));
            return wert ? std::optional(std::get<double>(*wert)) : std::nullopt;
        };
        const auto preis = zahl(3);
        if (!preis || !(*preis > 0)) return ort + inAnfuehrung((*zellen)[3]) + " ist kein Preis";
        const std::string& art = zellen->front();
        const std::string& name = (*zellen)[1];
        bool neu = true;
        if (art == "Platte") {
            const auto mm = zahl(2);
            if (!mm) return ort + inAnfuehrung((*zellen)[2]) + " ist keine Dicke";
            neu = preise.platte(name, *mm) == nullptr;
            preise.platten_.push_back({name, *mm, *preis});
        } else if (auto* liste = preise.liste(art)) {
            neu = suche(*liste, name) == nullptr;
            liste->push_back({name, *preis});
        } else {
            return ort + inAnfuehrung(art) + " ist keine Art (Platte, Holz, Verbindungsmittel, Anker)";
        }
        if (!neu)
            return std::string(ort).append(art).append(" ").append(inAnfuehrung(name)) + " steht zweimal";
    }
    return preise;
}

std::variant<Preise, std::string> Preise::ausDatei(const std::filesystem::path& datei, const Csvform& form) {
    const Dateiinhalt inhalt = liesDatei(datei);
    if (inhalt.fehler) return inhalt.fehler->text;
    auto preise = aus(tabellentext(inhalt.bytes), form);
    if (auto* fehler = std::get_if<std::string>(&preise)) return pfadtext(datei) + ": " + *fehler;
    return preise;
}

std::variant<Preise, std::string> Preise::lade(const std::filesystem::path& programmordner,
                                               const Csvform& form) {
    const std::filesystem::path datei = programmordner / preisdatei;
    if (liesDatei(datei).lage != Dateilage::fehlt) return ausDatei(datei, form);
    auto preise = aus(geliefertePreise());
    if (auto* geliefert = std::get_if<Preise>(&preise))
        geliefert->herkunft_ = "Preise: mitgelieferte Beispielpreise, ohne Gewähr";
    return preise;
}

const Preise::Preis* Preise::suche(const std::vector<Preis>& preise, std::string_view name) {
    const auto treffer =
        std::find_if(preise.begin(), preise.end(), [&](const Preis& p) { return p.name == name; });
    return treffer == preise.end() ? nullptr : &*treffer;
}

std::vector<Preise::Preis>* Preise::liste(std::string_view art) {
    if (art == "Holz") return &holz_;
    if (art == "Verbindungsmittel") return &verbindungsmittel_;
    if (art == "Anker") return &anker_;
    return nullptr;
}

const Preise::Plattenpreis* Preise::platte(std::string_view material, double dicke) const {
    const auto treffer = std::find_if(platten_.begin(), platten_.end(), [&](const Plattenpreis& p) {
        return p.material == material && p.dicke == dicke;
    });
    return treffer == platten_.end() ? nullptr : &*treffer;
}

std::optional<double> Preise::kosten(const Wand& w, const Reihenregel& regel) const {
    const Mengensummen m = mengensummen(w, regel);
    const Preis* const holz = suche(holz_, holzname(w));
    if (holz == nullptr) return std::nullopt;
    double summe = m.holz * holz->preis;
    for (const Seite n : beideSeiten) {
        if (!beplankt(w, n)) continue;
        const Plattenpreis* const tafel = platte(beplankungsname(w, n), plattendicke(w, n));
        const Preis* const vm = suche(verbindungsmittel_, vmName(w, n));
        if (tafel == nullptr || vm == nullptr) return std::nullopt;
        summe += m.platten[n] * tafel->preis + m.verbindungsmittel[n] * vm->preis;
    }
    if (m.anker > 0) {
        const Preis* const anker = suche(anker_, ankername(w));
        if (anker == nullptr) return std::nullopt;
        summe += m.anker * anker->preis;
    }
    return std::nearbyint(summe * 100) / 100;
}

std::string Preise::fehlenderPreis(const Wand& w) const {
    const auto satz = [](std::string_view was, std::string_view name) {
        return "kein Preis für " + std::string(was) + " \"" + std::string(name) + "\"";
    };
    if (suche(holz_, holzname(w)) == nullptr) return satz("Holz", holzname(w));
    for (const Seite n : beideSeiten) {
        if (!beplankt(w, n)) continue;
        if (platte(beplankungsname(w, n), plattendicke(w, n)) == nullptr)
            return satz("Platte", beplankungsname(w, n)) + " mit " + kommatext(plattendicke(w, n)) + " mm";
        if (suche(verbindungsmittel_, vmName(w, n)) == nullptr)
            return satz("Verbindungsmittel", vmName(w, n));
    }
    return satz("Anker", ankername(w));
}

}  // namespace rippenscheibe
