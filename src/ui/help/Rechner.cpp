#include "ui/help/Rechner.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace rippenscheibe {

namespace {

// The number a display text stands for; a lone "-" is none and has failed.
Zahl zahlAus(std::string_view text) {
    double wert = 0.0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
    if (fehler != std::errc() || ende != text.data() + text.size()) return Zahl::fehlgeschlagen();
    return wert;
}

}  // namespace

std::string rechnertext(double wert) {
    if (wert == 0.0) return "0.";
    std::array<char, 64> puffer{};
    const auto [ende, fehler] =
        std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert, std::chars_format::general, 15);
    std::string text(puffer.data(), ende);
    const auto exponent = text.find('e');
    if (exponent != std::string::npos) text[exponent] = 'E';
    if (text.find('.') == std::string::npos) text.insert(std::min(exponent, text.size()), ".");
    return text;
}

void Rechner::ziffer(int wert) {
    if (wert < 0 || wert > 9) return;
    if (letzteEingabe_ != Eingabe::ziffern) {
        anzeige_ = ".";
        dezimalmarke_ = false;
    }
    const auto zeichen = static_cast<char>('0' + wert);
    if (dezimalmarke_) {
        anzeige_.push_back(zeichen);
    } else {
        anzeige_.insert(anzeige_.size() - 1, 1, zeichen);
    }
    if (letzteEingabe_ == Eingabe::vorzeichen) anzeige_.insert(0, 1, '-');
    letzteEingabe_ = Eingabe::ziffern;
}

void Rechner::dezimal() {
    if (letzteEingabe_ == Eingabe::vorzeichen) {
        anzeige_ = "-0.";
    } else if (letzteEingabe_ != Eingabe::ziffern) {
        anzeige_ = "0.";
    }
    dezimalmarke_ = true;
    letzteEingabe_ = Eingabe::ziffern;
}

void Rechner::zaehleOperanden() {
    if (anzahlOperanden_ < std::numeric_limits<std::int16_t>::max()) ++anzahlOperanden_;
}

Rechner::Meldung Rechner::rechne() {
    switch (operatorzeichen_) {
        case Zeichen::plus:
            operand1_ = operand1_ + operand2_;
            break;
        case Zeichen::minus:
            operand1_ = operand1_ - operand2_;
            break;
        case Zeichen::mal:
            operand1_ = operand1_ * operand2_;
            break;
        case Zeichen::durch:
            if (operand2_ == 0) return Meldung::divisionDurchNull;
            operand1_ = operand1_ / operand2_;
            break;
        case Zeichen::gleich:
            operand1_ = Zahl(operand2_);
            break;
        case Zeichen::prozent:
            operand1_ = operand1_ * operand2_;
            break;
        case Zeichen::leer:
            break;
    }
    return Meldung::keine;
}

Rechner::Meldung Rechner::operation(Taste taste) {
    constexpr std::array<Zeichen, 5> zeichen{Zeichen::plus, Zeichen::minus, Zeichen::mal, Zeichen::durch,
                                             Zeichen::gleich};
    const std::string anzeigeVorher = anzeige_;
    Meldung meldung = Meldung::keine;
    if (letzteEingabe_ == Eingabe::ziffern) zaehleOperanden();

    // Meant: more than two operands (percent pressed once too often) are left alone until "C".
    if (anzahlOperanden_ == 0) {
        if (taste == Taste::minus && letzteEingabe_ != Eingabe::vorzeichen) {
            anzeige_.insert(0, 1, '-');
            letzteEingabe_ = Eingabe::vorzeichen;
        }
    } else if (anzahlOperanden_ == 1) {
        operand1_ = zahlAus(anzeige_);
        if (taste == Taste::minus && letzteEingabe_ != Eingabe::ziffern &&
            operatorzeichen_ != Zeichen::gleich) {
            anzeige_ = "-";
            letzteEingabe_ = Eingabe::vorzeichen;
        }
    } else if (anzahlOperanden_ == 2) {
        operand2_ = zahlAus(anzeigeVorher);
        meldung = rechne();
        anzeige_ = rechnertext(operand1_.value());
        anzahlOperanden_ = 1;
    }

    // A sign is not an operator: what was pending stays pending.
    if (letzteEingabe_ != Eingabe::vorzeichen) {
        letzteEingabe_ = Eingabe::operation;
        operatorzeichen_ = zeichen[static_cast<std::size_t>(taste)];
    }
    return meldung;
}

void Rechner::prozent() {
    const Zahl wert = zahlAus(anzeige_) / 100;
    if (!wert.failed()) anzeige_ = rechnertext(wert.value());
    // The first operand is not touched here, so that "200 X 5 %" and then "=" give 10.
    letzteEingabe_ = Eingabe::prozent;
    operatorzeichen_ = Zeichen::prozent;
    zaehleOperanden();
    dezimalmarke_ = true;
}

void Rechner::loeschen() {
    anzeige_ = "0.";
    dezimalmarke_ = false;
    anzahlOperanden_ = 0;
    letzteEingabe_ = Eingabe::keine;
    operatorzeichen_ = Zeichen::leer;
    operand1_ = 0;
    operand2_ = 0;
}

void Rechner::eingabeLoeschen() {
    anzeige_ = "0.";
    dezimalmarke_ = false;
    letzteEingabe_ = Eingabe::eingabeGeloescht;
}

}  // namespace rippenscheibe
