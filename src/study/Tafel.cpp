#include "study/Tafel.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <sstream>

#include "basis/Utf8.h"

namespace rippenscheibe {

namespace {

// "a" to "z", then "aa" and so on.
std::string zeichenVon(std::ptrdiff_t stelle) {
    std::string zeichen;
    for (; stelle >= 0; stelle = stelle / 26 - 1)
        zeichen.insert(zeichen.begin(), static_cast<char>('a' + stelle % 26));
    return zeichen;
}

// A page of paragraphs and one table in rich text: A4, margins of 2 cm, pure ASCII.
class Rtfseite {
  public:
    void absatz(const std::string& text, bool fett = false) {
        rtf_ +=
            std::string("\\pard ") + (fett ? "\\b " : "") + escaped(text) + (fett ? "\\b0" : "") + "\\par\n";
    }
    void tabelle(const std::vector<std::vector<std::string>>& zeilen) {
        constexpr std::size_t breite = 9638;  // twips between the margins
        for (const auto& zeile : zeilen) {
            rtf_ += "\\trowd\\trgaph70";
            for (std::size_t i = 1; i <= zeile.size(); ++i)
                rtf_ += "\\clbrdrb\\brdrs\\brdrw10\\cellx" + std::to_string(breite * i / zeile.size());
            rtf_ += '\n';
            for (const std::string& zelle : zeile)
                rtf_ += "\\pard\\intbl" + std::string(&zelle == zeile.data() ? "" : "\\qr") + " " +
                        escaped(zelle) + "\\cell ";
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

// All inputs of the calculation that no axis sets, by name and value.
std::string festeEingaben(const Tafelauftrag& auftrag) {
    Wand w;
    static_cast<Eingaben&>(w) = auftrag.vorlage;
    const Feldzugriff felder(w);
    const auto gesetzt = [&](int feld) {
        const std::array achsen{&auftrag.groesste, &auftrag.zeilen, &auftrag.spalten};
        return std::any_of(achsen.begin(), achsen.end(), [&](const Achse* achse) {
            return std::find(achse->felder.begin(), achse->felder.end(), feld) != achse->felder.end();
        });
    };
    std::string text;
    for (int feld = eingabeindex("Wandlaenge"); feld < static_cast<int>(eingabefelder().size()); ++feld) {
        if (gesetzt(feld)) continue;
        if (!text.empty()) text += ", ";
        text.append(eingabefelder()[static_cast<std::size_t>(feld)].angabe.name).append(" = ");
        felder.anfuegeEingabe(text, feld);
    }
    return text;
}

Tafelzelle zelle(const Tafelauftrag& auftrag, Pruefstand& stand, const Achsenwert& zeile,
                 const Achsenwert& spalte, const std::stop_token& halt) {
    const auto setze = [&](const Achsenwert& wert) {
        stand.beginne();
        for (const Achsenwert* achsenwert : {&zeile, &spalte, &wert})
            for (const auto& [feld, gesetzt] : achsenwert->setzt) stand.felder().setze(feld, gesetzt);
    };
    Tafelzelle z;
    bool vorherBestanden = false;
    for (std::size_t i = 0; i < auftrag.groesste.werte.size() && !halt.stop_requested(); ++i) {
        const Achsenwert& wert = auftrag.groesste.werte[i];
        setze(wert);
        const bool besteht = stand.besteht();
        if (besteht && !vorherBestanden) z.intervalle.emplace_back(wert.text, wert.text);
        if (besteht) z.intervalle.back().second = wert.text;
        vorherBestanden = besteht;
        if (besteht || !z.massgebend.empty()) continue;
        if (!z.intervalle.empty()) z.groesste = z.intervalle.front().second;
        setze(wert);
        z.massgebend = scheitertAn(stand.bewerte(), auftrag.regel);
    }
    if (z.massgebend.empty() && !z.intervalle.empty()) z.groesste = z.intervalle.front().second;
    return z;
}

}  // namespace

Tafel bemessungstafel(const Tafelauftrag& auftrag, const Ausfuehrung& ausfuehrung) {
    const std::size_t breite = auftrag.spalten.werte.size();
    const std::size_t anzahl = auftrag.zeilen.werte.size() * breite;
    Tafel tafel;
    tafel.zellen.resize(auftrag.zeilen.werte.size(), std::vector<Tafelzelle>(breite));
    std::size_t fertig = 0;
    fliessband(
        ausfuehrung,
        [anzahl, i = std::size_t{0}]() mutable -> std::optional<std::size_t> {
            return i < anzahl ? std::optional(i++) : std::nullopt;
        },
        [&] { return Pruefstand(auftrag.vorlage, auftrag.materialien, auftrag.regel); },
        [&](Pruefstand& stand, std::size_t i) {
            return zelle(auftrag, stand, auftrag.zeilen.werte[i / breite], auftrag.spalten.werte[i % breite],
                         ausfuehrung.halt);
        },
        [&](Tafelzelle z) {
            tafel.zellen[fertig / breite][fertig % breite] = std::move(z);
            ++fertig;
            if (ausfuehrung.fortschritt) ausfuehrung.fortschritt({fertig, anzahl, fertig});
            return true;
        });
    tafel.vollstaendig = fertig == anzahl && !ausfuehrung.halt.stop_requested();
    return tafel;
}

std::vector<std::string> massgebende(const Tafel& tafel) {
    std::vector<std::string> alle;
    for (const auto& zeile : tafel.zellen)
        for (const Tafelzelle& z : zeile)
            if (!z.massgebend.empty() && std::find(alle.begin(), alle.end(), z.massgebend) == alle.end())
                alle.push_back(z.massgebend);
    return alle;
}

std::vector<std::vector<std::string>> tafelzeilen(const Tafelauftrag& auftrag, const Tafel& tafel,
                                                  char dezimal) {
    const std::vector<std::string> zeichen = massgebende(tafel);
    const auto mitZeichen = [&](std::string text) {
        std::replace(text.begin(), text.end(), '.', dezimal);
        return text;
    };
    std::vector<std::vector<std::string>> zeilen(1, {auftrag.zeilen.name + " \\ " + auftrag.spalten.name});
    for (const Achsenwert& spalte : auftrag.spalten.werte) zeilen[0].push_back(mitZeichen(spalte.text));
    for (std::size_t i = 0; i < tafel.zellen.size(); ++i) {
        auto& zeile = zeilen.emplace_back();
        zeile.push_back(mitZeichen(auftrag.zeilen.werte[i].text));
        for (const Tafelzelle& z : tafel.zellen[i]) {
            std::string text = z.besteht() ? mitZeichen(z.groesste) : "–";
            if (z.hatLoecher()) text += "*";
            const auto stelle = std::find(zeichen.begin(), zeichen.end(), z.massgebend);
            if (stelle != zeichen.end()) text.append(" ").append(zeichenVon(stelle - zeichen.begin()));
            zeile.push_back(text);
        }
    }
    return zeilen;
}

std::string tafellegende(const Tafel& tafel) {
    std::string text;
    const std::vector<std::string> zeichen = massgebende(tafel);
    for (std::size_t i = 0; i < zeichen.size(); ++i)
        text += zeichenVon(static_cast<std::ptrdiff_t>(i)) + "  " + zeichen[i] + "\n";
    bool loecher = false;
    bool striche = false;
    for (const auto& zeile : tafel.zellen)
        for (const Tafelzelle& z : zeile) {
            loecher = loecher || z.hatLoecher();
            striche = striche || !z.besteht();
        }
    if (striche) text += "–  schon der Anfang besteht nicht\n";
    if (loecher) text += "*  ein größerer Wert besteht wieder\n";
    return text;
}

std::string tafelRtf(const Tafelauftrag& auftrag, const Tafel& tafel, const Eingaben& kopf) {
    Rtfseite seite;
    seite.absatz("Bemessungstafel nach DIN 1052 (2008)", true);
    if (!kopf.Projekt.empty()) seite.absatz("Projekt: " + kopf.Projekt);
    seite.absatz("Position: " + kopf.Position + " " + kopf.PositionsBemerkung);
    if (!kopf.Datum.empty()) seite.absatz("Datum: " + kopf.Datum);
    seite.absatz("Größter Wert von " + auftrag.groesste.name + ", Zeilen: " + auftrag.zeilen.name +
                 ", Spalten: " + auftrag.spalten.name);
    seite.tabelle(tafelzeilen(auftrag, tafel, ','));
    std::istringstream legende(tafellegende(tafel));
    for (std::string zeile; std::getline(legende, zeile);) seite.absatz(zeile);
    seite.absatz("Feste Eingaben", true);
    seite.absatz(festeEingaben(auftrag));
    seite.absatz(
        "Die ständigen Lasten sind feste Werte; kleinere können für die Verankerung ungünstiger sein.");
    return std::move(seite).fertig();
}

}  // namespace rippenscheibe
