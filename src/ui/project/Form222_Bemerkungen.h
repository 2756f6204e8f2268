#pragma once

#include <string>

#include "ui/basics/Fenster.h"

class QPlainTextEdit;

namespace rippenscheibe {

// "  Bemerkungen zur Position": the preliminary remarks, at most three lines, and the closing remarks of
// the report.
class Form222 : public Fenster {
    Q_OBJECT

  public:
    Form222(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);

  private:
    QPlainTextEdit* textfeld(const QString& name, const QString& titel, const QString& vorlagen,
                             const QString& loeschen, int zeilen);
    void uebernehmen();

    QPlainTextEdit* vor_;
    QPlainTextEdit* zusatz_;
};

// Keeps a text box at three lines: a change that makes a fourth is undone at once, without a message.
class Zeilengrenze : public QObject {
    Q_OBJECT

  public:
    explicit Zeilengrenze(QPlainTextEdit* feld);

  private:
    void pruefe();

    QPlainTextEdit* feld_;
    QString letzterGuter_;
    int letzteStelle_ = 0;
};

// The text of a box with the line ends of the record, CR LF, and back.
std::string textAus(const QPlainTextEdit& feld);
void zeigeText(QPlainTextEdit& feld, std::string_view text);

}  // namespace rippenscheibe
