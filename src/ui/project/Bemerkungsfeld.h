#pragma once

#include <QPlainTextEdit>
#include <string>
#include <string_view>

#include "report/Zeile.h"

namespace rippenscheibe {

// A text box for remarks in the font in which they are printed, with a line where the paper ends. Lines are
// not wrapped, because the report does not wrap them.
class Bemerkungsfeld : public QPlainTextEdit {
    Q_OBJECT

  public:
    // `breite` is the printable width, mm.
    Bemerkungsfeld(const Schrift& schrift, double breite, QWidget* parent);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double linie() const;  // px from the left edge of the text

    double breite_;
};

// Keeps a text box at three lines: a change that makes a fourth is undone at once, without a message. What
// was typed before, the caret and the steps to undo stay.
class Zeilengrenze : public QObject {
    Q_OBJECT

  public:
    explicit Zeilengrenze(QPlainTextEdit* feld);

  private:
    void pruefe();

    QPlainTextEdit* feld_;
    QString letzterGuter_;
};

// The text of a box with the line ends of the record, CR LF, and back.
std::string textAus(const QPlainTextEdit& feld);
void zeigeText(QPlainTextEdit& feld, std::string_view text);

}  // namespace rippenscheibe
