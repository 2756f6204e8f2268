#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "model/Wand.h"

// The fields of the record by their names: what a table, a stream or a grid calls them. A field is found once
// and then addressed by its place in the list, so that many walls cost no search.

namespace rippenscheibe {

enum class Feldart { f64, f32, i16, wahr, text, feld };  // feld: an array, which is not set or swept

struct Bereich {
    double von;
    double bis;
};

struct Feldeintrag {
    Feldangabe angabe;
    Feldart typ;
    std::optional<Bereich> bereich;  // what the dialogs allow; of inputs only
};

std::span<const Feldeintrag> eingabefelder();
std::span<const Feldeintrag> ergebnisfelder();
// The input at this place.
const Feldeintrag& eingabefeld(int eingabe);
// The place of a field in its list, -1 when there is none of that name.
int eingabeindex(std::string_view name);
int ergebnisindex(std::string_view name);

using Feldwert = std::variant<double, bool, std::string>;

// What speaks against a value in this field: "av1 = 500 liegt nicht zwischen 20 und 200". `geschrieben` is
// the value as the user wrote it. Nothing when it fits.
enum class Grenzen { beachten, uebergehen };
std::optional<std::string> einwand(const Feldeintrag& feld, const Feldwert& wert,
                                   std::string_view geschrieben, Grenzen grenzen);

// A text as the value of a field: a number with decimal point, true or false, or the text itself. Nothing
// when it is none; `einwand` then tells why.
std::optional<Feldwert> feldwertAus(const Feldeintrag& feld, std::string_view text);

// The fields of one record, each by its place.
class Feldzugriff {
  public:
    explicit Feldzugriff(Wand& w);
    // Precondition: `einwand` has nothing against it.
    void setze(int eingabe, const Feldwert& wert);
    // A numeric or truth input as a number.
    double zahl(int eingabe) const;
    // The value in the shortest form that reads back: single precision as it was typed (0.35), texts in
    // quotes with escapes, arrays of ribs up to the last rib.
    void anfuegeEingabe(std::string& json, int eingabe) const;
    void anfuegeErgebnis(std::string& json, int ergebnis) const;

  private:
    using Zeiger = std::variant<Feld*, Feld32*, Ganzzahl*, bool*, std::string*, Vorbemerkungszeilen*, Texte*,
                                Rippenfeld*>;
    void anfuege(std::string& json, const Zeiger& zeiger) const;

    const Wand& w_;
    std::vector<Zeiger> eingaben_;
    std::vector<Zeiger> ergebnisse_;
};

// The value of an input for reading: "ja", decimal comma, unit.
std::string eingabetext(const Feldzugriff& felder, int eingabe);

// Assigns what the calculation reads of the inputs: all groups but the head of the position. Allocates
// nothing when the name of the free anchor fits.
void uebernimmBemessungseingaben(const Eingaben& von, Eingaben& nach);

// Numbers in the shortest form that reads back as the same.
void anfuegeZahl(std::string& text, double wert);
void anfuegeZahl(std::string& text, float wert);
std::string zahltext(double wert);
// The same for reading, with a comma.
std::string kommatext(double wert);
// The number of such a text whatever the locale, 0 when it is none.
double zahlAus(std::string_view text);
// The double of the shortest decimal text of a single-precision value: 0.35 as it was typed.
double wieGetippt(float wert);
// A text in quotes, escaped for JSON; bytes that are no UTF-8 become the replacement character.
void anfuegeJsonText(std::string& json, std::string_view text);

}  // namespace rippenscheibe
