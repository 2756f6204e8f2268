#include "ui/basics/Fenster.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QSlider>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/basics/Beschreibungen.h"
#include "ui/basics/Knopf.h"
#include "ui/basics/Kuerzel.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

bool istZeichen(const QKeyEvent& taste) {
    return !taste.text().isEmpty() && !(taste.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

bool istEnter(const QKeyEvent& taste) {
    return taste.key() == Qt::Key_Return || taste.key() == Qt::Key_Enter;
}

// The next or previous field that takes the focus by the tab key; nullptr at the end of the chain.
QWidget* nachbar(QWidget* feld, QWidget* fenster, bool vorwaerts) {
    const auto weiter = [&](QWidget* w) {
        return vorwaerts ? w->nextInFocusChain() : w->previousInFocusChain();
    };
    for (QWidget* w = weiter(feld); w != feld; w = weiter(w)) {
        if (w == fenster) return nullptr;  // the window itself closes the ring
        if ((w->focusPolicy() & Qt::TabFocus) && w->isEnabled() && w->isVisibleTo(fenster)) return w;
    }
    return nullptr;
}

void sendeTab(QWidget* feld) {
    QKeyEvent druck(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
    QApplication::sendEvent(feld, &druck);
}

// A ring about the control, in the accent colour.
class Fokusrahmen : public QFocusFrame {
  public:
    using QFocusFrame::QFocusFrame;

  protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), palette().highlight()); }
};

// Text fields and lists show the focus themselves.
bool brauchtRahmen(const QWidget& feld) {
    return qobject_cast<const QLineEdit*>(&feld) == nullptr &&
           qobject_cast<const QAbstractSpinBox*>(&feld) == nullptr &&
           qobject_cast<const QComboBox*>(&feld) == nullptr && !feld.isWindow();
}

bool aendertSichAmRad(const QWidget& feld) {
    return qobject_cast<const QComboBox*>(&feld) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&feld) != nullptr ||
           qobject_cast<const QSlider*>(&feld) != nullptr;
}

constexpr const char* enterregel = "enterregel";

Enter regelVon(const QWidget& feld) { return static_cast<Enter>(feld.property(enterregel).toInt()); }

// What a window remembers, in a group of its name.
const QString schluesselGroesse = QStringLiteral("Groesse");
const QString schluesselOrt = QStringLiteral("Ort");
const QString schluesselTeiler = QStringLiteral("Teiler");

// Asks for all of its content, and scrolls where there is no room for it.
class Rollbereich : public QScrollArea {
  public:
    explicit Rollbereich(QWidget* parent) : QScrollArea(parent) {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override {
        constexpr QSize genug(360, 160);
        return widget()->minimumSizeHint().boundedTo(genug);
    }
};

}  // namespace

void setzeEnter(QWidget& feld, Enter enter) { feld.setProperty(enterregel, static_cast<int>(enter)); }

void fuegeInTabfolge(QTableView& tabelle) {
    tabelle.setTabKeyNavigation(false);
    tabelle.setCornerButtonEnabled(false);
    tabelle.findChild<QAbstractButton*>()->setAccessibleName(QStringLiteral("Ecke der Tabelle"));
}

Tastenregel::Tastenregel(QWidget* fenster) : QObject(fenster), fenster_(fenster) {
    qApp->installEventFilter(this);
}

bool Tastenregel::eventFilter(QObject* object, QEvent* event) {
    auto* feld = qobject_cast<QWidget*>(object);
    if (feld == nullptr || feld->window() != fenster_) return false;
    switch (event->type()) {
        case QEvent::KeyPress:
            return feld == fenster_->focusWidget() && taste(*feld, static_cast<const QKeyEvent&>(*event));
        case QEvent::Polish:
            // The wheel would bring the focus along.
            if (aendertSichAmRad(*feld) && feld->focusPolicy() == Qt::WheelFocus)
                feld->setFocusPolicy(Qt::StrongFocus);
            return false;
        case QEvent::Wheel:
            if (!aendertSichAmRad(*feld) || feld->hasFocus()) return false;
            event->ignore();  // what scrolls around the control gets it
            return true;
        case QEvent::FocusIn: {
            const bool maus = static_cast<const QFocusEvent&>(*event).reason() == Qt::MouseFocusReason;
            if (rahmen_ == nullptr && !maus) rahmen_ = new Fokusrahmen(fenster_);
            if (rahmen_ != nullptr) rahmen_->setWidget(!maus && brauchtRahmen(*feld) ? feld : nullptr);
            return false;
        }
        default:
            return false;
    }
}

bool Tastenregel::taste(QWidget& feld, const QKeyEvent& taste) {
    // A key that walks the menu is none of the window.
    const bool imMenue = qobject_cast<QMenuBar*>(&feld) != nullptr;
    if (istZeichen(taste) && taste.key() != Qt::Key_Tab && taste.key() != Qt::Key_Backtab && !imMenue)
        Q_EMIT getippt();
    if (istEnter(taste)) return (enter && enter(feld)) || drueckeEnter(feld, taste.isAutoRepeat());
    if (taste.key() == Qt::Key_Space || taste.key() == Qt::Key_Select) return regelVon(feld) == Enter::weiter;
    if (feld.objectName().startsWith(QStringLiteral("Text3")) &&
        (taste.key() == Qt::Key_Up || taste.key() == Qt::Key_Down)) {
        QWidget* ziel = nachbar(&feld, fenster_, taste.key() == Qt::Key_Down);
        if (ziel != nullptr) ziel->setFocus(Qt::TabFocusReason);
        return true;
    }
    return false;
}

bool Tastenregel::drueckeEnter(QWidget& feld, bool wiederholt) {
    const Enter regel = regelVon(feld);
    if (regel == Enter::eigen || feld.objectName().startsWith(QStringLiteral("qt_"))) return false;
    auto* knopf = qobject_cast<QAbstractButton*>(&feld);
    const bool wahl =
        qobject_cast<QCheckBox*>(&feld) != nullptr || qobject_cast<QRadioButton*>(&feld) != nullptr;
    if (knopf != nullptr && !wahl && regel != Enter::weiter) {
        if (!wiederholt) knopf->click();
        return true;
    }
    const bool wert = qobject_cast<QLineEdit*>(&feld) != nullptr ||
                      qobject_cast<QComboBox*>(&feld) != nullptr ||
                      qobject_cast<QAbstractSpinBox*>(&feld) != nullptr;
    if (knopf == nullptr && !wert) return false;
    sendeTab(&feld);
    return true;
}

Fenster::Fenster(Programm& programm, Meldungen& meldungen, QWidget* parent, const QString& name,
                 const QString& titel, Tippen tippen)
    : QDialog(parent), programm_(programm), meldungen_(meldungen) {
    setObjectName(name);
    setWindowTitle(titel);
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setModal(true);
    setAccessibleName(titel.trimmed());

    auto* aussen = new QVBoxLayout(this);
    constexpr int rand = 3;  // of what scrolls, so that the frame of the focus is not cut
    aussen->setContentsMargins(2 * raster - rand, 2 * raster - rand, 2 * raster - rand, 2 * raster);
    aussen->setSpacing(2 * raster);
    flaeche_ = new QWidget;
    flaeche_->installEventFilter(this);
    inhalt_ = new QVBoxLayout(flaeche_);
    inhalt_->setContentsMargins(rand, rand, rand, rand);
    inhalt_->setSpacing(raster);
    auto* rollbereich = new Rollbereich(this);
    rollbereich->setWidget(flaeche_);
    aussen->addWidget(rollbereich, 1);
    fusszeile_ = new QHBoxLayout;
    fusszeile_->setContentsMargins(rand, 0, rand, 0);
    fusszeile_->setSpacing(raster);
    fusszeile_->addStretch(1);
    aussen->addLayout(fusszeile_);

    auto* regel = new Tastenregel(this);
    regel->enter = [this](QWidget& feld) { return enter(feld); };
    if (tippen == Tippen::aendertPosition)
        connect(regel, &Tastenregel::getippt, this, [this] { programm_.setzeGesichert(false); });
}

QPushButton* Fenster::schaltflaeche(const QString& name, const QString& text) {
    QPushButton* neu = knopf(name, text);
    fusszeile_->addWidget(neu);
    return neu;
}

QPushButton* Fenster::knopf(const QString& name, const QString& text) { return neuerKnopf(this, name, text); }

QLabel* Fenster::beschriftung(const QString& text, QWidget* feld) {
    auto* schild = new QLabel(text, this);
    schild->setTextFormat(Qt::PlainText);
    schild->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    schild->setBuddy(feld);
    return schild;
}

void Fenster::setzeUeberFuss(QWidget* zeile) {
    auto* aussen = static_cast<QVBoxLayout*>(layout());
    zeile->setContentsMargins(fusszeile_->contentsMargins());
    aussen->insertWidget(aussen->count() - 1, zeile);
}

QPushButton* Fenster::zurueck(const QString& name) {
    QPushButton* neu = schaltflaeche(name, QStringLiteral("&Zurück"));
    neu->setToolTip(QStringLiteral("Zurück zum Hauptfenster"));
    neu->setDefault(true);
    connect(neu, &QPushButton::clicked, this, &QDialog::accept);
    return neu;
}

// The room on the screen, without the frame that the desktop draws about a window.
QSize Fenster::platz() const {
    const int titel = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return screen()->availableGeometry().size() - QSize(raster, titel + raster);
}

QString Fenster::merkdatei() const {
    return QString::fromStdU16String(programm_.datei("Fenster.ini").u16string());
}

void Fenster::bringeAufDenSchirm() {
    QSettings merker(merkdatei(), QSettings::IniFormat);
    merker.beginGroup(objectName());
    ensurePolished();
    layout()->activate();
    bedarf_ = flaeche_->minimumSizeHint();
    QSize gewuenscht = testAttribute(Qt::WA_Resized) ? size() : sizeHint();
    // The bar that scrolls the rest takes its own width, not that of the content.
    if (gewuenscht.height() > platz().height())
        gewuenscht.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    eigeneGroesse_ = gewuenscht.boundedTo(platz());
    resize(merker.value(schluesselGroesse, eigeneGroesse_).toSize().boundedTo(platz()));
    const QPoint ort = merker.value(schluesselOrt).toPoint();
    if (merker.contains(schluesselOrt) && screen()->availableGeometry().contains(QRect(ort, size())))
        move(ort);
    const auto teiler = findChildren<QSplitter*>();
    const QVariantList staende = merker.value(schluesselTeiler).toList();
    for (qsizetype i = 0; i < std::min(teiler.size(), staende.size()); ++i)
        teiler[i]->restoreState(staende[i].toByteArray());
}

void Fenster::merke() const {
    QSettings merker(merkdatei(), QSettings::IniFormat);
    merker.beginGroup(objectName());
    if (size() != eigeneGroesse_) merker.setValue(schluesselGroesse, size());
    merker.setValue(schluesselOrt, pos());
    QVariantList staende;
    for (const QSplitter* teiler : findChildren<QSplitter*>()) staende << teiler->saveState();
    if (!staende.isEmpty()) merker.setValue(schluesselTeiler, staende);
}

void Fenster::setVisible(bool sichtbar) {
    if (sichtbar && !isVisible()) {
        vergibKuerzel(*this);
        beschreibeBedienung(*this);
        bringeAufDenSchirm();
    } else if (!sichtbar && isVisible()) {
        merke();
    }
    QDialog::setVisible(sichtbar);
}

// A content that grows takes the window along.
bool Fenster::eventFilter(QObject* object, QEvent* event) {
    if (object == flaeche_ && event->type() == QEvent::LayoutRequest && isVisible()) {
        const QSize neu = flaeche_->minimumSizeHint();
        const bool gewachsen = neu.width() > bedarf_.width() || neu.height() > bedarf_.height();
        const QSize fehlt = (neu - flaeche_->parentWidget()->size()).expandedTo(QSize(0, 0));
        bedarf_ = neu;
        if (gewachsen && !fehlt.isNull()) {
            const bool unveraendert = size() == eigeneGroesse_;
            resize((size() + fehlt).boundedTo(platz()));
            if (unveraendert) eigeneGroesse_ = size();
        }
    }
    return QDialog::eventFilter(object, event);
}

// The first field has the focus when the window shows.
void Fenster::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (focusWidget() == nullptr || fusszeile_->indexOf(focusWidget()) >= 0)
        if (QWidget* erstes = nachbar(this, this, true)) erstes->setFocus(Qt::TabFocusReason);
}

// No button is pressed that has not the focus: the emphasised one only looks so.
void Fenster::keyPressEvent(QKeyEvent* event) {
    if (istEnter(*event))
        event->accept();
    else
        QDialog::keyPressEvent(event);
}

}  // namespace rippenscheibe
