#include "report/Rtfausgabe.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string_view>

#include "basis/Laengenmass.h"
#include "basis/Utf8.h"

namespace rippenscheibe {

namespace {

// The next character of a UTF-8 text, which it is cut by. A byte that is part of none is U+FFFD.
char32_t naechstesZeichen(std::string_view& text) {
    constexpr char32_t ersatz = 0xFFFD;
    const std::optional<Zeichen> zeichen = erstesZeichen(text);
    text.remove_prefix(zeichen ? zeichen->laenge : 1);
    return zeichen ? zeichen->zeichen : ersatz;
}

// A byte of Windows-1252 in hexadecimal.
void haengeByteAn(std::string& rtf, unsigned char byte) {
    constexpr std::string_view ziffern = "0123456789abcdef";
    rtf += "\\'";
    rtf += ziffern[byte >> 4U];
    rtf += ziffern[byte & 0x0FU];
}

// One UTF-16 unit as RTF writes it: a signed 16-bit number, then one character for readers that know no
// Unicode. That is written in hexadecimal because some readers drop the word behind a plain one.
void haengeEinheitAn(std::string& rtf, char32_t einheit) {
    const bool inLatin1 = einheit >= 0xA0 && einheit <= 0xFF;
    rtf += "\\u" + std::to_string(static_cast<std::int16_t>(static_cast<std::uint16_t>(einheit)));
    haengeByteAn(rtf, inLatin1 ? static_cast<unsigned char>(einheit) : '?');
}

void haengeZeichenAn(std::string& rtf, char32_t zeichen) {
    if (zeichen == U'\n') {
        rtf += "\\line ";
    } else if (zeichen == U'\t') {
        rtf += "\\tab ";
    } else if (zeichen < 0x20 || zeichen == 0x7F) {
        return;  // no control character is text
    } else if (zeichen == U'\\' || zeichen == U'{' || zeichen == U'}') {
        rtf += '\\';
        rtf += static_cast<char>(zeichen);
    } else if (zeichen < 0x80) {
        rtf += static_cast<char>(zeichen);
    } else if (zeichen < 0x10000) {
        haengeEinheitAn(rtf, zeichen);
    } else {
        haengeEinheitAn(rtf, 0xD800U + ((zeichen - 0x10000U) >> 10U));
        haengeEinheitAn(rtf, 0xDC00U + ((zeichen - 0x10000U) & 0x3FFU));
    }
}

// A blank at the start or behind another blank is written in hexadecimal: some readers join blanks.
void haengeTextAn(std::string& rtf, std::string_view text) {
    char32_t voriges = U' ';
    while (!text.empty()) {
        const char32_t zeichen = naechstesZeichen(text);
        if (zeichen == U' ' && voriges == U' ') {
            haengeByteAn(rtf, ' ');
        } else {
            haengeZeichenAn(rtf, zeichen);
        }
        voriges = zeichen;
    }
}

// The different values of a table in the order of their first use.
template <class T>
std::size_t stelle(std::vector<T>& tabelle, const T& wert) {
    const auto it = std::find(tabelle.begin(), tabelle.end(), wert);
    if (it != tabelle.end()) return static_cast<std::size_t>(it - tabelle.begin());
    tabelle.push_back(wert);
    return tabelle.size() - 1;
}

bool istLeer(const Absatz& absatz) { return absatz.laeufe.empty() && absatz.bilder.empty(); }

// A line that is bold from end to end. The running text may have been edited, so it carries no styles.
bool istUeberschrift(const Absatz& absatz) {
    return !absatz.laeufe.empty() && absatz.bilder.empty() &&
           std::all_of(absatz.laeufe.begin(), absatz.laeufe.end(),
                       [](const Textlauf& lauf) { return lauf.schrift.fett; });
}

class Schreiber {
  public:
    std::string schreibe(const Fliesstext& text) {
        stelle(schriften_, std::string("Arial"));
        for (const Absatz& absatz : text) schreibeAbsatz(absatz);
        return kopf() + rumpf_ + "}\n";
    }

  private:
    void schreibeAbsatz(const Absatz& absatz) {
        bleibtBeimNaechsten_ = istUeberschrift(absatz) || (istLeer(absatz) && bleibtBeimNaechsten_);
        rumpf_ += bleibtBeimNaechsten_ ? "\\pard\\keepn\\plain\\f0\\fs20 " : "\\pard\\plain\\f0\\fs20 ";
        for (const Textlauf& lauf : absatz.laeufe) schreibeLauf(lauf);
        for (const Textbild& bild : absatz.bilder) schreibeBild(bild);
        rumpf_ += "\\par\n";
    }

    void schreibeLauf(const Textlauf& lauf) {
        const Schrift& s = lauf.schrift;
        rumpf_ += "{\\f" + std::to_string(stelle(schriften_, s.name));
        rumpf_ += "\\fs" + std::to_string(2 * s.groesse);  // half points
        // Entry 0 of the colour table is the automatic colour, and so is black.
        if (s.farbe != Farbe::schwarz) rumpf_ += "\\cf" + std::to_string(stelle(farben_, s.farbe) + 1);
        if (s.fett) rumpf_ += "\\b";
        if (s.kursiv) rumpf_ += "\\i";
        if (s.unterstrichen) rumpf_ += "\\ul";
        rumpf_ += ' ';
        haengeTextAn(rumpf_, lauf.text);
        rumpf_ += '}';
    }

    void schreibeBild(const Textbild& bild) {
        constexpr double twipsJeMm = 1440 / mmJeZoll;
        constexpr std::string_view ziffern = "0123456789abcdef";
        rumpf_ += "{\\pict\\pngblip\\picwgoal" + std::to_string(std::lround(bild.breite * twipsJeMm));
        rumpf_ += "\\pichgoal" + std::to_string(std::lround(bild.hoehe * twipsJeMm)) + "\n";
        for (const char zeichen : bild.png) {
            const auto byte = static_cast<unsigned char>(zeichen);
            rumpf_ += ziffern[byte >> 4U];
            rumpf_ += ziffern[byte & 0x0FU];
        }
        rumpf_ += '}';
    }

    std::string kopf() const {
        std::string k = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n{\\fonttbl";
        for (std::size_t i = 0; i < schriften_.size(); ++i) {
            k += "{\\f" + std::to_string(i) + "\\fnil ";
            haengeTextAn(k, schriften_[i]);
            k += ";}";
        }
        k += "}\n{\\colortbl;";
        for (const Farbe farbe : farben_) {
            const auto rgb = static_cast<std::uint32_t>(farbe);
            k += "\\red" + std::to_string((rgb >> 16U) & 0xFFU) + "\\green" +
                 std::to_string((rgb >> 8U) & 0xFFU) + "\\blue" + std::to_string(rgb & 0xFFU) + ";";
        }
        // A proof line with its formula is 177 mm long at most: the right margin is narrower than the left.
        return k + "}\n\\paperw11906\\paperh16838\\margl1134\\margr567\\deflang1031\n";
    }

    std::vector<std::string> schriften_;
    std::vector<Farbe> farben_;
    std::string rumpf_;
    bool bleibtBeimNaechsten_ = false;  // a heading, or blank lines behind one
};

}  // namespace

std::string alsRtf(const Fliesstext& text) { return Schreiber().schreibe(text); }

}  // namespace rippenscheibe
