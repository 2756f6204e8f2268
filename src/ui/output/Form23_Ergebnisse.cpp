#include "ui/output/Form23_Ergebnisse.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "report/Bericht.h"
#include "report/Rtfausgabe.h"
#include "ui/basics/Fensteroeffner.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/basics/Zieldatei.h"
#include "ui/derivation/Herleitungsansicht.h"
#include "ui/drawings/Ausgabe.h"
#include "ui/output/Form23_Text.h"
#include "ui/paper/PdfAusgabe.h"
#include "ui/verdict/Form23_Ausnutzungen.h"
#include "ui/verdict/Urteilsstreifen.h"

namespace rippenscheibe {

namespace {

constexpr double aufloesungBild = 200;  // dots per inch of an inserted picture

}  // namespace

Form23::Form23(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Form23"), QStringLiteral("  Ergebnisse "),
              Tippen::aendertNichts) {
    streifen_ = new Urteilsstreifen(programm.w, dezimalzeichen(), this);
    auto* teiler = new QSplitter(Qt::Vertical, this);
    teiler->setObjectName(QStringLiteral("Teiler"));
    teiler->setChildrenCollapsible(false);
    teiler->addWidget(streifen_);
    teiler->addWidget(mitHerleitung(baueText()));
    teiler->setStretchFactor(1, 1);
    // The tree shows all sections at first.
    teiler->setSizes({12 * fontMetrics().lineSpacing() + 4, 480});
    inhalt()->addWidget(teiler, 1);
    connect(streifen_->baum(), &Ausnutzungsbaum::zeileGewaehlt, this,
            [this](int zeile) { zeigeZeile(zeilen_, zeile); });
    connect(streifen_->baum(), &Ausnutzungsbaum::abschnittGewaehlt, this,
            [this](int abschnitt) { zeigeZeile(abschnitte_, abschnitt); });
    baueSchaltflaechen();
    lade();
    text_->setFocus();
    resize(1060, 720);
}

// ---- Building ----

QWidget* Form23::baueText() {
    auto* spalte = new QWidget(this);
    auto* reihe = new QVBoxLayout(spalte);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(raster / 2);
    text_ = new Ergebnisfeld(spalte);
    text_->setObjectName(QStringLiteral("Rbox1"));
    text_->setAccessibleName(QStringLiteral("Ergebnisse"));
    reihe->addWidget(text_, 1);
    reihe->addWidget(baueSuchzeile());
    return spalte;
}

QWidget* Form23::baueSuchzeile() {
    suchzeile_ = new QWidget(this);
    auto* reihe = new QHBoxLayout(suchzeile_);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(raster);
    suchwort_ = new QLineEdit(suchzeile_);
    suchwort_->setObjectName(QStringLiteral("Suchwort"));
    suchwort_->setAccessibleName(QStringLiteral("Suchen nach"));
    suchwort_->setClearButtonEnabled(true);
    setzeEnter(*suchwort_, Enter::eigen);  // to the next place
    auto* schild = new QLabel(QStringLiteral("Suchen :"), suchzeile_);
    schild->setBuddy(suchwort_);
    trefferzahl_ = new QLabel(suchzeile_);
    trefferzahl_->setObjectName(QStringLiteral("Trefferzahl"));
    trefferzahl_->setMinimumWidth(12 * raster);
    reihe->addWidget(schild);
    reihe->addWidget(suchwort_, 1);
    reihe->addWidget(trefferzahl_);
    const auto knopf = [&](const QString& name, const QString& text, const QKeySequence& taste, int schritt) {
        auto* k = new QToolButton(suchzeile_);
        k->setObjectName(name);
        k->setText(text);
        k->setAccessibleName(text);
        k->setToolTip(taste.toString(QKeySequence::NativeText));
        reihe->addWidget(k);
        connect(k, &QToolButton::clicked, this, [this, schritt] { springe(schritt); });
        auto* aktion = new QAction(this);
        aktion->setShortcut(taste);
        connect(aktion, &QAction::triggered, this, [this, schritt] { springe(schritt); });
        addAction(aktion);
    };
    knopf(QStringLiteral("Voriger"), QStringLiteral("Voriger"), QKeySequence(Qt::SHIFT | Qt::Key_F3), -1);
    knopf(QStringLiteral("Naechster"), QStringLiteral("Nächster"), QKeySequence(Qt::Key_F3), 1);
    connect(suchwort_, &QLineEdit::textChanged, this, &Form23::suche);
    connect(suchwort_, &QLineEdit::returnPressed, this, [this] { springe(1); });

    // Esc leaves the search first, wherever the focus is, then the window.
    sucheBeenden_ = new QAction(this);
    sucheBeenden_->setShortcut(QKeySequence(Qt::Key_Escape));
    sucheBeenden_->setEnabled(false);
    connect(sucheBeenden_, &QAction::triggered, this, &Form23::verbirgSuche);
    addAction(sucheBeenden_);
    suchzeile_->hide();
    return suchzeile_;
}

// Beside the text stands where the number at the caret comes from.
QWidget* Form23::mitHerleitung(QWidget* spalte) {
    auto* teiler = new QSplitter(Qt::Horizontal, this);
    auto* herleitung = new Herleitungsansicht(programm_, meldungen_, teiler);
    teiler->addWidget(spalte);
    teiler->addWidget(herleitung);
    teiler->setStretchFactor(0, 1);
    teiler->setSizes({680, 380});
    connect(text_, &QTextEdit::cursorPositionChanged, herleitung, [this, herleitung] {
        const QTextCursor marke = text_->textCursor();
        std::vector<QString> davor;
        for (QTextBlock block = text_->document()->begin(); block != marke.block(); block = block.next())
            davor.push_back(block.text());
        herleitung->zeigeStelle(davor, marke.block().text(), marke.positionInBlock());
    });
    return teiler;
}

void Form23::baueSchaltflaechen() {
    const auto knopf = [this](const QString& name, const QString& text, const QString& hinweis,
                              void (Form23::*tue)(), const QKeySequence& taste = {}) {
        QPushButton* k = schaltflaeche(name, text);
        k->setToolTip(hinweis);
        if (!taste.isEmpty()) k->setShortcut(taste);
        connect(k, &QPushButton::clicked, this, tue);
    };
    knopf(QStringLiteral("ComSuche"), QStringLiteral("Suchen"), QStringLiteral("Sucht im Text (Strg+F)"),
          &Form23::zeigeSuche, QKeySequence::Find);
    knopf(QStringLiteral("Command1"), QStringLiteral("Systembild einfügen"),
          QStringLiteral("Fügt das Bild der Wand an der Schreibmarke ein"), &Form23::fuegeSystembildEin);
    knopf(QStringLiteral("Command2"), QStringLiteral("Kopieren"),
          QStringLiteral("Kopiert den Text in die Zwischenablage"), &Form23::kopiere);
    knopf(QStringLiteral("ComSave"), QStringLiteral("Speichern"),
          QStringLiteral("Speichert den Text als .RTF Datei"), &Form23::speichere, QKeySequence::Save);
    knopf(QStringLiteral("ComPdf"), QStringLiteral("Als PDF speichern"),
          QStringLiteral("Speichert den ausführlichen Ausdruck als .PDF Datei"), &Form23::speichereAlsPdf);
    knopf(QStringLiteral("ComDruck"), QStringLiteral("Drucken"),
          QStringLiteral("Öffnet das Fenster zum Drucken"), &Form23::drucke, QKeySequence::Print);
    knopf(QStringLiteral("ComRechenweg"), QStringLiteral("Rechenweg"),
          QStringLiteral("Druckt und speichert, woher jede Zahl kommt"), &Form23::zeigeRechenweg);
    // Enter belongs to the text and to the search here.
    zurueck(QStringLiteral("ComEnde"))->setDefault(false);
}

// ---- The text ----

void Form23::lade() {
    const char zeichen = dezimalzeichen();
    const Fliesstext text = fliesstext(bericht(programm_.w, Form::ansicht, {.dezimalzeichen = zeichen}));
    const bool dunkel = palette().color(QPalette::Base).lightness() < 128;
    for (const int block : fuelleDokument(*text_->document(), text, dunkel))
        zeilen_.emplace_back(text_->document()->findBlockByNumber(block));
    // The headings of the proofs, "5.1 ..." on, in their order.
    QTextBlock zeile = text_->document()->begin();
    for (int abschnitt = 1; zeile.isValid(); zeile = zeile.next()) {
        if (!zeile.text().startsWith(QStringLiteral("5.%1 ").arg(abschnitt))) continue;
        abschnitte_.emplace_back(zeile);
        ++abschnitt;
    }
    text_->setReadOnly(true);
    text_->moveCursor(QTextCursor::Start);
    if (!programm_.Ergebnisziel) return;
    const int ziel = *programm_.Ergebnisziel - 1;
    zeigeZeile(abschnitte_, ziel);
    // Once more when the window has its size.
    QTimer::singleShot(0, this, [this, ziel] { zeigeZeile(abschnitte_, ziel); });
}

void Form23::speichere() {
    const std::optional<QString> ziel =
        waehleZiel(meldungen_, this,
                   {.titel = QStringLiteral("Speichern"),
                    .ordner = dialogordner(programm_),
                    .vorschlag = dateivorschlag(programm_) + QStringLiteral(".rtf"),
                    .filter = QStringLiteral("Rich-Text-Format (*.RTF)"),
                    .endung = QStringLiteral("rtf")});
    if (!ziel) return;
    if (const auto fehler = schreibeDauerhaft(pfad(*ziel), alsRtf(fliesstextAus(*text_->document())))) {
        meldungen_.kritisch(this, QStringLiteral("Fehler"), qtext(fehler->text));
        return;
    }
    text_->document()->setModified(false);
}

// Meant: the text stays unlocked afterwards.
void Form23::kopiere() {
    text_->setReadOnly(false);
    text_->selectAll();
    text_->setFocus();
    QApplication::clipboard()->clear();
    text_->copy();
    text_->moveCursor(QTextCursor::Start);
}

// The picture goes to the clipboard too, and into the text at the caret.
void Form23::fuegeSystembildEin() {
    text_->setReadOnly(false);
    Zeichenstil stil = Zeichenstil::papier();
    stil.dezimalzeichen = dezimalzeichen();
    const Bildvorlage wand = bildvorlage(Zeichnung::ansicht, programm_.w);
    QApplication::clipboard()->setImage(bild(wand, aufloesungBild, stil));
    // At the caret, whatever is selected: a found text stays where it is.
    QTextCursor marke = text_->textCursor();
    marke.clearSelection();
    text_->setTextCursor(marke);
    // The text holds the picture for paper; what it shows is drawn for the screen.
    const QByteArray papierbild = png(wand, aufloesungBild, stil);
    systembilder_.push_back({fuegeBildEin(marke, papierbild, wand.mm, {}), wand});
    zeichneSystembilder();
    zeile_ = {};  // a lit line would light the picture too
    zeigeMarken();
    text_->ensureCursorVisible();
}

// On a screen with other dots the pictures would be blurred.
void Form23::zeichneSystembilder() {
    Zeichenstil stil = Zeichenstil::papier().aufSchirm();
    stil.dezimalzeichen = dezimalzeichen();
    QTextDocument* text = text_->document();
    for (const Systembild& systembild : systembilder_)
        text->addResource(QTextDocument::ImageResource, systembild.name,
                          bild(systembild.vorlage, 96.0 * text_->devicePixelRatioF(), stil));
    text->markContentsDirty(0, text->characterCount());
}

void Form23::showEvent(QShowEvent* event) {
    Fenster::showEvent(event);
    connect(windowHandle(), &QWindow::screenChanged, this, &Form23::zeichneSystembilder,
            Qt::UniqueConnection);
}

void Form23::drucke() { oeffne(Fensterart::druck, programm_, meldungen_, this); }

void Form23::zeigeRechenweg() { oeffne(Fensterart::rechenweg, programm_, meldungen_, this); }

void Form23::speichereAlsPdf() {
    speicherePdf(programm_, meldungen_, this,
                 standardausdruck(programm_.w, programm_.einstellungen, liesLogo(programm_.ordner)));
}

// Meant: Esc and the cross of the window ask before an edited text is lost, "Zurück" does not.
void Form23::reject() {
    const bool geaendert = text_->document()->isModified();
    if (geaendert &&
        meldungen_.zeige(this, {Symbol::frage,
                                QStringLiteral("Ergebnisse"),
                                QStringLiteral("Der geänderte Text ist nicht gespeichert. Soll das Fenster "
                                               "geschlossen werden?"),
                                Knoepfe::jaNein,
                                {QStringLiteral("Schließen"), QStringLiteral("Weiter bearbeiten"), {}},
                                Antwort::nein}) != Antwort::ja)
        return;
    Fenster::reject();
}

void Form23::done(int ergebnis) {
    text_->clear();
    Fenster::done(ergebnis);
}

// ---- Finding one's way ----

void Form23::zeigeSuche() {
    suchzeile_->show();
    sucheBeenden_->setEnabled(true);
    suchwort_->setFocus(Qt::ShortcutFocusReason);
    suchwort_->selectAll();
}

void Form23::verbirgSuche() {
    suchzeile_->hide();
    sucheBeenden_->setEnabled(false);
    suchwort_->clear();
    text_->setFocus();
}

// Finds all places of the words and goes to the first from the caret on.
void Form23::suche(const QString& worte) {
    treffer_.clear();
    aktuellerTreffer_ = -1;
    QTextCursor stelle(text_->document());
    while (!worte.isEmpty()) {
        stelle = text_->document()->find(worte, stelle);
        if (stelle.isNull()) break;
        treffer_.push_back(stelle);
    }
    zeigeMarken();
    trefferzahl_->clear();
    if (worte.isEmpty()) return;
    if (treffer_.empty()) {
        trefferzahl_->setText(QStringLiteral("kein Treffer"));
        return;
    }
    const int ab = text_->textCursor().selectionStart();
    const auto naechster = std::find_if(treffer_.begin(), treffer_.end(),
                                        [ab](const QTextCursor& t) { return t.selectionStart() >= ab; });
    aktuellerTreffer_ = naechster == treffer_.end() ? -1 : static_cast<int>(naechster - treffer_.begin()) - 1;
    springe(1);
}

void Form23::springe(int schritt) {
    if (treffer_.empty()) return;
    const int anzahl = static_cast<int>(treffer_.size());
    aktuellerTreffer_ = (aktuellerTreffer_ + schritt + anzahl) % anzahl;
    text_->setTextCursor(treffer_[static_cast<std::size_t>(aktuellerTreffer_)]);
    text_->ensureCursorVisible();
    trefferzahl_->setText(QStringLiteral("%1 von %2").arg(aktuellerTreffer_ + 1).arg(anzahl));
}

// Lights all places of the words that are searched for, and the line of the chosen utilisation. Lighting
// selects nothing, so that nothing can be typed or pasted over.
void Form23::zeigeMarken() {
    QColor farbe = palette().color(QPalette::Highlight);
    farbe.setAlphaF(0.35F);
    QList<QTextEdit::ExtraSelection> marken;
    const auto marke = [&](const QTextCursor& ort, bool ganzeZeile) {
        marken.push_back({ort, {}});
        marken.back().format.setBackground(farbe);
        marken.back().format.setProperty(QTextFormat::FullWidthSelection, ganzeZeile);
    };
    if (!zeile_.isNull()) marke(zeile_, true);
    for (const QTextCursor& ort : treffer_) marke(ort, false);
    text_->setExtraSelections(marken);
}

// Lights the line of a utilisation or of its heading, puts the caret before it and brings it to the upper
// third.
void Form23::zeigeZeile(const std::vector<QTextCursor>& zeilen, int welche) {
    if (welche < 0 || welche >= static_cast<int>(zeilen.size())) return;
    zeile_ = zeilen[static_cast<std::size_t>(welche)];
    zeile_.movePosition(QTextCursor::StartOfBlock);
    zeigeMarken();
    text_->setTextCursor(zeile_);
    QScrollBar* leiste = text_->verticalScrollBar();
    leiste->setValue(leiste->value() + text_->cursorRect().top() - text_->viewport()->height() / 3);
}

}  // namespace rippenscheibe
