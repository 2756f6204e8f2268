#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "basis/Freiwert.h"
#include "basis/Zahl.h"

// The text format of all files of the program: one line is one statement, its fields separated by commas,
// closed by CR LF. Texts stand in double quotes, which nothing escapes; numbers have a point and at most 15
// (single precision 7) significant digits; truth values are #TRUE# and #FALSE#; an empty field is nothing
// at all. Text is UTF-8 here; files/Zeichensatz.h leads to the bytes of a file.

namespace rippenscheibe {

// Of records in a file, which counts them in 16 bits.
inline constexpr std::size_t groessteAnzahl = std::numeric_limits<std::int16_t>::max();

// A field of a statement as it stands in the file.
struct Rohfeld {
    std::string_view text;  // between the quotes, or without the blanks around it
    bool zitiert = false;
};

// Takes a field into a value; false, and the value unchanged, when the field does not parse.
// An empty field is 0, false or "". A number into a truth value is "not 0", #TRUE# into a number is -1.
// A quoted field is a text only. A whole number is taken half to even; one out of the range of its type
// does not parse. An unquoted text is taken as it stands.
bool uebernimm(const Rohfeld& feld, std::string& ziel);
bool uebernimm(const Rohfeld& feld, bool& ziel);
bool uebernimm(const Rohfeld& feld, double& ziel);
bool uebernimm(const Rohfeld& feld, float& ziel);
bool uebernimm(const Rohfeld& feld, std::int16_t& ziel);
bool uebernimm(const Rohfeld& feld, Freiwert& ziel);
template <class T>
bool uebernimm(const Rohfeld& feld, Gespeichert<T>& ziel) {
    T wert{};
    if (!uebernimm(feld, wert)) return false;
    ziel = Gespeichert<T>(wert);
    return true;
}

// Appends a value as a statement holds it.
void anfuegen(std::string& text, const std::string& wert);
void anfuegen(std::string& text, double wert);
void anfuegen(std::string& text, float wert);
void anfuegen(std::string& text, std::int16_t wert);
void anfuegen(std::string& text, const Freiwert& wert);
template <std::same_as<bool> B>  // no other type may decay to a truth value
void anfuegen(std::string& text, B wert) {
    text += wert ? "#TRUE#" : "#FALSE#";
}
template <class T>
void anfuegen(std::string& text, Gespeichert<T> wert) {
    anfuegen(text, wert.value());
}
// The value as a statement holds it.
template <class T>
requires requires(std::string& text, const T& wert) { anfuegen(text, wert); }
std::string schreibweise(const T& wert) {
    std::string text;
    anfuegen(text, wert);
    return text;
}

// Why a field kept its value: it did not parse, it stands behind one that did not, or it is not there.
enum class Grund { unlesbar, dahinter, fehlt };

// A field that kept its value while a file was read.
struct Uebersprungen {
    std::size_t zeile = 0;  // line of the file, from 1
    std::string feld;
    Grund grund = Grund::unlesbar;
    std::string gefunden;  // its text in the file, "" when it is not there or was not read
    std::string behalten;  // the value it kept, as a statement would hold it
};

// One German line about a skipped field: line, name, what was found and what was kept.
std::string beschreibung(const Uebersprungen& feld);

// A field of a statement with the name it is reported under.
template <class T>
struct Ziel {
    std::string_view name;
    T& wert;
};
template <class T>
Ziel<T> ziel(std::string_view name, T& wert) {
    return {name, wert};
}

// Reads statement after statement. A field that does not parse ends its statement: the fields before it
// are taken, it and the rest of the line keep their values, the next statement reads from the next line.
// Missing fields keep their values, surplus fields are ignored. A quoted text may hold line ends; the
// statement then ends at the first line end behind it. The text must outlive the reader.
class Anweisungsleser {
  public:
    explicit Anweisungsleser(std::string_view text) : text_(text) {}

    template <class... T>
    void lies(Ziel<T>... ziele) {
        const std::size_t fehlten = uebersprungen_.size();
        beginne();
        (liesFeld(ziele), ...);
        beende();
        if (uebersprungen_.size() == fehlten) ++ganze_;
    }

    // Whether all statements are read.
    bool amEnde() const { return stelle_ >= text_.size(); }

    // How many statements gave all their fields.
    std::size_t ganze() const { return ganze_; }

    // The fields that kept their values so far, in the order of the statements.
    const std::vector<Uebersprungen>& uebersprungen() const { return uebersprungen_; }
    std::vector<Uebersprungen> uebersprungeneFelder() && { return std::move(uebersprungen_); }

  private:
    enum class Zustand { felder, gescheitert, zuEnde };

    void beginne();
    void beende();
    bool naechstesFeld(Rohfeld& feld);
    bool zitiertesFeld(Rohfeld& feld);

    template <class T>
    void liesFeld(const Ziel<T>& z) {
        if (zustand_ == Zustand::felder) {
            Rohfeld feld;
            const bool lesbar = naechstesFeld(feld);
            if (lesbar && uebernimm(feld, z.wert)) return;
            uebersprungen_.push_back(
                {zeile_, std::string(z.name), Grund::unlesbar, std::string(feld.text), schreibweise(z.wert)});
            zustand_ = Zustand::gescheitert;
            return;
        }
        const Grund grund = zustand_ == Zustand::zuEnde ? Grund::fehlt : Grund::dahinter;
        uebersprungen_.push_back({zeile_, std::string(z.name), grund, {}, schreibweise(z.wert)});
    }

    std::string_view text_;
    std::size_t stelle_ = 0;
    std::size_t zeile_ = 1;
    std::size_t ganze_ = 0;
    Zustand zustand_ = Zustand::felder;
    std::vector<Uebersprungen> uebersprungen_;
};

// Collects the text of a file statement by statement.
class Anweisungsschreiber {
  public:
    template <class Erster, class... Weitere>
    void schreibe(const Erster& erster, const Weitere&... weitere) {
        anfuegen(text_, erster);
        ((text_ += ',', anfuegen(text_, weitere)), ...);
        text_ += "\r\n";
    }
    const std::string& text() const { return text_; }

  private:
    std::string text_;
};

}  // namespace rippenscheibe
