#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "basis/Zahl.h"

namespace rippenscheibe {

// The pocket calculator without its window: a chain calculator that works from left to right. The
// display always shows a decimal point ("0.", "12.", "0.5"), whatever the locale.
class Rechner {
  public:
    enum class Taste { plus, minus, mal, durch, gleich };
    // What the window has to tell the user after a key.
    enum class Meldung { keine, divisionDurchNull };

    Rechner() { loeschen(); }

    const std::string& anzeige() const { return anzeige_; }

    // A digit 0 to 9; anything else is ignored.
    void ziffer(int wert);
    // The decimal point.
    void dezimal();
    // One of the five operator keys. A division by zero leaves the first operand as it was.
    Meldung operation(Taste taste);
    // Shows the hundredth of the display; the operator key that follows multiplies by it.
    void prozent();
    // "C": everything back to the start.
    void loeschen();
    // "CE": the number being entered is forgotten, the calculation goes on.
    void eingabeLoeschen();

  private:
    enum class Eingabe { keine, vorzeichen, ziffern, operation, eingabeGeloescht, prozent };
    enum class Zeichen { leer, plus, minus, mal, durch, gleich, prozent };

    Meldung rechne();
    void zaehleOperanden();

    std::string anzeige_;
    Eingabe letzteEingabe_ = Eingabe::keine;
    Zeichen operatorzeichen_ = Zeichen::leer;
    bool dezimalmarke_ = false;
    std::int16_t anzahlOperanden_ = 0;
    Feld operand1_;
    Feld operand2_;
};

// The display text of a number: at most 15 significant digits, always with a decimal point; very
// large and very small numbers as "1.E+20", "1.5E-07".
std::string rechnertext(double wert);

}  // namespace rippenscheibe
