#pragma once

#include <QObject>
#include <QString>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/Einstellungsdatei.h"
#include "files/Projektliste.h"
#include "model/Wand.h"
#include "run/Zuweisen.h"
#include "ui/basics/Schrittfolge.h"

class QPrinter;

namespace rippenscheibe {

class Fensteroeffner;

// The file action that waits for the answer to "Soll die geöffnete Datei gesichert werden ?".
enum class Dateiaktion { keine, neu, oeffnen, sichern, beenden, sichernUnter };

// Inputs that were kept under a name, to compare them and to take them over.
struct Variante {
    QString name;
    Eingabestand stand;
};

// What the windows of one running program share: the position, the three fields of the main window and
// the state of its file. Made once in `main` and handed on by reference.
class Programm : public QObject {
    Q_OBJECT

  public:
    // `ordner` is the program's folder: all small files live there.
    explicit Programm(std::filesystem::path ordner, QObject* parent = nullptr);
    ~Programm() override;

    Wand w;
    Grundmasse felder;
    Wand vorDemLauf;  // the record before the last run: the derivation repeats that run

    std::filesystem::path ordner;
    Einstellungen einstellungen;
    Projektliste projekte;

    std::string Positionspfad;                // folder of the position file, from the project data
    std::string Dateiname;                    // full path of the open position file, "" for a new one
    bool Sperre = false;                      // no Zuweisen on a change of the three fields
    Dateiaktion Aktion = Dateiaktion::keine;  // the pending file action
    bool SeitenzahlDrucken = true;            // of the last print job
    QString DialogDateiname;                  // the file name that the file dialog holds
    std::optional<std::size_t> Dateistand;    // hash of the open file as this program read or wrote it
    std::optional<int> Ergebnisziel;          // the section 5.x at which the result view opens
    std::string Feldziel;                     // the input at which its dialog opens, "" for the first
    QString DialogOrdner;                     // its initial folder
    std::vector<Variante> varianten;          // kept until the program ends
    std::unique_ptr<Fensteroeffner> fenster;  // makes the windows that others ask for; set by the main window

    // Reads settings and project list from the program's folder; what is missing keeps its default. The
    // project of the list becomes the project of the position. Returns the faults of files that are there but
    // cannot be read; they are left alone.
    std::vector<Dateifehler> ladeEinstellungen();
    // Writes the settings, unless those in the file could not be read.
    [[nodiscard]] std::optional<Dateifehler> sichereEinstellungen() const;
    // Writes the project list, with what another running program added to it meanwhile.
    [[nodiscard]] std::optional<Dateifehler> sichereProjekte();

    // The printer that the printer setup and the print window share; made on first use.
    QPrinter& drucker();

    bool Gesichert() const { return gesichert_; }  // nothing changed since the last save
    void setzeGesichert(bool gesichert);

    const QString& Titel() const { return titel_; }  // caption of the main window without its mark
    void setzeTitel(const QString& titel);

    // Takes the three fields into the record, refreshes derived values and design loads, and tells the
    // windows. Dialogs call it on accept, after they have written their fields.
    void zuweisen();
    // Results as after program start, inputs untouched; Zuweisen follows.
    void verwirfErgebnisse();

    // Undo and redo. What stands between `beginneSchritt` and `beendeSchritt` is one step (see Schritt);
    // taking one back and doing it again sets the inputs alone, and the position counts as changed.
    void beginneSchritt(const QString& name);
    void beendeSchritt();
    void rueckgaengig();
    void wiederhole();
    // Other inputs take the place of these, as a step with this name.
    void uebernimm(const Eingabestand& stand, const QString& name);
    // Another position was opened or begun: its inputs are the first ones.
    void leereSchritte();
    const Schrittfolge& schritte() const { return schritte_; }
    Eingabestand eingabestand() const { return {w, felder}; }

    // A file of the program's folder.
    std::filesystem::path datei(std::string_view name) const { return ordner / name; }

  Q_SIGNALS:
    void geaendert();          // the record changed
    void ersetzt();            // another position took the place of the one before
    void zustandGeaendert();   // Gesichert, Dateiname or the caption changed
    void schritteGeaendert();  // there is another step to take back or to do again

  private:
    void setze(const Eingabestand& stand);

    bool gesichert_ = true;
    QString titel_;
    Schrittfolge schritte_;
    Projektliste projekteGelesen_;  // as they were in the file
    std::optional<Dateifehler> einstellungsfehler_;
    std::unique_ptr<QPrinter> drucker_;
};

// A step of undo for as long as it lives: the visit of a window.
class Schritt {
  public:
    Schritt(Programm& programm, const QString& name) : programm_(programm) { programm.beginneSchritt(name); }
    ~Schritt() { programm_.beendeSchritt(); }
    Schritt(const Schritt&) = delete;
    Schritt& operator=(const Schritt&) = delete;

  private:
    Programm& programm_;
};

// Makes the icons and files delivered inside the program available; may be called more than once.
void verbindeRessourcen();
// Qt's own buttons, menus, dialogs and the help of the command line in German, whatever the locale: the
// program is. Until the application ends.
void ladeDeutscheTexte();

// All text inside the program is UTF-8. A byte that is none, as file names may hold, passes through both as a
// lone surrogate, U+DC00 and the byte, so that a path stays the path of the same file.
QString qtext(std::string_view text);
std::string utf8(const QString& text);
std::filesystem::path pfad(const QString& text);

// The decimal mark of the user's locale, ',' or '.'.
char dezimalzeichen();

}  // namespace rippenscheibe
