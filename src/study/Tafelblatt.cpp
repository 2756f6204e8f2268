#include "study/Tafelblatt.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <sstream>

#include "basis/Utf8.h"

namespace rippenscheibe {

namespace {

// A page of paragraphs and one table in rich text: A4, margins of 2 cm, pure ASCII.
class Rtfseite {
  public:
    void absatz(const std::string& text) { rtf_ += "\\pard\\keep " + escaped(text) + "\\par\n"; }
    // Never stands alone at the end of a page.
    void ueberschrift(const std::string& text) {
        rtf_ += "\\pard\\keepn\\b " + escaped(text) + "\\b0\\par\n";
    }
    // Rows under a head that stands again on each page, together on one page where they fit.
    void tabelle(const std::vector<std::vector<std::string>>& zeilen) {
        constexpr std::size_t breite = 9638;  // twips between the margins
        for (const auto& zeile : zeilen) {
            const bool kopf = &zeile == zeilen.data();
            const bool letzte = &zeile == &zeilen.back();
            rtf_ += std::string("\\trowd\\trgaph70\\trkeep") + (kopf ? "\\trhdr" : "");
            for (std::size_t i = 1; i <= zeile.size(); ++i)
                rtf_ += "\\clbrdrb\\brdrs\\brdrw10\\cellx" + std::to_string(breite * i / zeile.size());
            rtf_ += '\n';
            for (const std::string& zelle : zeile)
                rtf_ += std::string("\\pard\\intbl") + (letzte ? "" : "\\keepn") +
                        (&zelle == zeile.data() ? "" : "\\qr") + " " + escaped(zelle) + "\\cell ";
            rtf_ += "\\row\n";
        }
        rtf_ += "\\pard\\par\n";
    }
    std::string fertig() && { return rtf_ + "}\n"; }

  private:
    static std::string escaped(std::string_view text) {
        std::string aus;
        while (!text.empty()) {
            const Zeichen c = erstesZeichen(text).value_or(Zeichen{U'?', 1});
            text.remove_prefix(c.laenge);
            if (c.zeichen == '{' || c.zeichen == '}' || c.zeichen == '\\') {
                aus.append({'\\', static_cast<char>(c.zeichen)});
            } else if (c.zeichen < 0x80) {
                if (c.zeichen >= 0x20) aus += static_cast<char>(c.zeichen);
            } else {
                // German texts hold nothing beyond 16 bits.
                aus += "\\u" + std::to_string(static_cast<std::int16_t>(c.zeichen & 0xFFFFU)) + "?";
            }
        }
        return aus;
    }

    std::string rtf_ =
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\\paperw11906\\paperh16838\\margl1134\\margr1134"
        "\\margt1134\\margb1134\\f0\\fs20\n";
};

bool setzt(const Achse& achse, int feld) {
    return std::find(achse.felder.begin(), achse.felder.end(), feld) != achse.felder.end();
}

bool setzenLastfaelle(const Bewertungsregel& regel, int feld) {
    return std::any_of(regel.lastfaelle.begin(), regel.lastfaelle.end(), [&](const Lastfallzeile& fall) {
        return std::any_of(fall.werte.begin(), fall.werte.end(),
                           [&](const auto& wert) { return wert.first == feld; });
    });
}

Angaben festeEingaben(const Tafelauftrag& auftrag) {
    Wand w;
    static_cast<Eingaben&>(w) = auftrag.vorlage;
    const Feldzugriff felder(w);
    const std::array achsen{&auftrag.groesste, &auftrag.zeilen, &auftrag.spalten};
    Angaben angaben;
    for (int feld = eingabeindex("Wandlaenge"); feld < static_cast<int>(eingabefelder().size()); ++feld) {
        if (std::any_of(achsen.begin(), achsen.end(), [&](const Achse* a) { return setzt(*a, feld); }))
            continue;
        angaben.emplace_back(eingabefeld(feld).angabe.name, setzenLastfaelle(auftrag.regel, feld)
                                                                ? "je Lastfall"
                                                                : eingabetext(felder, feld));
    }
    return angaben;
}

// The fields of an axis with what they mean: "av1,av2 (Abstand der Verbindungsmittel, mm)".
std::string mitBedeutung(const Achse& achse) {
    if (achse.felder.empty()) return achse.name;
    const Feldangabe& angabe = eingabefeld(achse.felder.front()).angabe;
    std::string text = achse.name + " (" + std::string(angabe.bedeutung);
    if (!angabe.einheit.empty() && angabe.einheit != "-") text.append(", ").append(angabe.einheit);
    return text + ")";
}

// When a wall passes.
std::string regeltext(const Bewertungsregel& regel) {
    std::string text =
        "Eine Wand besteht, wenn erster und zweiter Lauf keinen Hinweis geben und alle "
        "Nachweise erfüllen, ";
    text += regel.beideRichtungen ? "mit beiden Vorzeichen von Fv,k" : "mit Fv,k wie eingegeben";
    text += regel.mitLuecken ? "; auch wenn etwas Gefordertes nicht nachgewiesen ist"
                             : " und nichts Gefordertes offen ist";
    for (const Lastfallzeile& fall : regel.lastfaelle)
        text.append(&fall == regel.lastfaelle.data() ? "; in allen Lastfällen: " : ", ").append(fall.name);
    return text + ".";
}

}  // namespace

Tafelblatt tafelblatt(const Tafelauftrag& auftrag, const Tafel& tafel) {
    const Eingaben& kopf = auftrag.vorlage;
    Tafelblatt blatt;
    blatt.titel = "Bemessungstafel nach DIN 1052 (2008)";
    if (!kopf.Projekt.empty()) blatt.kopf.emplace_back("Projekt", kopf.Projekt);
    blatt.kopf.emplace_back("Position", kopf.Position + " " + kopf.PositionsBemerkung);
    if (!kopf.Datum.empty()) blatt.kopf.emplace_back("Datum", kopf.Datum);
    blatt.gegenstand = {"In jeder Zelle: größter Wert von " + mitBedeutung(auftrag.groesste) +
                            ", bis zu dem jeder Wert der Suche besteht",
                        "Zeilen: " + mitBedeutung(auftrag.zeilen),
                        "Spalten: " + mitBedeutung(auftrag.spalten), regeltext(auftrag.regel)};
    blatt.zellen = tafelzeilen(auftrag, tafel, ',');
    std::istringstream legende(tafellegende(tafel));
    for (std::string zeile; std::getline(legende, zeile);) blatt.legende.push_back(zeile);
    blatt.feste = festeEingaben(auftrag);
    blatt.vorbehalt =
        "Die ständigen Lasten sind feste Werte; kleinere können für die Verankerung ungünstiger sein.";
    return blatt;
}

std::string tafelRtf(const Tafelblatt& blatt) {
    Rtfseite seite;
    seite.ueberschrift(blatt.titel);
    for (const auto& [name, wert] : blatt.kopf) seite.absatz(std::string(name).append(": ").append(wert));
    for (const std::string& satz : blatt.gegenstand) seite.absatz(satz);
    seite.tabelle(blatt.zellen);
    for (const std::string& zeile : blatt.legende) seite.absatz(zeile);
    seite.ueberschrift("Feste Eingaben");
    std::string feste;
    for (const auto& [name, wert] : blatt.feste)
        feste.append(feste.empty() ? "" : ", ").append(name).append(" = ").append(wert);
    seite.absatz(feste);
    seite.absatz(blatt.vorbehalt);
    return std::move(seite).fertig();
}

}  // namespace rippenscheibe
