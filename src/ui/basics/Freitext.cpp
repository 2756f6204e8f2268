#include "ui/basics/Freitext.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QTextDocument>

#include "ui/basics/Meldungen.h"

namespace rippenscheibe {

namespace {

constexpr QLatin1Char doppelt('"');
constexpr QLatin1Char einfach('\'');

bool ersetze(QLineEdit& feld) {
    if (!feld.text().contains(doppelt)) return false;
    const int stelle = feld.cursorPosition();
    feld.setText(QString(feld.text()).replace(doppelt, einfach));
    feld.setCursorPosition(stelle);
    return true;
}

// Through the document, so that the change can be undone and the caret stays.
bool ersetze(QPlainTextEdit& feld) {
    bool gefunden = false;
    QTextCursor stelle(feld.document());
    stelle.beginEditBlock();
    for (QTextCursor zeichen = feld.document()->find(QString(doppelt)); !zeichen.isNull();
         zeichen = feld.document()->find(QString(doppelt), zeichen)) {
        zeichen.insertText(QString(einfach));
        gefunden = true;
    }
    stelle.endEditBlock();
    return gefunden;
}

bool ersetze(QWidget* feld) {
    if (auto* zeile = qobject_cast<QLineEdit*>(feld)) return ersetze(*zeile);
    if (auto* text = qobject_cast<QPlainTextEdit*>(feld)) return ersetze(*text);
    if (auto* liste = qobject_cast<QComboBox*>(feld)) return ersetze(*liste->lineEdit());
    return false;
}

}  // namespace

void ersetzeAnfuehrungszeichen(Meldungen& meldungen, QWidget* fenster,
                               std::initializer_list<QWidget*> felder) {
    bool ersetzt = false;
    for (QWidget* feld : felder) ersetzt = ersetze(feld) || ersetzt;
    if (ersetzt)
        meldungen.hinweis(fenster, QStringLiteral(" Hinweis"),
                          QStringLiteral("Doppelte Anführungszeichen können nicht gespeichert werden. "
                                         "Sie wurden durch einfache ersetzt."));
}

bool pfadIstSpeicherbar(Meldungen& meldungen, QLineEdit& feld) {
    if (!feld.text().contains(doppelt)) return true;
    meldungen.kritisch(feld.window(), QStringLiteral(" Fehler"),
                       QStringLiteral("Der Pfad darf kein Anführungszeichen (\") enthalten."));
    feld.setFocus();
    feld.selectAll();
    return false;
}

}  // namespace rippenscheibe
