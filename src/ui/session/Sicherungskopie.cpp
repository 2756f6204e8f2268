#include "ui/session/Sicherungskopie.h"

#include <QFileInfo>
#include <QLocale>
#include <memory>
#include <utility>

#include "files/Pfad.h"
#include "files/Positionsdatei.h"
#include "ui/basics/Meldungen.h"

namespace rippenscheibe {

namespace {

Antwort frageNach(Meldungen& meldungen, QWidget* fenster, const QString& text) {
    return meldungen.zeige(
        fenster, {Symbol::frage,
                  QStringLiteral("Wiederherstellung"),
                  text,
                  Knoepfe::jaNeinAbbrechen,
                  {QStringLiteral("Wiederherstellen"), QStringLiteral("Verwerfen"), QStringLiteral("Später")},
                  {}});
}

QString zeitpunkt(const Kopieplatz& platz) {
    const QDateTime zeit = QFileInfo(qtext(pfadtext(platz.datei()))).lastModified();
    return QLocale().toString(zeit, QStringLiteral("dd.MM.yyyy, HH:mm 'Uhr'"));
}

}  // namespace

Sicherungskopie::Sicherungskopie(Programm& programm, QObject* parent)
    : QObject(parent), programm_(programm), platz_(Kopieplatz::freier(programm.ordner, Kopieart::sicherung)) {
    uhr_.setInterval(abstand);
    uhr_.setSingleShot(true);
    connect(&uhr_, &QTimer::timeout, this, [this] {
        sichere();
        folgeZustand();
    });
    connect(&programm_, &Programm::zustandGeaendert, this, &Sicherungskopie::folgeZustand);
}

void Sicherungskopie::folgeZustand() {
    if (!programm_.Gesichert()) {
        if (!uhr_.isActive()) uhr_.start();
        return;
    }
    uhr_.stop();
    gesichert_ = {};
    if (platz_) platz_->loesche();
}

bool Sicherungskopie::sichere() {
    if (programm_.Gesichert()) return true;
    if (!platz_) return false;
    Kopie kopie{programm_.Dateiname, kodiert(positionstext(programm_.w))};
    if (kopie == gesichert_) return true;
    // A copy that cannot be written is tried again a minute later; the user's work goes on.
    if (platz_->schreibe(kopie)) return false;
    gesichert_ = std::move(kopie);
    return true;
}

void Sicherungskopie::stelleUeberschriebeneWiederHer(Meldungen& meldungen, QWidget* fenster) const {
    for (const Kopieplatz& platz : Kopieplatz::verwaiste(programm_.ordner, Kopieart::ueberschreiben)) {
        const Gelesen<Kopie> gelesen = platz.lies();
        if (gelesen.fehler) {
            meldungen.kritisch(fenster, QStringLiteral(" Fehler"), qtext(gelesen.fehler->text));
            continue;
        }
        const Kopie& kopie = gelesen.wert;
        const Dateiinhalt jetzt = liesDatei(pfadAus(kopie.name), std::string::npos);
        Antwort antwort = Antwort::nein;  // the file was not touched yet
        if (jetzt.lage != Dateilage::vorhanden || jetzt.bytes != kopie.bytes)
            antwort = frageNach(meldungen, fenster,
                                QStringLiteral("Das Schreiben der Datei\n%1\nwurde unterbrochen.\n\nSoll ihr "
                                               "Stand davor wiederhergestellt werden?")
                                    .arg(qtext(kopie.name)));
        if (antwort == Antwort::ja) {
            if (const auto fehler = schreibeDauerhaft(pfadAus(kopie.name), kopie.bytes, programm_.ordner)) {
                meldungen.kritisch(fenster, QStringLiteral(" Fehler"), qtext(fehler->text));
                continue;
            }
        }
        if (antwort != Antwort::abbrechen) platz.loesche();
    }
}

bool Sicherungskopie::stelleWiederHer(Meldungen& meldungen, QWidget* fenster) {
    stelleUeberschriebeneWiederHer(meldungen, fenster);
    for (const Kopieplatz& platz : Kopieplatz::verwaiste(programm_.ordner, Kopieart::sicherung)) {
        const Gelesen<Kopie> gelesen = platz.lies();
        const std::string& name = gelesen.wert.name;
        const QString text =
            QStringLiteral(
                "Eine Position war nicht gespeichert, als das Programm endete.\n\nPosition: %1\nzuletzt "
                "selbsttätig "
                "gesichert: %2\n\nSoll dieser Stand wiederhergestellt werden?")
                .arg(name.empty() ? QStringLiteral("<Neue Datei>") : qtext(name), zeitpunkt(platz));
        const Antwort antwort = frageNach(meldungen, fenster, text);
        if (antwort == Antwort::nein) platz.loesche();
        if (antwort != Antwort::ja) continue;  // a cancel keeps the copy for the next start
        if (gelesen.fehler) {
            meldungen.kritisch(fenster, QStringLiteral(" Fehler"), qtext(gelesen.fehler->text));
            continue;  // the copy stays for the next start
        }
        const auto w = std::make_unique<Wand>(programm_.w);
        liesPositionstext(dekodiert(gelesen.wert.bytes), *w);
        uebernimm(name, *w);
        // The old copy is given up for a new one only.
        if (sichere()) platz.loesche();
        return true;
    }
    return false;
}

void Sicherungskopie::uebernimm(const std::string& name, const Wand& w) {
    programm_.Sperre = true;
    programm_.w = w;
    programm_.felder = grundmasse(programm_.w);
    programm_.Sperre = false;
    programm_.Dateiname = name;
    programm_.DialogDateiname = qtext(name);
    programm_.setzeTitel(name.empty() ? QStringLiteral(" <Neue Datei> ") : qtext(name));
    programm_.setzeGesichert(false);
    programm_.zuweisen();
}

void Sicherungskopie::raeumeAuf() {
    uhr_.stop();
    if (platz_) platz_->loesche();
    platz_.reset();
}

}  // namespace rippenscheibe
