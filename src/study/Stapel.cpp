#include "study/Stapel.h"

#include <simdjson.h>

#include <algorithm>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "run/Luecken.h"
#include "run/Urteil.h"

namespace rippenscheibe {

namespace {

// So small that the answers of a block fit into what the allocator keeps ready.
constexpr std::size_t lesegroesse = std::size_t{1} << 14U;
constexpr std::size_t laengsteZeile = std::size_t{1} << 20U;
constexpr std::string_view kennung = "id";

// Whole lines as they came, with the padding that the JSON reader asks for behind them.
struct Block {
    std::string text;
    std::size_t laenge = 0;
    std::size_t ersteZeile = 1;
    bool zuLang = false;  // stands for one line that was longer than allowed
};

struct Antwort {
    std::string text;
    Stapelergebnis zaehler;
};

// Cuts the stream into blocks of whole lines.
class Leser {
  public:
    explicit Leser(const Strom& strom) : strom_(strom) {}

    std::optional<Block> naechster() {
        while (true) {
            if (const std::size_t ende = rest_.rfind('\n'); ende != std::string::npos) return nimm(ende + 1);
            if (rest_.size() > laengsteZeile) return ueberspringe();
            if (zuEnde_) return rest_.empty() ? std::nullopt : std::optional(nimm(rest_.size()));
            fuelle();
        }
    }

    // The first line alone, for the head of a table.
    std::string ersteZeile() {
        while (rest_.find('\n') == std::string::npos && rest_.size() <= laengsteZeile && !zuEnde_) fuelle();
        const std::size_t ende = std::min(rest_.find('\n'), rest_.size());
        std::string zeile = rest_.substr(0, ende);
        rest_.erase(0, ende + 1);
        ++zeile_;
        if (zeile.ends_with('\r')) zeile.pop_back();
        return zeile;
    }

  private:
    void fuelle() {
        const std::size_t alt = rest_.size();
        rest_.resize(alt + lesegroesse);
        const std::size_t gelesen = strom_.lies(rest_.data() + alt, lesegroesse);
        rest_.resize(alt + gelesen);
        zuEnde_ = gelesen == 0;
        // The byte order mark may come in pieces.
        constexpr std::string_view marke = "\xEF\xBB\xBF";
        if (!anfang_ || (rest_.size() < marke.size() && !zuEnde_)) return;
        anfang_ = false;
        if (zeile_ == 1 && rest_.starts_with(marke)) rest_.erase(0, marke.size());
    }

    Block nimm(std::size_t laenge) {
        Block block{{}, laenge, zeile_};
        block.text.reserve(laenge + simdjson::SIMDJSON_PADDING);
        block.text.assign(rest_, 0, laenge).append(simdjson::SIMDJSON_PADDING, ' ');
        rest_.erase(0, laenge);
        zeile_ += static_cast<std::size_t>(
            std::count(block.text.begin(), block.text.begin() + static_cast<std::ptrdiff_t>(laenge), '\n'));
        return block;
    }

    Block ueberspringe() {
        while (rest_.find('\n') == std::string::npos && !zuEnde_) {
            rest_.clear();
            fuelle();
        }
        const std::size_t ende = rest_.find('\n');
        rest_.erase(0, ende == std::string::npos ? ende : ende + 1);
        return {{}, 0, zeile_++, true};
    }

    const Strom& strom_;
    std::string rest_;
    std::size_t zeile_ = 1;
    bool anfang_ = true;
    bool zuEnde_ = false;
};

std::string textVon(simdjson::dom::element element) { return simdjson::minify(element); }

Feldwert wertVon(simdjson::dom::element element) {
    double zahl = 0;
    bool wahr = false;
    std::string_view text;
    if (element.get(wahr) == simdjson::SUCCESS) return wahr;
    if (element.get(zahl) == simdjson::SUCCESS) return zahl;
    if (element.get(text) == simdjson::SUCCESS) return std::string(text);
    return {};  // null, an array or an object: `einwand` refuses it
}

bool istWert(simdjson::dom::element element) {
    return !element.is_null() && !element.is_array() && !element.is_object();
}

}  // namespace

std::optional<std::string> einwandGegenFelder(std::span<const std::string> felder) {
    for (const std::string& name : felder) {
        if (eingabeindex(name) < 0 && ergebnisindex(name) < 0) return "Unbekanntes Feld: " + name;
        if (std::count(felder.begin(), felder.end(), name) > 1) return name + " steht zweimal";
    }
    return std::nullopt;
}

struct Zeilenrechner::Innen {
    explicit Innen(const Stapelauftrag& a) : auftrag(a), felder(w), zuletztGesetzt(eingabefelder().size()) {
        static_cast<Eingaben&>(w) = a.vorlage;
        w.eigeneMaterialien = a.materialien;
        for (const std::string& name : a.felder)
            ausgabefelder.emplace_back(eingabeindex(name), ergebnisindex(name));
    }

    // The template's inputs again, the texts only where a line changed one.
    void beginne(std::size_t nummer) {
        if (textGesetzt) static_cast<Positionskopf&>(w) = auftrag.vorlage;
        textGesetzt = false;
        uebernimmBemessungseingaben(auftrag.vorlage, w);
        kennungstext.clear();
        zeile = nummer;
    }

    // Sets one input; a sentence when something speaks against it.
    std::optional<std::string> setze(std::string_view name, const Feldwert& wert,
                                     std::string_view geschrieben, bool istEinzelwert) {
        const int index = eingabeindex(name);
        if (index < 0) {
            return ergebnisindex(name) < 0 ? "unbekanntes Feld \"" + std::string(name) + "\""
                                           : std::string(name) + " ist ein Ergebnis, keine Eingabe";
        }
        const Feldeintrag& feld = eingabefeld(index);
        std::size_t& zuletzt = zuletztGesetzt[static_cast<std::size_t>(index)];
        if (zuletzt == zeile) return std::string(name) + " steht zweimal";
        zuletzt = zeile;
        const Feldwert keiner = feld.typ == Feldart::text ? Feldwert(0.0) : Feldwert(std::string());
        if (auto satz = einwand(feld, istEinzelwert ? wert : keiner, geschrieben, auftrag.grenzen))
            return satz;
        textGesetzt = textGesetzt || feld.typ == Feldart::text;
        felder.setze(index, wert);
        return std::nullopt;
    }

    std::optional<std::string> liesJson(std::string_view text) {
        simdjson::dom::element wurzel;
        if (leser.parse(text.data(), text.size(), false).get(wurzel) != simdjson::SUCCESS)
            return "kein gültiges JSON";
        simdjson::dom::object objekt;
        if (wurzel.get(objekt) != simdjson::SUCCESS) return "kein JSON-Objekt";
        simdjson::dom::element id;
        if (objekt.at_key(kennung).get(id) == simdjson::SUCCESS) kennungstext = textVon(id);
        for (const auto& [name, element] : objekt) {
            if (name == kennung) continue;
            const bool einzeln = istWert(element);
            if (auto satz = setze(name, wertVon(element), textVon(element), einzeln)) return satz;
        }
        return std::nullopt;
    }

    std::optional<std::string> liesCsv(std::string_view text) {
        const auto zellen = zellenAus(text, auftrag.csv);
        if (!zellen) return "Anführungszeichen nicht geschlossen";
        if (zellen->size() != spalten.size())
            return std::to_string(zellen->size()) + " Werte statt " + std::to_string(spalten.size());
        for (std::size_t i = 0; i < spalten.size(); ++i)
            if (spalten[i] == kennung) anfuegeJsonText(kennungstext, (*zellen)[i]);
        for (std::size_t i = 0; i < spalten.size(); ++i) {
            const std::string& zelle = (*zellen)[i];
            if (spalten[i] == kennung || zelle.empty()) continue;
            const Feldeintrag& feld = eingabefeld(eingabeindex(spalten[i]));
            const bool istText = feld.typ == Feldart::text;
            const auto wert = feldwertAus(feld, istText ? zelle : mitPunkt(zelle, auftrag.csv));
            const std::string geschrieben = wert && !istText ? zelle : "\"" + zelle + "\"";
            if (auto satz = setze(spalten[i], wert.value_or(Feldwert(zelle)), geschrieben, wert.has_value()))
                return satz;
        }
        return std::nullopt;
    }

    // What the line answers, member by member.
    template <class Schreibe>
    void jedesGlied(bool gerechnet, const Schreibe& glied) {
        const Urteil u = urteil(w, gerechnet ? Laufergebnis::gerechnet : Laufergebnis::hinweise);
        const auto texte = [](const auto& saetze) {
            std::string text = "[";
            for (const std::string& satz : saetze) {
                if (text.size() > 1) text += ',';
                anfuegeJsonText(text, satz);
            }
            return text + ']';
        };
        const auto oderNull = [](bool da, auto anfuege) {
            std::string text;
            if (da) anfuege(text);
            return da ? text : std::string("null");
        };
        glied("erfuellt", !gerechnet ? "null" : w.AlleNachweiseErfuellt ? "true" : "false");
        glied("maxEta", oderNull(u.maxEta.has_value(), [&](std::string& t) { anfuegeZahl(t, *u.maxEta); }));
        glied("massgebend",
              oderNull(u.massgebend.has_value(), [&](std::string& t) { anfuegeJsonText(t, *u.massgebend); }));
        glied("hinweise", texte(rippenscheibe::texte(w.Hinweise)));
        glied("luecken", gerechnet ? texte(lueckensaetze(w)) : "[]");
        for (std::size_t i = 0; i < ausgabefelder.size(); ++i) {
            const auto [eingabe, ergebnis] = ausgabefelder[i];
            wertpuffer.clear();
            if (eingabe >= 0) {
                felder.anfuegeEingabe(wertpuffer, eingabe);
            } else if (gerechnet) {
                felder.anfuegeErgebnis(wertpuffer, ergebnis);
            } else {
                wertpuffer = "null";
            }
            glied(auftrag.felder[i], wertpuffer);
        }
    }

    void antworteJson(std::string& aus, const std::optional<std::string>& fehler, bool gerechnet) {
        aus += '{';
        if (!kennungstext.empty()) aus.append("\"id\":").append(kennungstext).append(",");
        if (fehler) {
            aus += "\"ok\":false,\"error\":";
            anfuegeJsonText(aus, *fehler);
        } else {
            aus += "\"ok\":true";
            jedesGlied(gerechnet, [&](std::string_view name, std::string_view wert) {
                aus.append(",\"").append(name).append("\":").append(wert);
            });
        }
        aus += "}\n";
    }

    void antworteCsv(std::string& aus, const std::optional<std::string>& fehler, bool gerechnet) {
        std::vector<std::string> zellen{zelle(kennungstext), fehler ? "false" : "true", fehler.value_or("")};
        if (fehler) {
            zellen.resize(spaltenVorFeldern + auftrag.felder.size());
        } else {
            jedesGlied(gerechnet,
                       [&](std::string_view, std::string_view wert) { zellen.push_back(zelle(wert)); });
        }
        aus += csvZeile(zellen, auftrag.csv);
    }

    void antworte(std::string& aus, const std::optional<std::string>& fehler, bool gerechnet) {
        if (auftrag.ausgabe == Zeilenform::csv) {
            antworteCsv(aus, fehler, gerechnet);
        } else {
            antworteJson(aus, fehler, gerechnet);
        }
    }

    void verwirf(std::string_view grund, std::size_t nummer, std::string& aus, Stapelergebnis& zaehler) {
        ++zaehler.zeilen;
        ++zaehler.fehlerhaft;
        antworte(aus, "Zeile " + std::to_string(nummer) + ": " + std::string(grund), false);
    }

    std::string zelle(std::string_view json) const { return zelleAusJson(json, auftrag.csv); }

    static constexpr std::size_t spaltenVorFeldern = 8;

    const Stapelauftrag& auftrag;
    Wand w;
    Feldzugriff felder;
    simdjson::dom::parser leser;
    std::vector<std::string> spalten;
    std::vector<std::pair<int, int>> ausgabefelder;  // place among inputs and results, one of them -1
    std::vector<std::size_t> zuletztGesetzt;         // line that last set the input
    std::string kennungstext;
    std::string wertpuffer;
    std::size_t zeile = 0;
    bool textGesetzt = false;
};

Zeilenrechner::Zeilenrechner(const Stapelauftrag& auftrag) : innen_(std::make_unique<Innen>(auftrag)) {}
Zeilenrechner::~Zeilenrechner() = default;
Zeilenrechner::Zeilenrechner(Zeilenrechner&&) noexcept = default;

std::optional<std::string> Zeilenrechner::setzeKopf(std::string_view kopfzeile) {
    const auto zellen = zellenAus(kopfzeile, innen_->auftrag.csv);
    if (!zellen) return "Anführungszeichen nicht geschlossen";
    for (const std::string& name : *zellen) {
        if (name != kennung && eingabeindex(name) < 0) return "unbekanntes Feld \"" + name + "\"";
        if (std::count(zellen->begin(), zellen->end(), name) > 1) return name + " steht zweimal";
    }
    innen_->spalten = *zellen;
    return std::nullopt;
}

void Zeilenrechner::rechne(std::string_view zeile, std::size_t nummer, std::string& aus,
                           Stapelergebnis& zaehler) {
    Innen& in = *innen_;
    in.beginne(nummer);
    const bool csv = in.auftrag.eingabe == Zeilenform::csv;
    if (const auto fehler = csv ? in.liesCsv(zeile) : in.liesJson(zeile)) {
        in.verwirf(*fehler, nummer, aus, zaehler);
        return;
    }
    const bool gerechnet = rechneFrisch(in.w, in.auftrag.laeufe) == Laufergebnis::gerechnet;
    ++zaehler.zeilen;
    if (!gerechnet) ++zaehler.mitHinweisen;
    if (gerechnet && !in.w.AlleNachweiseErfuellt) ++zaehler.nichtErfuellt;
    in.antworte(aus, std::nullopt, gerechnet);
}

void Zeilenrechner::verwirf(std::string_view grund, std::size_t nummer, std::string& aus,
                            Stapelergebnis& zaehler) {
    innen_->beginne(nummer);
    innen_->verwirf(grund, nummer, aus, zaehler);
}

std::string Zeilenrechner::kopf() const {
    if (innen_->auftrag.ausgabe == Zeilenform::json) return {};
    std::vector<std::string> namen{"id",     "ok",         "error",    "erfuellt",
                                   "maxEta", "massgebend", "hinweise", "luecken"};
    namen.insert(namen.end(), innen_->auftrag.felder.begin(), innen_->auftrag.felder.end());
    return csvZeile(namen, innen_->auftrag.csv);
}

Stapelergebnis stapel(const Stapelauftrag& auftrag, const Strom& strom, const Ausfuehrung& ausfuehrung) {
    Leser leser(strom);
    Stapelergebnis summe;
    std::string kopfzeile;
    Zeilenrechner erster(auftrag);
    if (const std::string kopf = erster.kopf(); !kopf.empty() && !strom.schreibe(kopf)) return summe;
    if (auftrag.eingabe == Zeilenform::csv) {
        kopfzeile = leser.ersteZeile();
        if (const auto fehler = erster.setzeKopf(kopfzeile)) {
            std::string text;
            erster.verwirf(*fehler, 1, text, summe);
            strom.schreibe(text);
            return summe;
        }
    }

    const auto werkstatt = [&] {
        Zeilenrechner rechner(auftrag);
        if (auftrag.eingabe == Zeilenform::csv) rechner.setzeKopf(kopfzeile);
        return rechner;
    };
    const auto rechne = [](Zeilenrechner& rechner, const Block& block) {
        Antwort antwort;
        const auto verwirf = [&](std::size_t nummer) {
            rechner.verwirf("länger als 1 MiB", nummer, antwort.text, antwort.zaehler);
        };
        if (block.zuLang) verwirf(block.ersteZeile);
        std::string_view rest = std::string_view(block.text).substr(0, block.laenge);
        for (std::size_t nummer = block.ersteZeile; !rest.empty(); ++nummer) {
            const std::size_t ende = std::min(rest.find('\n'), rest.size());
            std::string_view zeile = rest.substr(0, ende);
            rest.remove_prefix(std::min(ende + 1, rest.size()));
            // However the stream came in pieces.
            if (zeile.size() > laengsteZeile) {
                verwirf(nummer);
                continue;
            }
            if (zeile.ends_with('\r')) zeile.remove_suffix(1);
            rechner.rechne(zeile, nummer, antwort.text, antwort.zaehler);
        }
        return antwort;
    };
    fliessband(
        ausfuehrung, [&] { return leser.naechster(); }, werkstatt, rechne,
        [&](const Antwort& antwort) {
            summe.zeilen += antwort.zaehler.zeilen;
            summe.fehlerhaft += antwort.zaehler.fehlerhaft;
            summe.nichtErfuellt += antwort.zaehler.nichtErfuellt;
            summe.mitHinweisen += antwort.zaehler.mitHinweisen;
            return strom.schreibe(antwort.text);
        });
    return summe;
}

std::string stapelschema() {
    nlohmann::ordered_json eigenschaften;
    eigenschaften["id"]["description"] = "Kennung, kommt unverändert zurück";
    for (const Feldeintrag& feld : eingabefelder()) {
        if (feld.typ == Feldart::feld) continue;
        auto& eintrag = eigenschaften[std::string(feld.angabe.name)];
        eintrag["type"] = feld.typ == Feldart::wahr   ? "boolean"
                          : feld.typ == Feldart::text ? "string"
                          : feld.typ == Feldart::i16  ? "integer"
                                                      : "number";
        if (feld.bereich) {
            eintrag["minimum"] = feld.bereich->von;
            eintrag["maximum"] = feld.bereich->bis;
        }
        std::string bedeutung(feld.angabe.bedeutung);
        if (!feld.angabe.einheit.empty()) bedeutung.append(" [").append(feld.angabe.einheit).append("]");
        eintrag["description"] = bedeutung;
    }
    nlohmann::ordered_json schema;
    schema["$schema"] = "https://json-schema.org/draft/2020-12/schema";
    schema["title"] = "Eine Wand: Eingaben, die von der Vorlage abweichen";
    schema["type"] = "object";
    schema["properties"] = eigenschaften;
    schema["additionalProperties"] = false;
    return schema.dump(2) + "\n";
}

}  // namespace rippenscheibe
