#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class QFont;
class QPrintDialog;
class QPrinter;
class QWidget;

namespace rippenscheibe {

enum class Symbol { kritisch, frage, hinweis, achtung };
enum class Knoepfe { ok, jaNein, jaNeinAbbrechen };
enum class Antwort { ok, ja, nein, abbrechen };

// Captions in place of "Ja", "Nein" and "Abbrechen" where a box says what its buttons do.
struct Knopfworte {
    QString ja;
    QString nein;
    QString abbrechen;
};

// One message box: icon, title and text as they stand, and the buttons. `vorgabe` is the button that Enter
// presses at once; without it the first.
struct Meldung {
    Symbol symbol = Symbol::kritisch;
    QString titel;
    QString text;
    Knoepfe knoepfe = Knoepfe::ok;
    Knopfworte worte{};
    std::optional<Antwort> vorgabe{};
};

// One file dialog. `ordner` and `vorschlag` may be empty; a folder that is not there gives way to that of the
// documents, and the dialog says so.
struct Dateiwahl {
    QString titel;
    QString ordner;
    QString vorschlag;  // proposed file name, for saving
    QString filter;     // Qt's form: "Datei ... (*.rsw);;alle Dateien (*.*)"
    QString endung;     // default extension without the point
};

// The seam for everything that asks the user outside of our own windows. The program answers with real
// boxes, a test with a queue.
class Meldungen {
  public:
    virtual ~Meldungen() = default;

    // Shows the box and waits. Closing it by Esc is Abbrechen, without such a button Nein, else OK.
    virtual Antwort zeige(QWidget* fenster, const Meldung& meldung) = 0;
    // The chosen existing file, or nothing after a cancel.
    virtual std::optional<QString> oeffnen(QWidget* fenster, const Dateiwahl& wahl) = 0;
    // The chosen file to write, confirmed where it exists, or nothing after a cancel.
    virtual std::optional<QString> sichern(QWidget* fenster, const Dateiwahl& wahl) = 0;
    // Lets the user choose the printer and its paper.
    virtual void richteDruckerEin(QWidget* fenster, QPrinter& drucker) = 0;
    // Shows the print dialog; false after a cancel.
    virtual bool waehleDrucker(QPrintDialog& dialog) = 0;
    // The chosen font, or nothing after a cancel.
    virtual std::optional<QFont> waehleSchrift(QWidget* fenster, const QFont& schrift) = 0;
    virtual void piep() = 0;

    void kritisch(QWidget* fenster, const QString& titel, const QString& text) {
        zeige(fenster, {Symbol::kritisch, titel, text, Knoepfe::ok});
    }
    void hinweis(QWidget* fenster, const QString& titel, const QString& text) {
        zeige(fenster, {Symbol::hinweis, titel, text, Knoepfe::ok});
    }
};

// The real boxes and dialogs of the platform.
class Plattformmeldungen : public Meldungen {
  public:
    Antwort zeige(QWidget* fenster, const Meldung& meldung) override;
    std::optional<QString> oeffnen(QWidget* fenster, const Dateiwahl& wahl) override;
    std::optional<QString> sichern(QWidget* fenster, const Dateiwahl& wahl) override;
    void richteDruckerEin(QWidget* fenster, QPrinter& drucker) override;
    bool waehleDrucker(QPrintDialog& dialog) override;
    std::optional<QFont> waehleSchrift(QWidget* fenster, const QFont& schrift) override;
    void piep() override;
};

}  // namespace rippenscheibe
