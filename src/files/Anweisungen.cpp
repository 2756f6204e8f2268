#include "files/Anweisungen.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <variant>

namespace rippenscheibe {

namespace {

constexpr std::string_view wahr = "#TRUE#";
constexpr std::string_view falsch = "#FALSE#";

bool istZiffer(char c) { return c >= '0' && c <= '9'; }
bool istLeerzeichen(char c) { return c == ' ' || c == '\t'; }

// Takes the digits at the front away and returns them.
std::string_view ziffern(std::string_view& rest) {
    std::size_t n = 0;
    while (n < rest.size() && istZiffer(rest[n])) ++n;
    const std::string_view gefunden = rest.substr(0, n);
    rest.remove_prefix(n);
    return gefunden;
}

bool nimm(std::string_view& rest, std::string_view eines) {
    if (rest.empty() || eines.find(rest.front()) == std::string_view::npos) return false;
    rest.remove_prefix(1);
    return true;
}

// The parts of a decimal number. The mark is a point, the exponent letter E or D.
struct Zahltext {
    bool negativ = false;
    std::string_view vorkomma;
    std::string_view nachkomma;
    bool exponentNegativ = false;
    std::string_view exponent;
};

std::optional<Zahltext> zerlegt(std::string_view text) {
    Zahltext teile;
    teile.negativ = text.starts_with('-');
    nimm(text, "+-");
    teile.vorkomma = ziffern(text);
    if (nimm(text, ".")) teile.nachkomma = ziffern(text);
    if (teile.vorkomma.empty() && teile.nachkomma.empty()) return std::nullopt;
    if (nimm(text, "EeDd")) {
        teile.exponentNegativ = text.starts_with('-');
        nimm(text, "+-");
        teile.exponent = ziffern(text);
        if (teile.exponent.empty()) return std::nullopt;
    }
    if (!text.empty()) return std::nullopt;
    return teile;
}

// True when a number beyond the range of a double is too small, not too large. Only the sign of its
// decimal magnitude matters, so an exponent of any length is cut at a million.
bool istWinzig(const Zahltext& teile) {
    long magnitude = 0;
    const std::size_t erste = teile.vorkomma.find_first_not_of('0');
    if (erste != std::string_view::npos) {
        magnitude = static_cast<long>(teile.vorkomma.size() - erste);
    } else {
        const std::size_t nullen = teile.nachkomma.find_first_not_of('0');
        if (nullen == std::string_view::npos) return true;
        magnitude = -static_cast<long>(nullen);
    }
    constexpr long grenze = 1'000'000;
    long exponent = 0;
    for (const char c : teile.exponent) {
        if (exponent < grenze) exponent = exponent * 10 + (c - '0');
    }
    return magnitude + (teile.exponentNegativ ? -exponent : exponent) < 0;
}

std::optional<double> alsZahl(std::string_view text) {
    const std::optional<Zahltext> teile = zerlegt(text);
    if (!teile) return std::nullopt;
    std::string rein;
    rein.reserve(text.size() + 4);
    if (teile->negativ) rein += '-';
    rein.append(teile->vorkomma).append(".").append(teile->nachkomma).append("0");
    if (!teile->exponent.empty()) rein.append(teile->exponentNegativ ? "e-" : "e").append(teile->exponent);

    double wert = 0.0;
    const auto [ende, fehler] = std::from_chars(rein.data(), rein.data() + rein.size(), wert);
    if (fehler == std::errc::result_out_of_range) {
        if (istWinzig(*teile)) return 0.0;
        return std::nullopt;
    }
    return wert;
}

// A field as a number: empty is 0, a truth value 0 or -1.
std::optional<double> alsZahl(const Rohfeld& feld) {
    if (feld.zitiert) return std::nullopt;
    if (feld.text.empty() || feld.text == falsch) return 0.0;
    if (feld.text == wahr) return -1.0;
    return alsZahl(feld.text);
}

// The start of a text for a message, cut between characters.
std::string gekuerzt(std::string_view text) {
    constexpr std::size_t hoechstens = 60;
    if (text.size() <= hoechstens) return std::string(text);
    std::size_t ende = hoechstens;
    while (ende > 0 && (static_cast<unsigned char>(text[ende]) & 0xC0) == 0x80) --ende;
    return std::string(text.substr(0, ende)) + "...";
}

template <class T>
void anfuegenMitStellen(std::string& text, T wert, int stellen) {
    if (wert == T{0}) wert = T{0};  // minus zero is written 0
    std::array<char, 32> puffer{};
    const auto ergebnis = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert,
                                        std::chars_format::general, stellen);
    for (const char* c = puffer.data(); c != ergebnis.ptr; ++c) text += *c == 'e' ? 'E' : *c;
}

}  // namespace

bool uebernimm(const Rohfeld& feld, std::string& ziel) {
    ziel = feld.text;
    return true;
}

bool uebernimm(const Rohfeld& feld, double& ziel) {
    const std::optional<double> zahl = alsZahl(feld);
    if (zahl) ziel = *zahl;
    return zahl.has_value();
}

bool uebernimm(const Rohfeld& feld, bool& ziel) {
    const std::optional<double> zahl = alsZahl(feld);
    if (zahl) ziel = *zahl != 0.0;
    return zahl.has_value();
}

bool uebernimm(const Rohfeld& feld, float& ziel) {
    const std::optional<double> zahl = alsZahl(feld);
    if (!zahl || std::fabs(*zahl) > std::numeric_limits<float>::max()) return false;
    ziel = static_cast<float>(*zahl);
    return true;
}

bool uebernimm(const Rohfeld& feld, std::int16_t& ziel) {
    const std::optional<double> zahl = alsZahl(feld);
    if (!zahl) return false;
    const double ganz = std::nearbyint(*zahl);
    if (ganz < std::numeric_limits<std::int16_t>::min() || ganz > std::numeric_limits<std::int16_t>::max()) {
        return false;
    }
    ziel = static_cast<std::int16_t>(ganz);
    return true;
}

bool uebernimm(const Rohfeld& feld, Freiwert& ziel) {
    if (!feld.zitiert && feld.text.empty()) {
        ziel = std::monostate{};
    } else if (!feld.zitiert && (feld.text == wahr || feld.text == falsch)) {
        ziel = feld.text == wahr;
    } else if (const std::optional<double> zahl = alsZahl(feld)) {
        ziel = *zahl;
    } else {
        ziel = std::string(feld.text);
    }
    return true;
}

void anfuegen(std::string& text, const std::string& wert) { text.append("\"").append(wert).append("\""); }

void anfuegen(std::string& text, double wert) {
    anfuegenMitStellen(text, wert, std::numeric_limits<double>::digits10);
}

void anfuegen(std::string& text, float wert) { anfuegenMitStellen(text, wert, 7); }

void anfuegen(std::string& text, std::int16_t wert) { text += std::to_string(wert); }

void anfuegen(std::string& text, const Freiwert& wert) {
    if (const auto* inhalt = std::get_if<std::string>(&wert)) anfuegen(text, *inhalt);
    if (const auto* inhalt = std::get_if<double>(&wert)) anfuegen(text, *inhalt);
    if (const auto* inhalt = std::get_if<bool>(&wert)) anfuegen(text, *inhalt);
}

std::string beschreibung(const Uebersprungen& feld) {
    std::string text = "Zeile " + std::to_string(feld.zeile) + ", " + feld.feld + ": ";
    switch (feld.grund) {
        case Grund::unlesbar:
            text += "nicht lesbar (" + gekuerzt(feld.gefunden) + ")";
            break;
        case Grund::dahinter:
            text += "steht hinter einem nicht lesbaren Feld";
            break;
        case Grund::fehlt:
            text += "fehlt";
            break;
    }
    return text + ", beibehalten: " + feld.behalten;
}

void Anweisungsleser::beginne() { zustand_ = stelle_ < text_.size() ? Zustand::felder : Zustand::zuEnde; }

// Goes behind the next line end. What is left of the line is of no interest.
void Anweisungsleser::beende() {
    const std::size_t zeilenende = text_.find('\n', stelle_);
    stelle_ = zeilenende == std::string_view::npos ? text_.size() : zeilenende + 1;
    ++zeile_;  // behind the end of the file too: there the missing statements are counted
}

// Reads the field at the current place and goes behind its comma, or, at the end of the line, to the line
// end. False for a quoted text without a closing quote; then the place stays, so that the line ends as any
// other.
bool Anweisungsleser::naechstesFeld(Rohfeld& feld) {
    while (stelle_ < text_.size() && istLeerzeichen(text_[stelle_])) ++stelle_;
    if (stelle_ < text_.size() && text_[stelle_] == '"') return zitiertesFeld(feld);

    std::size_t ende = text_.find_first_of(",\n", stelle_);
    if (ende == std::string_view::npos) ende = text_.size();
    feld.text = text_.substr(stelle_, ende - stelle_);
    const bool komma = ende < text_.size() && text_[ende] == ',';
    if (!komma && feld.text.ends_with('\r')) feld.text.remove_suffix(1);
    while (!feld.text.empty() && istLeerzeichen(feld.text.back())) feld.text.remove_suffix(1);
    feld.zitiert = false;
    stelle_ = komma ? ende + 1 : ende;
    if (!komma) zustand_ = Zustand::zuEnde;
    return true;
}

bool Anweisungsleser::zitiertesFeld(Rohfeld& feld) {
    const std::size_t anfang = stelle_ + 1;
    const std::size_t schluss = text_.find('"', anfang);
    feld.zitiert = true;
    if (schluss == std::string_view::npos) {
        feld.text = text_.substr(stelle_, text_.find_first_of("\r\n", stelle_) - stelle_);
        return false;
    }
    feld.text = text_.substr(anfang, schluss - anfang);
    for (const char c : feld.text) zeile_ += c == '\n' ? 1U : 0U;
    // What stands between the closing quote and the next comma is dropped.
    stelle_ = std::min(text_.find_first_of(",\n", schluss), text_.size());
    const bool komma = stelle_ < text_.size() && text_[stelle_] == ',';
    if (komma) {
        ++stelle_;
    } else {
        zustand_ = Zustand::zuEnde;
    }
    return true;
}

}  // namespace rippenscheibe
