#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "report/Bericht.h"
#include "report/Fassung.h"

// How the sections of the report are put together.

namespace rippenscheibe {

// A piece of a line: fixed words, or a value with its number format. A value that has failed and a
// name that is not there make the whole line fall out.
class Teil {
  public:
    Teil(const char* text) : text_(text) {}         // NOLINT: implicit, so that a line reads as its parts
    Teil(std::string_view text) : text_(text) {}    // NOLINT
    Teil(const std::string& text) : text_(text) {}  // NOLINT
    Teil(std::optional<std::string_view> name) : text_(name) {}  // NOLINT
    Teil(Zahl wert, std::string_view maske) : text_(maske), wert_(wert), istWert_(true) {}

    // Appends the piece; false when it has failed.
    bool haengeAn(std::string& zeile, char dezimalzeichen) const;
    // The value; nothing for words.
    std::optional<Zahl> wert() const { return istWert_ ? std::optional(wert_) : std::nullopt; }

  private:
    std::optional<std::string_view> text_;  // the words, or the mask of the value
    Zahl wert_ = 0;
    bool istWert_ = false;
};
using Teile = std::initializer_list<Teil>;

// The two endings of a comparison line.
struct Endungen {
    std::string_view erfuellt;
    std::string_view ueberschritten;
};
inline constexpr Endungen endungen{" <= 1,00", " > 1,00!!!"};

// Collects the lines of one report.
class Berichtsbau {
  public:
    Berichtsbau(Form gewaehlt, const Berichtsoptionen& schalter)
        : form(gewaehlt), worte(fassung(gewaehlt)), optionen(schalter) {}

    const Form form;
    const Fassung& worte;
    const Berichtsoptionen optionen;

    bool gedruckt() const { return form != Form::ansicht; }
    bool jedeRippe() const { return form != Form::kurz; }

    void zeile(double abstand, Teile teile, Stil stil = Stil::text);
    void h1(std::string_view text, double abstand, std::optional<double> grenze = {});
    void h2(std::string_view text, double abstand, std::optional<double> grenze = {});
    void h3(std::string_view text, double abstand, std::optional<double> grenze = {});
    // A line with a utilisation `eta`: what stands before it, the value, the ending by `eta` <= 1.0 of
    // the unrounded value.
    void ausnutzung(double abstand, std::string_view name, Zahl eta, Teile davor, std::string_view maske,
                    const Endungen& enden = endungen);
    // A line of any wording that carries a verdict; `eta` is for display only.
    void urteil(double abstand, std::string_view name, Zahl eta, bool erfuellt, Teile teile);
    void neu(Zeile z) { bericht_.push_back(std::move(z)); }

    // The lines of the ribs, 1 to AnzahlRippen: `jede(name, i, abstand)` adds the line of rib i. 4 mm
    // between the lines, with a page-break test behind each but the last.
    template <class Jede>
    void rippen(const Wand& w, double ersterAbstand, Jede&& jede);

    Bericht fertig() && { return std::move(bericht_); }

  private:
    // Appends the pieces to the line's text and notes its numbers; false, and no text, when one has failed.
    bool haengeAn(Textzeile& zeile, Teile teile) const;
    void ueberschrift(Stil stil, std::string_view text, double abstand, std::optional<double> grenze);

    Bericht bericht_;
};

// The number of ribs a list runs over. Whole numbers of the record end at 32767, and so do the lists.
int listenlaenge(const Wand& w);
// "Randrippe links", "Innenrippe 1" ..., "Randrippe rechts". A single rib is the left one.
std::string rippenname(int i, int anzahl);

// The parts of the report, as the print window enters them.
void berichtTeil1(Berichtsbau& b, const Wand& w);  // sections 1 to 4
void berichtTeil2(Berichtsbau& b, const Wand& w);  // sections 5 and 6
void berichtTeil3(Berichtsbau& b);                 // section 7

template <class Jede>
void Berichtsbau::rippen(const Wand& w, double ersterAbstand, Jede&& jede) {
    constexpr double zeilenabstand = 4;
    constexpr double seitenende = 260;
    const int anzahl = listenlaenge(w);
    for (int i = 1; i <= anzahl; ++i) {
        // The lines of ribs above 200 fall out, the cursor moves on.
        if (i < static_cast<int>(Rippenfeld::laenge))
            jede(rippenname(i, anzahl), i, i == 1 ? ersterAbstand : 0.0);
        if (i == anzahl) break;
        neu(Vorschub{zeilenabstand});
        neu(Zeilenpruefung{seitenende});
    }
}

}  // namespace rippenscheibe
