#include "ui/help/Handbuch.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QImage>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QUrl>
#include <QVBoxLayout>
#include <array>
#include <utility>

namespace rippenscheibe {

namespace {

struct Kapitel {
    const char* datei;
    const char* titel;
};

constexpr std::array<Kapitel, 16> kapitelliste{{
    {"inhalt", "Inhalt"},
    {"grenzen", "Grenzen und Verantwortung"},
    {"erste-schritte", "Erste Schritte"},
    {"hauptfenster", "Hauptfenster"},
    {"rippen", "Rippen"},
    {"beplankung", "Beplankung"},
    {"verbindungsmittel", "Verbindungsmittel"},
    {"verankerung", "Verankerung"},
    {"belastung", "Belastung"},
    {"bemessungsparameter", "Bemessungsparameter"},
    {"berechnung-und-bericht", "Berechnung und Bericht"},
    {"drucken", "Drucken"},
    {"projekte-und-bemerkungen", "Projekte und Bemerkungen"},
    {"eigene-materialien", "Eigene Materialien"},
    {"kommandozeile", "Kommandozeile"},
    {"hinweise-und-fehler", "Hinweise und Fehler"},
}};

// Window by object name and its chapter.
constexpr std::array<std::pair<const char*, const char*>, 22> fensterkapitel{{
    {"form0", "erste-schritte"},
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
    {"Form23", "berechnung-und-bericht"},
    {"Form6", "drucken"},
    {"Form8", "drucken"},
    {"Form255", "drucken"},
    {"Form15", "projekte-und-bemerkungen"},
    {"Form500", "projekte-und-bemerkungen"},
    {"Form222", "projekte-und-bemerkungen"},
    {"Form800", "projekte-und-bemerkungen"},
    {"Form801", "projekte-und-bemerkungen"},
    {"Form99", "eigene-materialien"},
    {"Form10", "hauptfenster"},
}};

QUrl ort(const QString& kapitel) { return QUrl(QStringLiteral("qrc:/handbuch/%1.md").arg(kapitel)); }

}  // namespace

QString handbuchkapitel(const QString& fenstername) {
    for (const auto& [fenster, kapitel] : fensterkapitel)
        if (fenstername == QLatin1String(fenster)) return QLatin1String(kapitel);
    const bool klein = fenstername == QStringLiteral("Form3") || fenstername == QStringLiteral("Form13") ||
                       fenstername == QStringLiteral("Form60");
    return klein ? QStringLiteral("hauptfenster") : QStringLiteral("inhalt");
}

Handbuchseite::Handbuchseite(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("Handbuchseite"));
    setAccessibleName(QStringLiteral("Handbuch"));
    setOpenExternalLinks(false);
    document()->setDocumentMargin(16);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    neuLesen_.setSingleShot(true);
    neuLesen_.setInterval(100);
    connect(&neuLesen_, &QTimer::timeout, this, &Handbuchseite::liesNeu);
}

QVariant Handbuchseite::loadResource(int type, const QUrl& name) {
    const QVariant inhalt = QTextBrowser::loadResource(type, name);
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
    return bild.scaledToWidth(breite, Qt::SmoothTransformation);
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
    : QDialog(parent), inhalt_(new QListWidget(this)), seite_(new Handbuchseite(this)) {
    setObjectName(QStringLiteral("Handbuch"));
    setWindowTitle(QStringLiteral("Handbuch"));
    setAccessibleName(windowTitle());
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setModal(false);
    resize(900, 680);

    inhalt_->setObjectName(QStringLiteral("Handbuchinhalt"));
    inhalt_->setAccessibleName(QStringLiteral("Kapitel"));
    for (const Kapitel& kapitel : kapitelliste) inhalt_->addItem(QString::fromUtf8(kapitel.titel));
    inhalt_->setMaximumWidth(inhalt_->sizeHintForColumn(0) + 32);

    auto* aussen = new QVBoxLayout(this);
    auto* spalten = new QHBoxLayout;
    spalten->addWidget(inhalt_);
    spalten->addWidget(seite_, 1);
    aussen->addLayout(spalten, 1);
    auto* knoepfe = new QHBoxLayout;
    const auto knopf = [&](const QString& text) {
        auto* k = new QPushButton(text, this);
        k->setAccessibleName(text);
        k->setAutoDefault(false);
        knoepfe->addWidget(k);
        return k;
    };
    QPushButton* rueckwaerts = knopf(QStringLiteral("Vorige Seite"));
    QPushButton* vorwaerts = knopf(QStringLiteral("Nächste Seite"));
    knoepfe->addStretch(1);
    QPushButton* schliessen = knopf(QStringLiteral("Schließen"));
    aussen->addLayout(knoepfe);

    rueckwaerts->setEnabled(false);
    vorwaerts->setEnabled(false);
    connect(rueckwaerts, &QPushButton::clicked, seite_, &QTextBrowser::backward);
    connect(vorwaerts, &QPushButton::clicked, seite_, &QTextBrowser::forward);
    connect(seite_, &QTextBrowser::backwardAvailable, rueckwaerts, &QWidget::setEnabled);
    connect(seite_, &QTextBrowser::forwardAvailable, vorwaerts, &QWidget::setEnabled);
    connect(schliessen, &QPushButton::clicked, this, &QWidget::close);
    connect(inhalt_, &QListWidget::currentRowChanged, this, [this](int zeile) {
        const QUrl ziel = ort(QLatin1String(kapitelliste[static_cast<std::size_t>(zeile)].datei));
        if (seite_->source() != ziel) seite_->setSource(ziel, QTextDocument::MarkdownResource);
    });
    // The signal comes before the page knows its new source.
    connect(seite_, &QTextBrowser::sourceChanged, this, [this](const QUrl& quelle) {
        for (std::size_t i = 0; i < kapitelliste.size(); ++i) {
            if (quelle != ort(QLatin1String(kapitelliste[i].datei))) continue;
            const QSignalBlocker still(inhalt_);
            inhalt_->setCurrentRow(static_cast<int>(i));
        }
    });
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
