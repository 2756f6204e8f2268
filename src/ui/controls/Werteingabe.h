#pragma once

#include <QLabel>
#include <QLineEdit>
#include <limits>
#include <optional>

class QGridLayout;

namespace rippenscheibe {

struct Feldangabe;

class Meldungen;

// What one labelled value input shows and accepts.
struct Wertvorgabe {
    QString beschriftung;  // "Wandlänge l ="
    QString einheit;       // "m"
    double min = 0.0;
    double max = std::numeric_limits<double>::max();
    QString maske = QStringLiteral("0.000");  // display format
    int hoechstlaenge = 0;                    // most characters; 0 is no limit
    QString bereichseinheit{};                // unit of the allowed range where it is not the label's
    QString bezeichnung{};                    // what a message calls it where the caption does not
    QString symbol{};                         // "fu,k"
    QString bedeutung{};                      // "Zugfestigkeit, Beplankung 1"
    QString quelle{};                         // clause of the standard
};

// What a dialog adds to the description of a value: the name of the control, its caption, the unit behind it,
// how many units of the record make one that is shown (10 for cm of a field in mm), the unit of the range
// where nothing stands behind the field, and the most characters.
struct Wertschild {
    QString name;
    QString beschriftung;
    QString einheit;
    double teiler = 1;
    QString bereichseinheit{};
    int hoechstlaenge = 0;
};
// The description of a field as its control shows it; `zusatz` tells apart what has one meaning.
Wertvorgabe wertvorgabe(const Feldangabe& angabe, const Wertschild& schild,
                        const QString& zusatz = QString());

// The tool tip of a field, a line each: symbol and meaning, unit, range, source; what is empty is left out.
QString feldhinweis(const Wertvorgabe& vorgabe);

// Labelled value input: a label, a text box for a number, a unit. The text box is this widget, label and
// unit are placed beside it by `setzeInZeile`.
//
// Comma and point are both the decimal mark; several marks or a grouping are refused. A good text counts at
// once. A text that is no number or out of range stays, red and with its range beneath, until it is mended;
// the value is then the one from before this editing began, so that no good beginning of a refused text
// becomes a number. An editing begins in the field or with a value from the program, and ends when the field
// is left with a good text. A value written by the program is shown in its format and keeps its full
// precision until the text is edited. A field that is dimmed or hidden drops its refused text.
class Werteingabe : public QLineEdit {
    Q_OBJECT

  public:
    Werteingabe(const QString& name, Wertvorgabe vorgabe, QWidget* parent = nullptr);

    double wert() const { return wert_; }
    // Shows the value in its format. The range is not tested: the program may write what the user may not.
    void setzeWert(double wert);
    // An empty field, which holds 0 and may be left empty, until it is filled.
    void setzeLeer();
    bool abgelehnt() const { return abgelehnt_; }
    // Whether the user might enter this value.
    bool erlaubt(double wert) const { return wert >= vorgabe_.min && wert <= vorgabe_.max; }
    // "zulässig: 0,2 bis 100 m"
    QString bereichstext() const;
    // What a message calls the field: "Wandlänge l".
    QString bezeichnung() const;

    QLabel* beschriftung() const { return beschriftung_; }
    QLabel* einheit() const { return einheit_; }

    // Label in column `spalte` of the grid, field and unit over the next two.
    void setzeInZeile(QGridLayout* grid, int zeile, int spalte = 0);
    // Puts something behind the unit.
    void setzeDaneben(QWidget* teil);
    // Dims or lights label, field and unit together.
    void setzeAktiv(bool aktiv);

  Q_SIGNALS:
    void geaendert(double wert);  // the value changed, by the user or by the program

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void uebernimmText(const QString& text);
    void zeigeWert();
    void aendere(double wert);
    void setzeAbgelehnt(bool abgelehnt);
    void zeigeBereich();
    void zeigeBereichNachDemKlick();
    void lasseBereichSchweben();

    Wertvorgabe vorgabe_;
    double wert_ = 0.0;
    double vorher_ = 0.0;  // the value before this editing began
    bool darfLeerSein_ = false;
    bool abgelehnt_ = false;
    QLabel* beschriftung_;
    QLabel* einheit_;
    QWidget* zelle_ = nullptr;   // field and unit, and the range of a refused text that was left
    QLabel* bereich_ = nullptr;  // beneath the field while a text is refused
};

// The first field of the window that holds a refused text, or nullptr.
Werteingabe* abgelehntesFeld(const QWidget& fenster);
// Whether no refused text stands in the window. Where one does, a box names its field and range, and the
// field gets the focus: nothing is accepted, started or saved before it is mended.
bool eingabenGueltig(QWidget& fenster, Meldungen& meldungen);

// The number of a text: an optional sign, digits and at most one decimal mark, comma or point; nothing for
// anything else.
std::optional<double> zahlAus(const QString& text);

}  // namespace rippenscheibe
