#include "ui/main/Form1_Hauptfenster.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QIcon>
#include <QMimeData>
#include <QMouseEvent>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>
#include <memory>
#include <utility>

#include "files/EigeneMaterialienDatei.h"
#include "run/Positionslauf.h"
#include "ui/basics/Beschreibungen.h"
#include "ui/basics/Fenster.h"
#include "ui/basics/Kuerzel.h"
#include "ui/basics/Meldungen.h"
#include "ui/controls/Symbol.h"
#include "ui/controls/Werteingabe.h"
#include "ui/drawings/Zeichnungsansicht.h"
#include "ui/main/Eingabezeile.h"
#include "ui/main/Fensterfabrik.h"
#include "ui/main/Hinweisliste.h"
#include "ui/session/ZuletztMenue.h"
#include "ui/verdict/Urteilsanzeige.h"

namespace rippenscheibe {

namespace {

constexpr QSize wunschgroesse(1180, 680);

const QString schluesselGeometrie = QStringLiteral("Hauptfenster/Geometrie");
const QString schluesselTeiler = QStringLiteral("Hauptfenster/");  // and the name of the splitter

// The file of a drag with a single local file, or "".
QString gezogeneDatei(const QMimeData& daten) {
    const QList<QUrl> orte = daten.urls();
    return orte.size() == 1 && orte.constFirst().isLocalFile() ? orte.constFirst().toLocalFile() : QString();
}

}  // namespace

Form1::Form1(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : QMainWindow(parent),
      programm_(programm),
      meldungen_(meldungen),
      ablauf_(programm, meldungen, this),
      sicherung_(programm) {
    if (programm.fenster == nullptr) programm.fenster = std::make_unique<Fensterfabrik>();
    setObjectName(QStringLiteral("Form1"));
    setAccessibleName(QStringLiteral("Hauptfenster"));
    setWindowIcon(symbol(QStringLiteral("rippenscheibe")));
    setAcceptDrops(true);

    auto* mitte = new QSplitter(Qt::Horizontal, this);
    mitte->setObjectName(QStringLiteral("TeilerMitte"));
    mitte->setChildrenCollapsible(false);
    mitte->addWidget(baueLinkeSpalte());
    mitte->addWidget(baueRechteSpalte());
    mitte->setSizes({400, 780});
    mitte->setStretchFactor(0, 0);
    mitte->setStretchFactor(1, 1);
    setCentralWidget(mitte);
    baueMenue();
    baueStatuszeile();
    setzeFarben();

    auto* regel = new Tastenregel(this);
    connect(regel, &Tastenregel::getippt, this, [this] { programm_.setzeGesichert(false); });
    connect(&programm_, &Programm::geaendert, this, &Form1::zeige);
    connect(&programm_, &Programm::ersetzt, this, [this] {
        // The visit of a field ends with its position, and a refused text with it.
        feldbesuch_ = false;
        zeigeSchritte();
        for (const Massfeld& feld : felder_) feld.eingabe->setzeWert(programm_.felder.*feld.mass);
    });
    connect(&programm_, &Programm::zustandGeaendert, this, &Form1::zeigeTitel);
    ablauf_.projektdaten = [this] { return oeffneFenster(Fensterart::projektdaten); };
    ablauf_.listeGeleert = [this] {
        geprueft_.reset();
        zeigeHinweise();
    };
    ablauf_.benutzt = [this](const QString& datei) { zuletzt_->merke(datei); };

    vergibKuerzel(*this);
    beschreibeBedienung(*this);
    stelleGroesseHer();
    programm_.setzeTitel(QStringLiteral(" <Neue Datei> "));
    zeige();
}

// What follows the colours of the desktop: each icon is drawn twice, for a light and for a dark ground.
void Form1::setzeFarben() {
    const bool dunkel = palette().color(QPalette::Window).lightness() < 128;
    for (const Symboltraeger& traeger : symbole_)
        traeger.setze(
            symbol(QStringLiteral("%1%2").arg(traeger.name, dunkel ? QStringLiteral("-dunkel") : QString())));
}

// ---- Start and end ----

void Form1::starte(const QString& datei) {
    std::vector<Dateifehler> unlesbar = programm_.ladeEinstellungen();
    auto materialien = ladeEigeneMaterialien(programm_.ordner);
    if (const auto stoerung = materialien.stoerung()) unlesbar.push_back(*stoerung);
    programm_.w.eigeneMaterialien = std::move(materialien.wert);
    for (const Dateifehler& fehler : unlesbar)
        meldungen_.hinweis(this, QStringLiteral(" Hinweis"),
                           qtext(fehler.text) + QStringLiteral(" Sie bleibt unverändert."));
    setzeVorgaben(programm_.w);
    programm_.felder = grundmasse(programm_.w);
    programm_.zuweisen();
    programm_.leereSchritte();
    programm_.setzeGesichert(true);

    const QString uebergeben =
        datei.isEmpty() ? qtext(holeUebergabe(programm_.datei(uebergabedatei))) : datei;
    if (sicherung_.stelleWiederHer(meldungen_, this)) {
        programm_.leereSchritte();
        // The recovered position is unsaved: opening another one asks about it.
        const bool andere = !uebergeben.isEmpty() && utf8(uebergeben) != programm_.Dateiname;
        if (andere) ablauf_.oeffnen(uebergeben);
        return;
    }
    bool geladen = false;
    if (!uebergeben.isEmpty()) {
        programm_.DialogDateiname = uebergeben;
        geladen = ablauf_.lade(uebergeben);
    }
    if (!geladen) oeffneFenster(Fensterart::projektdaten);
}

void Form1::beende() {
    // The flag spares the question of the closing window, so it is set only when the program ends: after a
    // cancel or a failed save the window must still ask before unsaved work is lost.
    if (!ablauf_.beenden()) return;
    endeBestaetigt_ = true;
    close();
}

void Form1::closeEvent(QCloseEvent* event) {
    if (const std::optional<Dateifehler> fehler = programm_.sichereProjekte())
        meldungen_.hinweis(this, QStringLiteral(" Hinweis"), qtext(fehler->text));
    if (!endeBestaetigt_) {
        const Antwort antwort =
            meldungen_.zeige(this, {Symbol::frage, QStringLiteral("Achtung"),
                                    QStringLiteral("Wollen Sie das Programm wirklich beenden ?"),
                                    Knoepfe::jaNein, Knopfworte{}, Antwort::nein});
        if (antwort != Antwort::ja) {
            event->ignore();
            return;
        }
    }
    QSettings merker(einstellungsdateiname(), QSettings::IniFormat);
    merker.setValue(schluesselGeometrie, saveGeometry());
    for (const QSplitter* teiler : findChildren<QSplitter*>())
        merker.setValue(schluesselTeiler + teiler->objectName(), teiler->saveState());
    // Who was not asked about unsaved work is offered it again at the next start.
    if (endeBestaetigt_ || programm_.Gesichert())
        sicherung_.raeumeAuf();
    else
        sicherung_.sichere();
    event->accept();
}

// Size and splitters as they were left, within the screen there is now.
void Form1::stelleGroesseHer() {
    const QSize schirm = screen()->availableSize();
    resize(wunschgroesse.boundedTo(schirm));
    const QSettings merker(einstellungsdateiname(), QSettings::IniFormat);
    restoreGeometry(merker.value(schluesselGeometrie).toByteArray());
    if (!isMaximized() && !isFullScreen()) resize(size().boundedTo(schirm));
    for (QSplitter* teiler : findChildren<QSplitter*>())
        teiler->restoreState(merker.value(schluesselTeiler + teiler->objectName()).toByteArray());
}

// ---- Showing the position ----

void Form1::zeige() {
    for (const Massfeld& feld : felder_)
        if (feld.eingabe->wert() != programm_.felder.*feld.mass)
            feld.eingabe->setzeWert(programm_.felder.*feld.mass);
    for (const auto& [zeile, text] : zeilen_) zeile->setzeZusammenfassung(text(programm_.w));
    ansicht_->setzeWand(programm_.w);
    urteil_->zeige(rechneSofort(programm_.w, programm_.felder));
    urteil_->zeigeLastfaelle(rechneLastfaelle(programm_.w, lastfaelle_.zu(programm_.Dateiname)),
                             lastfaelle_.fehler());
    zeigeHinweisstand();
    zeigeTitel();
}

void Form1::zeigeTitel() {
    setWindowTitle((programm_.Gesichert() ? QString() : QStringLiteral("* ")) + programm_.Titel());
}

void Form1::zeigeHinweise() {
    hinweise_->zeige(programm_.w.Hinweise);
    zeigeHinweisstand();
}

// The findings are those of the last check; behind any change they are marked as older.
void Form1::zeigeHinweisstand() {
    using Stand = Hinweisliste::Stand;
    if (!geprueft_)
        hinweise_->setzeStand(Stand::ungeprueft);
    else
        hinweise_->setzeStand(gleich(*geprueft_, programm_.eingabestand()) ? Stand::aktuell
                                                                           : Stand::veraltet);
}

// All changes of one visit of a field are one step of undo. A change without the focus is a step of its own.
void Form1::uebernimmFeld(const Massfeld& feld, double wert) {
    if (programm_.Sperre || programm_.felder.*feld.mass == wert) return;
    if (!feldbesuch_) programm_.beginneSchritt(feld.schritt);
    feldbesuch_ = true;
    programm_.felder.*feld.mass = wert;
    programm_.setzeGesichert(false);
    programm_.zuweisen();
    if (!feld.eingabe->hasFocus())
        beendeFeldbesuch();
    else
        zeigeSchritte();
}

void Form1::beendeFeldbesuch() {
    if (!feldbesuch_) return;
    feldbesuch_ = false;
    programm_.beendeSchritt();
}

void Form1::rechneUndZeige(Fensterart ausgabe) {
    if (!eingabenGueltig(*this, meldungen_)) return;
    programm_.vorDemLauf = programm_.w;
    programm_.zuweisen();
    const Positionslauf lauf = laufePosition(programm_.w, programm_.felder);
    geprueft_ = programm_.eingabestand();
    zeigeHinweise();
    if (!lauf.gerechnet()) {
        meldungen_.kritisch(this, QStringLiteral(" Fehler"), qtext(lauf.satz));
        return;
    }
    if (!lauf.satz.empty()) meldungen_.hinweis(this, QStringLiteral(" Hinweis"), qtext(lauf.satz));
    oeffneFenster(ausgabe);
}

// The start button "einsehen"; the result view opens at the section.
void Form1::oeffneErgebnis(int abschnitt) {
    programm_.Ergebnisziel = abschnitt;
    einsehen_->click();
    programm_.Ergebnisziel.reset();
}

bool Form1::oeffneFenster(Fensterart art) {
    const bool uebernommen = oeffne(art, programm_, meldungen_, this);
    if (const auto datei = std::exchange(programm_.fenster->positionswunsch, std::nullopt))
        ablauf_.oeffnen(qtext(*datei));
    zeige();
    return uebernommen;
}

// The field or dialog where the input stands that a finding names.
void Form1::oeffneZu(Eingabeort ort) {
    switch (ort) {
        case Eingabeort::Wandlaenge:
            oeffneMass(&Grundmasse::Wandlaenge);
            break;
        case Eingabeort::Rippenabstand:
            oeffneMass(&Grundmasse::Rippenabstand);
            break;
        case Eingabeort::Rippen:
            oeffneFenster(Fensterart::rippen);
            break;
        case Eingabeort::Beplankung:
            oeffneFenster(Fensterart::beplankung);
            break;
        case Eingabeort::Verbindungsmittel:
            oeffneFenster(Fensterart::verbindungsmittel);
            break;
    }
}

void Form1::oeffneMass(double Grundmasse::*mass) {
    for (const Massfeld& feld : felder_) {
        if (feld.mass != mass) continue;
        feld.eingabe->setFocus(Qt::OtherFocusReason);
        feld.eingabe->selectAll();
    }
}

// ---- Files, drag and drop ----

QString Form1::einstellungsdateiname() const {
    return QString::fromStdU16String(programm_.datei("Fenster.ini").u16string());
}

void Form1::dragEnterEvent(QDragEnterEvent* event) {
    if (!gezogeneDatei(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void Form1::dropEvent(QDropEvent* event) {
    const QString datei = gezogeneDatei(*event->mimeData());
    if (datei.isEmpty()) return;
    event->acceptProposedAction();
    // Boxes only once the drag is over: the program it came from waits for that.
    QMetaObject::invokeMethod(
        this, [this, datei] { ablauf_.oeffnen(datei); }, Qt::QueuedConnection);
}

void Form1::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) setzeFarben();
}

bool Form1::eventFilter(QObject* object, QEvent* event) {
    const bool leiste = object == statusBar() || object->parent() == statusBar();
    if (leiste && event->type() == QEvent::MouseButtonRelease &&
        static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton) {
        oeffneFenster(Fensterart::kalender);
        return true;
    }
    if (!leiste && event->type() == QEvent::FocusOut) beendeFeldbesuch();
    // Undo in a field takes back the step of the position, not letters.
    if (!leiste && event->type() == QEvent::ShortcutOverride) {
        const auto& taste = static_cast<const QKeyEvent&>(*event);
        if (taste.matches(QKeySequence::Undo) || taste.matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    return QMainWindow::eventFilter(object, event);
}

}  // namespace rippenscheibe
