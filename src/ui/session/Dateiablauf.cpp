#include "ui/session/Dateiablauf.h"

#include <QFileInfo>
#include <filesystem>
#include <functional>
#include <system_error>
#include <utility>

#include "files/Pfad.h"
#include "files/Positionsdatei.h"
#include "files/Zeichensatz.h"
#include "run/Positionslauf.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Zieldatei.h"
#include "ui/controls/Werteingabe.h"

namespace rippenscheibe {

namespace {

QString abfragetitel(Dateiaktion aktion) {
    switch (aktion) {
        case Dateiaktion::neu:
            return QStringLiteral("Neue Datei");
        case Dateiaktion::oeffnen:
            return QStringLiteral("Datei öffnen");
        default:
            return QStringLiteral("Datei Schließen");
    }
}

}  // namespace

Dateiablauf::Dateiablauf(Programm& programm, Meldungen& meldungen, QWidget* fenster)
    : programm_(programm), meldungen_(meldungen), fenster_(fenster) {}

void Dateiablauf::neu() {
    // Meant: any answer resets the position, a cancel too. Only a save that failed keeps it.
    if (frage(Dateiaktion::neu) != Ausgang::fehlgeschlagen) setzeNeu();
    programm_.Aktion = Dateiaktion::keine;
}

void Dateiablauf::oeffnen(const std::optional<QString>& datei) {
    wunsch_ = datei;
    frage(Dateiaktion::oeffnen);
    wunsch_.reset();
    programm_.Aktion = Dateiaktion::keine;
}

void Dateiablauf::sichern() {
    programm_.Aktion = Dateiaktion::sichern;
    sicherungsschritt();
    programm_.Aktion = Dateiaktion::keine;
}

void Dateiablauf::sichernUnter() {
    if (!nichtsAbgelehnt()) return;
    const std::string vorher = std::exchange(programm_.Dateiname, std::string());
    programm_.Aktion = Dateiaktion::sichernUnter;
    if (projektdaten && projektdaten()) {
        if (!programm_.Positionspfad.empty()) programm_.DialogOrdner = qtext(programm_.Positionspfad);
        dialogUndSichern();
    }
    programm_.Aktion = Dateiaktion::keine;
    if (programm_.Dateiname.empty()) programm_.Dateiname = vorher;  // cancelled
}

bool Dateiablauf::beenden() {
    const bool zuEnde = frage(Dateiaktion::beenden) == Ausgang::weiter;
    programm_.Aktion = Dateiaktion::keine;
    return zuEnde;
}

Dateiablauf::Ausgang Dateiablauf::frage(Dateiaktion aktion) {
    programm_.Aktion = aktion;
    if (programm_.Gesichert()) {
        if (aktion == Dateiaktion::oeffnen) naechsterSchritt();
        return Ausgang::weiter;
    }
    const Antwort antwort = meldungen_.zeige(
        fenster_, {Symbol::frage, abfragetitel(aktion),
                   QStringLiteral("Soll die geöffnete Datei gesichert werden ?"), Knoepfe::jaNeinAbbrechen});
    if (antwort == Antwort::ja) return sicherungsschritt();
    if (antwort == Antwort::nein) {
        naechsterSchritt();
        return Ausgang::weiter;
    }
    programm_.Aktion = Dateiaktion::keine;
    return Ausgang::abgebrochen;
}

// A refused text in the main window counts as a save that failed.
bool Dateiablauf::nichtsAbgelehnt() { return fenster_ == nullptr || eingabenGueltig(*fenster_, meldungen_); }

Dateiablauf::Ausgang Dateiablauf::sicherungsschritt() {
    if (!nichtsAbgelehnt()) return Ausgang::fehlgeschlagen;
    const bool nameBekannt = !programm_.DialogDateiname.isEmpty() && !programm_.Dateiname.empty();
    if (!nameBekannt) return dialogUndSichern();
    if (fremdGeaendert()) return sichernTrotzFremdem();
    return saveFile() ? Ausgang::weiter : Ausgang::fehlgeschlagen;
}

// The file is no longer what it was when this program read or wrote it. One that is gone hides nothing.
bool Dateiablauf::fremdGeaendert() const {
    if (!programm_.Dateistand) return false;
    const Dateiinhalt inhalt = liesDatei(pfad(qtext(mitEndung(programm_.Dateiname))));
    return !inhalt.fehler && std::hash<std::string>{}(inhalt.bytes) != *programm_.Dateistand;
}

void Dateiablauf::merkeDateistand(bool vorhanden, const std::string& bytes) {
    programm_.Dateistand.reset();
    if (vorhanden) programm_.Dateistand = std::hash<std::string>{}(bytes);
}

Dateiablauf::Ausgang Dateiablauf::sichernTrotzFremdem() {
    const Meldung frage{Symbol::achtung,
                        QStringLiteral("Datei sichern"),
                        QStringLiteral("Die Datei\n%1\nwurde von einem anderen Programm geändert, seit sie "
                                       "hier geöffnet ist.")
                            .arg(qtext(mitEndung(programm_.Dateiname))),
                        Knoepfe::jaNeinAbbrechen,
                        {QStringLiteral("Überschreiben"), QStringLiteral("Speichern unter"), {}},
                        Antwort::abbrechen};
    const Antwort antwort = meldungen_.zeige(fenster_, frage);
    if (antwort == Antwort::nein) return dialogUndSichern();
    return antwort == Antwort::ja && saveFile() ? Ausgang::weiter : Ausgang::fehlgeschlagen;
}

void Dateiablauf::naechsterSchritt() {
    if (programm_.Aktion == Dateiaktion::oeffnen) oeffnenDialog();
    if (programm_.Aktion == Dateiaktion::neu) {
        programm_.DialogDateiname.clear();
        programm_.setzeTitel(QStringLiteral(" <Neue Datei> "));
    }
}

void Dateiablauf::oeffnenDialog() {
    std::optional<QString> datei = wunsch_;
    if (!datei)
        datei = meldungen_.oeffnen(
            fenster_, positionswahl(QStringLiteral("Datei öffnen"), dialogordner(programm_), QString()));
    if (!datei) return;
    programm_.DialogDateiname = *datei;
    lade(*datei);
}

Dateiablauf::Ausgang Dateiablauf::dialogUndSichern() {
    const QString vorschlag = programm_.Dateiname.empty() ? dateivorschlag(programm_)
                                                          : QFileInfo(qtext(programm_.Dateiname)).fileName();
    const std::optional<QString> datei = waehlePositionsziel(
        meldungen_, fenster_,
        positionswahl(QStringLiteral("Datei speichern unter"), dialogordner(programm_), vorschlag));
    if (!datei) return Ausgang::abgebrochen;
    const QString dialognameVorher = std::exchange(programm_.DialogDateiname, *datei);
    const std::string nameVorher = std::exchange(programm_.Dateiname, utf8(*datei));
    if (saveFile()) return Ausgang::weiter;
    programm_.DialogDateiname = dialognameVorher;
    programm_.Dateiname = nameVorher;
    return Ausgang::fehlgeschlagen;
}

bool Dateiablauf::saveFile() {
    programm_.zuweisen();
    programm_.Dateiname = mitEndung(programm_.Dateiname);
    if (const std::optional<Dateifehler> fehler =
            schreibePosition(pfad(qtext(programm_.Dateiname)), programm_.w)) {
        programm_.setzeGesichert(false);
        meldungen_.piep();
        meldungen_.kritisch(fenster_, QStringLiteral(" Fehler"), qtext(fehler->text));
        return false;
    }
    merkeDateistand(true, kodiert(positionstext(programm_.w)));
    programm_.setzeGesichert(true);
    programm_.setzeTitel(qtext(programm_.Dateiname));
    if (benutzt) benutzt(qtext(programm_.Dateiname));
    naechsterSchritt();
    return true;
}

bool Dateiablauf::lade(const QString& datei) {
    programm_.Dateiname = utf8(datei);
    if (!istPositionsdatei(programm_.Dateiname)) {
        meldungen_.kritisch(fenster_, QStringLiteral(" Fehler"), qtext(falscheEndung));
        programm_.Dateiname.clear();
        return false;
    }
    programm_.Sperre = true;
    // What is missing or does not parse keeps its value without a word: files of older layouts end early. A
    // file that is there but cannot be read leaves the position as it is.
    const Oeffnung oeffnung = oeffnePosition(pfad(datei), programm_.w, Einlass::jedeDatei);
    if (oeffnung.fehler) {
        programm_.Sperre = false;
        meldungen_.kritisch(fenster_, QStringLiteral(" Fehler"), qtext(*oeffnung.fehler));
        programm_.Dateiname.clear();
        return false;
    }
    programm_.felder = oeffnung.felder;
    programm_.setzeGesichert(false);  // Meant: a file just opened counts as changed
    programm_.setzeTitel(datei);
    programm_.Sperre = false;
    Q_EMIT programm_.ersetzt();
    programm_.zuweisen();
    merkeDateistand(oeffnung.gelesen, oeffnung.bytes);
    programm_.leereSchritte();
    if (benutzt && oeffnung.gelesen) benutzt(datei);
    return true;
}

void Dateiablauf::setzeNeu() {
    programm_.Sperre = true;
    setzeVorgaben(programm_.w);
    programm_.w.Hinweise.clear();
    if (listeGeleert) listeGeleert();
    programm_.felder = grundmasse(programm_.w);
    programm_.Sperre = false;
    Q_EMIT programm_.ersetzt();
    programm_.zuweisen();
    programm_.leereSchritte();
    programm_.setzeTitel(QStringLiteral("Neue Datei"));
    programm_.Dateiname.clear();
    programm_.Dateistand.reset();
    programm_.DialogDateiname.clear();
    if (projektdaten) projektdaten();
}

QString ganzerPfad(const QString& datei) {
    std::error_code fehler;
    const std::filesystem::path ganz = std::filesystem::absolute(pfad(datei), fehler);
    return fehler ? datei : qtext(pfadtext(ganz.lexically_normal()));
}

}  // namespace rippenscheibe
