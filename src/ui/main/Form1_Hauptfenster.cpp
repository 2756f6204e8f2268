#include "ui/main/Form1_Hauptfenster.h"

#include <QAction>
#include <QCloseEvent>
#include <QDate>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "files/EigeneMaterialienDatei.h"
#include "model/Feldangaben.h"
#include "plausibility/Plausibilitaetslauf.h"
#include "run/Berechnungslauf.h"
#include "ui/basics/Fenster.h"
#include "ui/basics/Kuerzel.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Symbol.h"
#include "ui/basics/Werteingabe.h"
#include "ui/drawings/Zeichnungsansicht.h"
#include "ui/help/Handbuch.h"
#include "ui/main/Fensterfabrik.h"
#include "ui/main/Form1_Teile.h"
#include "ui/main/Form1_Zusammenfassung.h"

namespace rippenscheibe {

namespace {

constexpr int raster = 8;
constexpr int hoechstensZuletzt = 8;
constexpr double mmJeM = 1000;

const QString schluesselGeometrie = QStringLiteral("Hauptfenster/Geometrie");
const QString schluesselZuletzt = QStringLiteral("Zuletzt");

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
    mitte->setChildrenCollapsible(false);
    mitte->addWidget(baueLinkeSpalte());
    mitte->addWidget(baueRechteSpalte());
    mitte->setSizes({380, 800});
    mitte->setStretchFactor(0, 0);
    mitte->setStretchFactor(1, 1);
    setCentralWidget(mitte);
    baueMenue();
    baueWerkzeugleiste();
    baueStatuszeile();
    setzeFarben();

    auto* regel = new Tastenregel(this);
    connect(regel, &Tastenregel::getippt, this, [this] { programm_.setzeGesichert(false); });
    connect(&programm_, &Programm::geaendert, this, &Form1::zeige);
    connect(&programm_, &Programm::ersetzt, this, [this] {
        // A refused text does not outlive its position.
        for (const auto& [feld, mass] : felder_) feld->setzeWert(programm_.felder.*mass);
    });
    connect(&programm_, &Programm::zustandGeaendert, this, &Form1::zeigeTitel);
    ablauf_.projektdaten = [this] { return oeffneFenster(Fensterart::projektdaten); };
    ablauf_.listeGeleert = [this] { zeigeHinweise(); };
    ablauf_.benutzt = [this](const QString& datei) { merkeDatei(datei); };

    vergibKuerzel(*this);
    resize(1180, 760);
    const QSettings merker(einstellungsdateiname(), QSettings::IniFormat);
    restoreGeometry(merker.value(schluesselGeometrie).toByteArray());
    programm_.setzeTitel(QStringLiteral(" <Neue Datei> "));
    zeige();
}

// ---- Building ----

QWidget* Form1::baueLinkeSpalte() {
    auto* spalte = new QWidget(this);
    auto* aussen = new QVBoxLayout(spalte);
    aussen->setContentsMargins(raster, raster, raster / 2, raster);
    aussen->setSpacing(raster);

    // On a low window the inputs scroll; the start buttons stay in sight.
    auto* inhalt = new QWidget(spalte);
    auto* gruppen = new QVBoxLayout(inhalt);
    gruppen->setContentsMargins(0, 0, 0, 0);
    gruppen->setSpacing(raster);
    gruppen->addWidget(baueAbmessungen());
    gruppen->addWidget(baueEingabe());
    gruppen->addStretch(1);
    auto* rollen = new QScrollArea(spalte);
    rollen->setWidget(inhalt);
    rollen->setWidgetResizable(true);
    rollen->setFrameShape(QFrame::NoFrame);
    rollen->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rollen->setFocusPolicy(Qt::NoFocus);
    rollen->setMinimumWidth(std::max(inhalt->sizeHint().width() + 2 * raster, 340));
    aussen->addWidget(rollen, 1);

    const auto startknopf = [&](const QString& name, const QString& text, Fensterart ausgabe) {
        auto* knopf = new QPushButton(text, spalte);
        knopf->setObjectName(name);
        knopf->setAccessibleName(text);
        QFont schrift = knopf->font();
        schrift.setBold(true);
        knopf->setFont(schrift);
        knopf->setMinimumHeight(5 * raster);
        setzeEnter(*knopf, Enter::weiter);  // no key starts a run
        ohneKuerzel(*knopf);
        connect(knopf, &QPushButton::clicked, this, [this, ausgabe] { rechneUndZeige(ausgabe); });
        aussen->addWidget(knopf);
        return knopf;
    };
    startknopf(QStringLiteral("ComErgDruck"), QStringLiteral("Berechnung starten und Werte ausdrucken"),
               Fensterart::druck);
    einsehen_ =
        startknopf(QStringLiteral("ComErgEin2"), QStringLiteral("Berechnung starten und Ergebnisse einsehen"),
                   Fensterart::ergebnisse);
    return spalte;
}

QGroupBox* Form1::baueAbmessungen() {
    auto* rahmen = new QGroupBox(QStringLiteral("Abmessungen"), this);
    auto* grid = new QGridLayout(rahmen);
    grid->setHorizontalSpacing(raster);
    grid->setVerticalSpacing(raster);
    grid->setColumnStretch(2, 1);
    const auto feld = [&](int index, const QString& text, std::string_view name, double teiler,
                          double Grundmasse::*mass) {
        const Wertschild schild{QStringLiteral("Textbox1(%1)").arg(index), text, QStringLiteral("m"), teiler};
        auto* wert = new Werteingabe(schild.name, wertvorgabe(eingabeangabe(name).value(), schild), rahmen);
        wert->setzeInZeile(grid, index);
        felder_.emplace_back(wert, mass);
        connect(wert, &Werteingabe::geaendert, this, [this, mass](double neu) { uebernimmFeld(mass, neu); });
    };
    feld(0, QStringLiteral("Wandlänge l ="), "Wandlaenge", 1, &Grundmasse::Wandlaenge);
    feld(1, QStringLiteral("Wandhöhe h ="), "Wandhoehe", 1, &Grundmasse::Wandhoehe);
    feld(2, QStringLiteral("Abstand Rippen ar ="), "Rippenabstand", mmJeM, &Grundmasse::Rippenabstand);
    return rahmen;
}

QGroupBox* Form1::baueEingabe() {
    struct Eintrag {
        const char* name;
        QString text;
        Fensterart art;
        QString (*zusammenfassung)(const Wand&);
    };
    const std::vector<Eintrag> eintraege{
        {"Command5", QStringLiteral("Abmessungen / Material für Rippen eingeben"), Fensterart::rippen,
         zusammenfassungRippen},
        {"Command1", QStringLiteral("Beplankung deklarieren"), Fensterart::beplankung,
         zusammenfassungBeplankung},
        {"Command2", QStringLiteral("Verbindungsmittel deklarieren"), Fensterart::verbindungsmittel,
         zusammenfassungVerbindungsmittel},
        {"Command3", QStringLiteral("Verankerung deklarieren"), Fensterart::verankerung,
         zusammenfassungVerankerung},
        {"Command4", QStringLiteral("Belastung eingeben"), Fensterart::belastung, zusammenfassungBelastung},
        {"Command6", QStringLiteral("Bemessungs- / Berechnungsoptionen festlegen"), Fensterart::bemessung,
         zusammenfassungBemessung},
    };
    auto* rahmen = new QGroupBox(QStringLiteral("Eingabe"), this);
    auto* reihe = new QVBoxLayout(rahmen);
    reihe->setSpacing(2);
    for (const Eintrag& eintrag : eintraege) {
        auto* knopf = new QPushButton(eintrag.text, rahmen);
        knopf->setObjectName(QLatin1String(eintrag.name));
        knopf->setAccessibleName(eintrag.text);
        connect(knopf, &QPushButton::clicked, this, [this, art = eintrag.art] { oeffneFenster(art); });
        auto* zeile = new Kurzzeile(rahmen);
        zeile->setObjectName(QLatin1String(eintrag.name) + QStringLiteral("_Zusammenfassung"));
        zeile->setContentsMargins(raster / 2, 0, 0, 0);
        reihe->addWidget(knopf);
        reihe->addWidget(zeile);
        reihe->addSpacing(raster / 2);
        zeilen_.push_back({zeile, eintrag.zusammenfassung});
    }
    return rahmen;
}

QWidget* Form1::baueRechteSpalte() {
    auto* teiler = new QSplitter(Qt::Vertical, this);
    teiler->setChildrenCollapsible(false);
    ansicht_ = new Zeichnungsansicht(Zeichnung::ansicht, teiler);
    ansicht_->setObjectName(QStringLiteral("Picture1"));
    ansicht_->setzeDezimalzeichen(dezimalzeichen());
    ansicht_->bieteDateien(programm_, meldungen_);
    connect(ansicht_, &Zeichnungsansicht::angeklickt, this, &Form1::oeffneFenster);
    teiler->addWidget(ansicht_);

    auto* rahmen = new QGroupBox(QStringLiteral("Hinweise / Fehler"), teiler);
    auto* reihe = new QHBoxLayout(rahmen);
    reihe->setSpacing(raster);
    hinweise_ = new Hinweisliste(rahmen);
    hinweise_->setObjectName(QStringLiteral("List1"));
    hinweise_->setAccessibleName(QStringLiteral("Hinweise / Fehler"));
    hinweise_->setAccessibleDescription(
        QStringLiteral("Doppelklick oder Eingabetaste öffnet das Fenster der genannten Eingabe"));
    connect(hinweise_, &Hinweisliste::geoeffnet, this, &Form1::oeffneZu);
    auto* info = new QToolButton(rahmen);
    info->setObjectName(QStringLiteral("ComInfo2"));
    info->setToolTip(QStringLiteral("Info zu Randbedingungen"));
    info->setAccessibleName(QStringLiteral("Info zu Randbedingungen"));
    info->setFocusPolicy(Qt::StrongFocus);
    info->setIconSize({24, 24});
    connect(info, &QToolButton::clicked, this, [this] { oeffneFenster(Fensterart::randbedingungen); });
    symbole_.push_back({[info](const QIcon& symbol) { info->setIcon(symbol); }, QStringLiteral("info")});
    reihe->addWidget(hinweise_, 1);
    reihe->addWidget(info, 0, Qt::AlignTop);
    teiler->addWidget(rahmen);
    teiler->setStretchFactor(0, 1);
    teiler->setStretchFactor(1, 0);
    teiler->setSizes({580, 110});
    teiler->setContentsMargins(0, raster, raster, raster);
    return teiler;
}

QAction* Form1::befehl(QMenu* menue, const QString& name, const QString& text,
                       const std::function<void()>& ausfuehren) {
    auto* aktion = new QAction(text, this);
    aktion->setObjectName(name);
    connect(aktion, &QAction::triggered, this, ausfuehren);
    menue->addAction(aktion);
    return aktion;
}

void Form1::baueMenue() {
    const auto menue = [this](const QString& name, const QString& text) {
        QMenu* neu = menuBar()->addMenu(text);
        neu->setObjectName(name);
        return neu;
    };
    QMenu* datei = menue(QStringLiteral("mnuFile"), QStringLiteral("&Datei"));
    befehl(datei, QStringLiteral("mnuFNew"), QStringLiteral("&Neue Datei"), [this] {
        ablauf_.neu();
    })->setShortcut(QKeySequence::New);
    befehl(datei, QStringLiteral("mnuFOpen"), QStringLiteral("Datei ö&ffnen ..."), [this] {
        ablauf_.oeffnen();
    })->setShortcut(QKeySequence::Open);
    zuletzt_ = datei->addMenu(QStringLiteral("&Zuletzt geöffnet"));
    zuletzt_->setObjectName(QStringLiteral("mnuFRecent"));
    connect(zuletzt_, &QMenu::aboutToShow, this, &Form1::fuelleZuletzt);
    datei->addSeparator();
    befehl(datei, QStringLiteral("mnuFSave"), QStringLiteral("Datei &sichern"), [this] {
        ablauf_.sichern();
    })->setShortcut(QKeySequence::Save);
    befehl(datei, QStringLiteral("mnuFSaveAs"), QStringLiteral("Datei speichern &unter ..."), [this] {
        ablauf_.sichernUnter();
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    datei->addSeparator();
    befehl(datei, QStringLiteral("mnuFPrint"), QStringLiteral("Berechnung starten und Werte aus&drucken"),
           [this] { rechneUndZeige(Fensterart::druck); });
    befehl(datei, QStringLiteral("mnuFView"), QStringLiteral("Berechnung starten und Ergebnisse &einsehen"),
           [this] { rechneUndZeige(Fensterart::ergebnisse); });
    datei->addSeparator();
    befehl(datei, QStringLiteral("mnuFClose"), QStringLiteral("Programm &beenden"), [this] {
        beende();
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));

    QMenu* projekt = menue(QStringLiteral("mnuProjekte"), QStringLiteral("&Projekt"));
    befehl(projekt, QStringLiteral("mnuProjekt"), QStringLiteral("&Projektdaten ..."),
           [this] { oeffneFenster(Fensterart::projektdaten); });
    befehl(projekt, QStringLiteral("mnuExplorer"), QStringLiteral("Projekt&manager starten"),
           [this] { starteProjektmanager(); });

    QMenu* bemerkungen = menue(QStringLiteral("mnuBemerkungen"), QStringLiteral("&Bemerkungen"));
    befehl(bemerkungen, QStringLiteral("mnuvorb"), QStringLiteral("&Bemerkungen zur Position ..."),
           [this] { oeffneFenster(Fensterart::bemerkungen); });

    QMenu* optionen = menue(QStringLiteral("mnuOptionen"), QStringLiteral("&Optionen"));
    befehl(optionen, QStringLiteral("mnuoptions"), QStringLiteral("&Seitenkopf und Standardpfad ..."),
           [this] { oeffneFenster(Fensterart::seitenkopf); });
    befehl(optionen, QStringLiteral("mnuoptiondruck"), QStringLiteral("&Drucker einrichten ..."),
           [this] { meldungen_.richteDruckerEin(this, programm_.drucker()); });

    QMenu* extras = menue(QStringLiteral("mnuExtras"), QStringLiteral("&Extras"));
    befehl(extras, QStringLiteral("mnupocketcalc"), QStringLiteral("&Taschenrechner"),
           [this] { oeffneFenster(Fensterart::rechner); });
    befehl(extras, QStringLiteral("mnuKalender"), QStringLiteral("&Kalender"),
           [this] { oeffneFenster(Fensterart::kalender); });
    befehl(extras, QStringLiteral("mnuMaterialien"), QStringLiteral("&Eigene Materialien ..."),
           [this] { oeffneFenster(Fensterart::eigeneMaterialien); });
    befehl(extras, QStringLiteral("mnuSysConfig"), QStringLiteral("&Systemkonfiguration"),
           [this] { oeffneFenster(Fensterart::systemkonfiguration); });
    extras->addSeparator();
    befehl(extras, QStringLiteral("mnuVerwerfen"), QStringLiteral("Ergebnisse &verwerfen"),
           [this] { programm_.verwirfErgebnisse(); });

    QMenu* hilfe = menue(QStringLiteral("mnuHilfe"), QStringLiteral("&Hilfe"));
    befehl(hilfe, QStringLiteral("mnuHandbuch"), QStringLiteral("&Handbuch"), [this] {
        oeffneHandbuch(this);
    })->setShortcut(QKeySequence(Qt::Key_F1));
    befehl(hilfe, QStringLiteral("mnuRandbedingungen"), QStringLiteral("&Randbedingungen"),
           [this] { oeffneFenster(Fensterart::randbedingungen); });
    befehl(hilfe, QStringLiteral("mnuUeber"), QStringLiteral("&Über Rippenscheibe"),
           [this] { oeffneFenster(Fensterart::ueber); });
}

void Form1::baueWerkzeugleiste() {
    struct Eintrag {
        QString text;
        QString symbol;
        QString befehl;
        bool trennerDavor;
    };
    const std::vector<Eintrag> eintraege{
        {QStringLiteral("Neue Datei"), QStringLiteral("neu"), QStringLiteral("mnuFNew"), false},
        {QStringLiteral("Datei öffnen"), QStringLiteral("oeffnen"), QStringLiteral("mnuFOpen"), false},
        {QStringLiteral("Datei sichern"), QStringLiteral("sichern"), QStringLiteral("mnuFSave"), false},
        {QStringLiteral("Datei speichern unter"), QStringLiteral("speichern-unter"),
         QStringLiteral("mnuFSaveAs"), false},
        {QStringLiteral("Drucker einrichten"), QStringLiteral("drucker"), QStringLiteral("mnuoptiondruck"),
         true},
        {QStringLiteral("Optionen"), QStringLiteral("optionen"), QStringLiteral("mnuoptions"), false},
        {QStringLiteral("Taschenrechner"), QStringLiteral("rechner"), QStringLiteral("mnupocketcalc"), true},
        {QStringLiteral("Programm beenden"), QStringLiteral("ende"), QStringLiteral("mnuFClose"), true},
    };
    QToolBar* leiste = addToolBar(QStringLiteral("Werkzeugleiste"));
    leiste->setObjectName(QStringLiteral("Toolbar1"));
    leiste->setAccessibleName(QStringLiteral("Werkzeugleiste"));
    leiste->setMovable(false);
    leiste->setIconSize({24, 24});
    int index = 0;
    for (const Eintrag& eintrag : eintraege) {
        if (eintrag.trennerDavor) leiste->addSeparator();
        auto* aktion = new QAction(eintrag.text, this);
        aktion->setObjectName(QStringLiteral("Toolbar1(%1)").arg(++index));
        aktion->setToolTip(eintrag.text);
        connect(aktion, &QAction::triggered, findChild<QAction*>(eintrag.befehl), &QAction::trigger);
        leiste->addAction(aktion);
        leiste->widgetForAction(aktion)->setAccessibleName(eintrag.text);
        symbole_.push_back({[aktion](const QIcon& symbol) { aktion->setIcon(symbol); }, eintrag.symbol});
    }
}

void Form1::baueStatuszeile() {
    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    statusBar()->setAccessibleName(QStringLiteral("Statuszeile"));
    statusBar()->setToolTip(QStringLiteral("Klick öffnet den Kalender"));
    const auto feld = [this](const QString& text, int dehnung) {
        auto* schild = new QLabel(text, this);
        schild->setContentsMargins(0, 0, 2 * raster, 0);
        schild->installEventFilter(this);
        statusBar()->addPermanentWidget(schild, dehnung);
    };
    feld(QStringLiteral(" Rippenscheibe-Tafeln - DIN 1052 (2008)"), 1);
    feld(QStringLiteral("Rippenscheibe"), 0);
    feld(QLocale().toString(QDate::currentDate(), QStringLiteral("dd.MM.yyyy")), 0);
    statusBar()->installEventFilter(this);
}

// What follows the colours of the desktop: each icon is drawn twice, for a light and for a dark ground, and
// the default action stands in the accent colour.
void Form1::setzeFarben() {
    QPalette akzent = palette();
    // Darker than the accent itself: styles lighten their buttons, and the white text has to stand out.
    akzent.setColor(QPalette::Button, palette().color(QPalette::Highlight).darker(140));
    akzent.setColor(QPalette::ButtonText, palette().color(QPalette::HighlightedText));
    einsehen_->setPalette(akzent);
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
    programm_.setzeGesichert(true);

    const QString uebergeben =
        datei.isEmpty() ? qtext(holeUebergabe(programm_.datei(uebergabedatei))) : datei;
    if (sicherung_.stelleWiederHer(meldungen_, this)) {
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
    // Who was not asked about unsaved work is offered it again at the next start.
    if (endeBestaetigt_ || programm_.Gesichert())
        sicherung_.raeumeAuf();
    else
        sicherung_.sichere();
    event->accept();
}

void Form1::starteProjektmanager() {
    for (const char* name : {"QPM.exe", "QPM"}) {
        const QString programm = QString::fromStdU16String(programm_.datei(name).u16string());
        if (QFileInfo(programm).isFile() && QProcess::startDetached(programm, {})) return;
    }
    meldungen_.hinweis(
        this, QStringLiteral(" Hinweis"),
        QStringLiteral("Der Projektmanager \"QPM.exe\" ist auf diesem Rechner nicht vorhanden."));
}

// ---- Showing the position ----

void Form1::zeige() {
    for (const auto& [feld, mass] : felder_)
        if (feld->wert() != programm_.felder.*mass) feld->setzeWert(programm_.felder.*mass);
    for (const Zeile& zeile : zeilen_) zeile.schild->setzeText(zeile.text(programm_.w));
    ansicht_->setzeWand(programm_.w);
    zeigeTitel();
}

void Form1::zeigeTitel() {
    setWindowTitle((programm_.Gesichert() ? QString() : QStringLiteral("* ")) + programm_.Titel());
}

void Form1::zeigeHinweise() {
    QStringList texte;
    for (const std::string& hinweis : programm_.w.Hinweise) texte << qtext(hinweis);
    hinweise_->zeige(texte);
}

void Form1::uebernimmFeld(double Grundmasse::*feld, double wert) {
    if (programm_.Sperre || programm_.felder.*feld == wert) return;
    programm_.felder.*feld = wert;
    programm_.setzeGesichert(false);
    programm_.zuweisen();
}

void Form1::rechneUndZeige(Fensterart ausgabe) {
    if (!eingabenGueltig(*this, meldungen_)) return;
    programm_.zuweisen();
    const Laufergebnis ergebnis = rippenscheibe::starte(programm_.w);
    zeigeHinweise();
    if (ergebnis == Laufergebnis::hinweise) {
        meldungen_.kritisch(
            this, QStringLiteral(" Fehler"),
            QStringLiteral("Es liegen konstruktive Fehler vor, bitte Hinweise beachten und Fehler "
                           "beheben!"));
        return;
    }
    if (!programm_.w.AlleNachweiseErfuellt)
        meldungen_.hinweis(
            this, QStringLiteral(" Hinweis"),
            QStringLiteral("Es werden nicht alle Nachweise erfüllt, bitte Ergebnisse prüfen! "));
    oeffneFenster(ausgabe);
}

bool Form1::oeffneFenster(Fensterart art) {
    const bool uebernommen = oeffne(art, programm_, meldungen_, this);
    zeige();
    return uebernommen;
}

// The dialog where the input stands that a finding names.
void Form1::oeffneZu(const QString& hinweis) {
    switch (ort(utf8(hinweis))) {
        case Eingabeort::Abmessungen:
            felder_.front().first->setFocus(Qt::OtherFocusReason);
            felder_.front().first->selectAll();
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
        case Eingabeort::unbekannt:
            break;
    }
}

// ---- Recent files, drag and drop ----

QString Form1::einstellungsdateiname() const {
    return QString::fromStdU16String(programm_.datei("Fenster.ini").u16string());
}

void Form1::merkeDatei(const QString& datei) {
    QSettings merker(einstellungsdateiname(), QSettings::IniFormat);
    QStringList dateien = merker.value(schluesselZuletzt).toStringList();
    const QString ganz = QFileInfo(datei).absoluteFilePath();
    dateien.removeAll(ganz);
    dateien.prepend(ganz);
    merker.setValue(schluesselZuletzt, dateien.mid(0, hoechstensZuletzt));
}

void Form1::fuelleZuletzt() {
    zuletzt_->clear();
    const QSettings merker(einstellungsdateiname(), QSettings::IniFormat);
    int nummer = 0;
    for (const QString& datei : merker.value(schluesselZuletzt).toStringList()) {
        if (!QFileInfo::exists(datei)) continue;
        QString text = QDir::toNativeSeparators(datei);
        text.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* aktion = zuletzt_->addAction(QStringLiteral("&%1  %2").arg(++nummer).arg(text));
        connect(aktion, &QAction::triggered, this, [this, datei] { ablauf_.oeffnen(datei); });
    }
    if (nummer == 0) zuletzt_->addAction(QStringLiteral("(keine)"))->setEnabled(false);
}

void Form1::dragEnterEvent(QDragEnterEvent* event) {
    if (!gezogeneDatei(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void Form1::dropEvent(QDropEvent* event) {
    const QString datei = gezogeneDatei(*event->mimeData());
    if (datei.isEmpty()) return;
    event->acceptProposedAction();
    // Boxes only once the drag is over: the program it came from waits for that.
    QTimer::singleShot(0, this, [this, datei] { ablauf_.oeffnen(datei); });
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
    return QMainWindow::eventFilter(object, event);
}

}  // namespace rippenscheibe
