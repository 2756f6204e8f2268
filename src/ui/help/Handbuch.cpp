#include "ui/help/Handbuch.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "ui/basics/Knopf.h"

namespace rippenscheibe {

namespace {

struct Kapitel {
    QString datei;
    QString titel;
};

// The text of a chapter, as it is searched.
QString kapiteltext(const QString& kapitel) {
    QFile datei(QStringLiteral(":/handbuch/%1.md").arg(kapitel));
    return datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()) : QString();
}

// The table of contents, and the chapters in the order in which it names them.
const std::vector<Kapitel>& kapitelliste() {
    static const std::vector<Kapitel> liste = [] {
        std::vector<Kapitel> alle{{QStringLiteral("inhalt"), QStringLiteral("Inhalt")}};
        const QRegularExpression verweis(QStringLiteral("\\[([^\\]]+)\\]\\(([a-z-]+)\\.md\\)"));
        const QString inhalt = kapiteltext(QStringLiteral("inhalt"));
        for (auto treffer = verweis.globalMatch(inhalt); treffer.hasNext();) {
            const QRegularExpressionMatch eintrag = treffer.next();
            alle.push_back({eintrag.captured(2), eintrag.captured(1)});
        }
        return alle;
    }();
    return liste;
}

// Window by object name and its chapter.
constexpr auto fensterkapitel = std::to_array<std::pair<const char*, const char*>>({
    {"form0", "installation"},
    {"Form1", "hauptfenster"},
    {"Form2", "rippen"},
    {"Form11", "rippen"},
    {"Form4", "beplankung"},
    {"Form5", "verbindungsmittel"},
    {"Form16", "verbindungsmittel"},
    {"Form7", "verankerung"},
    {"Form9", "belastung"},
    {"Form14", "belastung"},
    {"Form12", "bemessungsparameter"},
    {"Form23", "bericht"},
    {"Form6", "drucken"},
    {"Form8", "drucken"},
    {"Form255", "drucken"},
    {"Form15", "projekte-und-bemerkungen"},
    {"Form500", "projekte-und-bemerkungen"},
    {"Form222", "projekte-und-bemerkungen"},
    {"Form800", "projekte-und-bemerkungen"},
    {"Form801", "projekte-und-bemerkungen"},
    {"Form99", "eigene-materialien"},
    {"Form3", "hauptfenster"},
    {"Form10", "hauptfenster"},
    {"Form13", "hauptfenster"},
    {"Form60", "hauptfenster"},
    {"Ueber", "einfuehrung"},
    {"Varianten", "urteil"},
    {"Auslegen", "auslegen"},
    {"Einfluss", "auslegen"},
    {"Bemessungstafel", "auslegen"},
    {"Lastfaelle", "lastfaelle"},
    {"Projektuebersicht", "projekt"},
});

QUrl ort(const QString& kapitel) { return QUrl(QStringLiteral("qrc:/handbuch/%1.md").arg(kapitel)); }

}  // namespace

QString handbuchkapitel(const QString& fenstername) {
    for (const auto& [fenster, kapitel] : fensterkapitel)
        if (fenstername == QLatin1String(fenster)) return QLatin1String(kapitel);
    return QStringLiteral("inhalt");
}

Handbuchseite::Handbuchseite(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("Handbuchseite"));
    setAccessibleName(QStringLiteral("Handbuch"));
    setOpenExternalLinks(false);
    document()->setDocumentMargin(16);
    setWordWrapMode(QTextOption::WordWrap);  // no word of a table breaks inside
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    neuLesen_.setSingleShot(true);
    neuLesen_.setInterval(100);
    connect(&neuLesen_, &QTimer::timeout, this, &Handbuchseite::liesNeu);
}

QVariant Handbuchseite::loadResource(int type, const QUrl& name) {
    QVariant inhalt = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) return inhalt;
    QImage bild;
    if (inhalt.typeId() == QMetaType::QByteArray) {
        bild.loadFromData(inhalt.toByteArray());
    } else {
        bild = inhalt.value<QImage>();
    }
    const int rand = static_cast<int>(document()->documentMargin());
    const int breite = viewport()->width() - 2 * rand - 8;
    if (bild.isNull() || bild.width() <= breite || breite <= 0) return bild;
    // As many dots as the screen has there, but never more than the picture.
    const int punkte = std::min(bild.width(), static_cast<int>(std::lround(breite * devicePixelRatioF())));
    QImage passend = bild.scaledToWidth(punkte, Qt::SmoothTransformation);
    passend.setDevicePixelRatio(static_cast<double>(punkte) / breite);
    return passend;
}

int Handbuchseite::suche(const QString& worte) {
    QList<ExtraSelection> marken;
    QColor farbe = palette().color(QPalette::Highlight);
    farbe.setAlphaF(0.35F);
    QTextCursor stelle(document());
    while (!worte.isEmpty()) {
        stelle = document()->find(worte, stelle);
        if (stelle.isNull()) break;
        marken.push_back({stelle, {}});
        marken.back().format.setBackground(farbe);
    }
    setExtraSelections(marken);
    return static_cast<int>(marken.size());
}

void Handbuchseite::springe(const QString& worte) {
    if (worte.isEmpty() || find(worte)) return;
    moveCursor(QTextCursor::Start);
    find(worte);
}

// The pictures are scaled when the page is read: a new width reads it again at the same place, once the
// layout has settled.
void Handbuchseite::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) neuLesen_.start();
}

void Handbuchseite::liesNeu() {
    if (source().isEmpty()) return;
    const double stelle = verticalScrollBar()->value() / std::max(1.0, 1.0 * verticalScrollBar()->maximum());
    reload();
    verticalScrollBar()->setValue(static_cast<int>(stelle * verticalScrollBar()->maximum()));
}

Handbuch::Handbuch(QWidget* parent)
    : QDialog(parent),
      suchwort_(new QLineEdit(this)),
      trefferzahl_(new QLabel(this)),
      inhalt_(new QListWidget(this)),
      seite_(new Handbuchseite(this)) {
    setObjectName(QStringLiteral("Handbuch"));
    setWindowTitle(QStringLiteral("Handbuch"));
    setAccessibleName(windowTitle());
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setModal(false);
    resize(900, 680);

    baueSuche();
    ordneAn();
    verbinde();
    suchwort_->setFocus();
}

// The search and the list of the chapters beneath it, which tells how wide both are.
void Handbuch::baueSuche() {
    inhalt_->setObjectName(QStringLiteral("Handbuchinhalt"));
    inhalt_->setAccessibleName(QStringLiteral("Kapitel"));
    for (const Kapitel& kapitel : kapitelliste()) inhalt_->addItem(kapitel.titel);
    const int breite = inhalt_->sizeHintForColumn(0) + 32;
    inhalt_->setMaximumWidth(breite);

    suchwort_->setObjectName(QStringLiteral("Handbuchsuche"));
    suchwort_->setAccessibleName(QStringLiteral("Suchen im Handbuch"));
    suchwort_->setPlaceholderText(QStringLiteral("Suchen (Strg+F)"));
    suchwort_->setClearButtonEnabled(true);
    suchwort_->setMaximumWidth(breite);
    trefferzahl_->setForegroundRole(QPalette::PlaceholderText);
    trefferzahl_->hide();
    auto* strgF = new QAction(this);
    strgF->setShortcut(QKeySequence::Find);
    connect(strgF, &QAction::triggered, suchwort_, [this] { suchwort_->setFocus(Qt::ShortcutFocusReason); });
    addAction(strgF);
    connect(suchwort_, &QLineEdit::textChanged, this, &Handbuch::suche);
    connect(suchwort_, &QLineEdit::returnPressed, this, &Handbuch::sucheWeiter);
}

void Handbuch::ordneAn() {
    auto* aussen = new QVBoxLayout(this);
    auto* spalten = new QHBoxLayout;
    auto* links = new QVBoxLayout;
    links->addWidget(suchwort_);
    links->addWidget(trefferzahl_);
    links->addWidget(inhalt_, 1);
    spalten->addLayout(links);
    spalten->addWidget(seite_, 1);
    aussen->addLayout(spalten, 1);
    auto* knoepfe = new QHBoxLayout;
    const auto knopf = [&](const QString& name, const QString& text) {
        QPushButton* k = neuerKnopf(this, name, text);
        knoepfe->addWidget(k);
        return k;
    };
    vorige_ = knopf(QStringLiteral("VorigeSeite"), QStringLiteral("&Vorige Seite"));
    naechste_ = knopf(QStringLiteral("NaechsteSeite"), QStringLiteral("&Nächste Seite"));
    knoepfe->addStretch(1);
    connect(knopf(QStringLiteral("Schliessen"), QStringLiteral("&Schließen")), &QPushButton::clicked, this,
            &QWidget::close);
    aussen->addLayout(knoepfe);
}

void Handbuch::verbinde() {
    connect(vorige_, &QPushButton::clicked, this, [this] { blaettere(-1); });
    connect(naechste_, &QPushButton::clicked, this, [this] { blaettere(1); });
    connect(inhalt_, &QListWidget::currentRowChanged, this, [this](int zeile) {
        if (zeile < 0) return;
        const QUrl ziel = ort(kapitelliste()[static_cast<std::size_t>(zeile)].datei);
        if (seite_->source() != ziel) seite_->setSource(ziel, QTextDocument::MarkdownResource);
    });
    // The signal comes before the page knows its new source.
    connect(seite_, &QTextBrowser::sourceChanged, this, [this](const QUrl& quelle) {
        for (std::size_t i = 0; i < kapitelliste().size(); ++i) {
            if (quelle != ort(kapitelliste()[i].datei)) continue;
            const QSignalBlocker still(inhalt_);
            inhalt_->setCurrentRow(static_cast<int>(i));
        }
        zeigeKnoepfe();
    });
    // Read again for another width the page has lost its marks.
    connect(seite_, &QTextBrowser::textChanged, this, [this] { seite_->suche(suchwort_->text()); });
}

// Only the chapters that hold the words stay in the list; the first of them is shown.
void Handbuch::suche(const QString& worte) {
    int kapitelzahl = 0;
    int erstes = -1;
    for (std::size_t i = 0; i < kapitelliste().size(); ++i) {
        const bool enthalten =
            worte.isEmpty() || kapiteltext(kapitelliste()[i].datei).contains(worte, Qt::CaseInsensitive);
        inhalt_->item(static_cast<int>(i))->setHidden(!enthalten);
        if (!enthalten) continue;
        ++kapitelzahl;
        if (erstes < 0) erstes = static_cast<int>(i);
    }
    trefferzahl_->setVisible(!worte.isEmpty());
    trefferzahl_->setText(kapitelzahl == 0   ? QStringLiteral("kein Treffer")
                          : kapitelzahl == 1 ? QStringLiteral("in 1 Kapitel")
                                             : QStringLiteral("in %1 Kapiteln").arg(kapitelzahl));
    if (erstes >= 0 && inhalt_->item(std::max(inhalt_->currentRow(), 0))->isHidden())
        inhalt_->setCurrentRow(erstes);
    seite_->suche(worte);
    if (erstes >= 0) seite_->springe(worte);
    zeigeKnoepfe();
}

// Enter: the next place in the chapter, then the next chapter that holds the words.
void Handbuch::sucheWeiter() {
    const int vorher = seite_->textCursor().position();
    if (seite_->find(suchwort_->text()) && seite_->textCursor().position() > vorher) return;
    const int zeile = inhalt_->currentRow();
    blaettere(1);
    if (inhalt_->currentRow() == zeile)
        seite_->springe(suchwort_->text());
    else
        seite_->find(suchwort_->text());
}

// The neighbour in the list, of the chapters that are shown; -1 without one.
int Handbuch::nachbar(int schritt) const {
    int zeile = inhalt_->currentRow() + schritt;
    while (zeile >= 0 && zeile < inhalt_->count() && inhalt_->item(zeile)->isHidden()) zeile += schritt;
    return zeile < inhalt_->count() ? zeile : -1;
}

void Handbuch::blaettere(int schritt) {
    if (const int zeile = nachbar(schritt); zeile >= 0) inhalt_->setCurrentRow(zeile);
}

void Handbuch::zeigeKnoepfe() {
    vorige_->setEnabled(nachbar(-1) >= 0);
    naechste_->setEnabled(nachbar(1) >= 0);
}

void Handbuch::zeigeKapitel(const QString& datei) {
    seite_->setSource(ort(datei), QTextDocument::MarkdownResource);
}

QString Handbuch::kapitel() const { return seite_->source().fileName().section(QLatin1Char('.'), 0, 0); }

void oeffneHandbuch(QWidget* fenster) {
    auto* handbuch = fenster->findChild<Handbuch*>(QString(), Qt::FindDirectChildrenOnly);
    if (handbuch == nullptr) handbuch = new Handbuch(fenster);
    handbuch->zeigeKapitel(handbuchkapitel(fenster->objectName()));
    handbuch->show();
    handbuch->raise();
    handbuch->activateWindow();
}

Hilfetaste::Hilfetaste(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

bool Hilfetaste::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    if (static_cast<const QKeyEvent&>(*event).key() != Qt::Key_F1) return false;
    const auto* feld = qobject_cast<QWidget*>(object);
    if (feld == nullptr || qobject_cast<Handbuch*>(feld->window()) != nullptr) return false;
    oeffneHandbuch(feld->window());
    return true;
}

}  // namespace rippenscheibe
