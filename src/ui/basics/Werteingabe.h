#pragma once

#include <QLabel>
#include <QLineEdit>
#include <limits>
#include <optional>

class QGridLayout;

namespace rippenscheibe {

// What one labelled value input shows and accepts.
struct Wertvorgabe {
    QString beschriftung;  // "Wandlänge l ="
    QString einheit;       // "m"
    double min = 0.0;
    double max = std::numeric_limits<double>::max();
    QString maske = QStringLiteral("0.000");  // display format
    int hoechstlaenge = 0;                    // most characters; 0 is no limit
    QString bereichseinheit{};                // unit of the allowed range where it is not the label's
};

// Labelled value input: a label, a text box for a number, a unit. The text box is this widget, label and
// unit are placed beside it by `setzeInZeile`.
//
// Comma and point are both the decimal mark; several marks or a grouping are refused. While the text is no
// number or out of range the field shows it, the value stays the last good one and no change is told;
// leaving the field brings the last good value back. A value written by the program is shown in its format
// and keeps its full precision until the text is edited.
class Werteingabe : public QLineEdit {
    Q_OBJECT

  public:
    Werteingabe(const QString& name, Wertvorgabe vorgabe, QWidget* parent = nullptr);

    double wert() const { return wert_; }
    // Shows the value in its format. The range is not tested: the program may write what the user may not.
    void setzeWert(double wert);
    bool abgelehnt() const { return abgelehnt_; }
    // "zulässig: 0,2 bis 100 m"
    QString bereichstext() const;

    QLabel* beschriftung() const { return beschriftung_; }
    QLabel* einheit() const { return einheit_; }

    // Label, field and unit in three columns of the grid, from column `spalte` on.
    void setzeInZeile(QGridLayout* grid, int zeile, int spalte = 0);
    // Dims or lights label, field and unit together.
    void setzeAktiv(bool aktiv);

  Q_SIGNALS:
    void geaendert(double wert);  // the value changed, by the user or by the program

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void uebernimmText(const QString& text);
    void zeigeWert();
    void setzeAbgelehnt(bool abgelehnt);
    void zeigeBereich();

    Wertvorgabe vorgabe_;
    double wert_ = 0.0;
    bool abgelehnt_ = false;
    QLabel* beschriftung_;
    QLabel* einheit_;
    QLabel* bereich_ = nullptr;  // lies over the window beneath the field while a value is refused
};

// The number of a text: an optional sign, digits and at most one decimal mark, comma or point; nothing for
// anything else.
std::optional<double> zahlAus(const QString& text);

}  // namespace rippenscheibe
