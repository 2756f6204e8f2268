#include "ui/verdict/Urteilsanzeige.h"

#include <QAccessible>
#include <QEvent>
#include <QGridLayout>
#include <QPainter>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/basics/Fenster.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Kurzzeile.h"
#include "ui/verdict/Ausnutzungsbalken.h"
#include "ui/verdict/Urteilsworte.h"

namespace rippenscheibe {

namespace {

constexpr int spaltenzahl = 2;

// "0,00" is proved, a dash has no demand, a sign stands for a demand without a proof.
Balkenwert balkenwert(const Abschnittsurteil& abschnitt) {
    const QString name = qtext(abschnitt.name);
    Balkenwert wert{.name = name.section(QLatin1Char(' '), 0, 0),
                    .wert = {},
                    .eta = abschnitt.groesster,
                    .urteil = balkenurteil(abschnitt),
                    .beschreibung = name};
    if (abschnitt.stand == Nachweisstand::keineBeanspruchung) {
        wert.beschreibung += QStringLiteral(": keine Beanspruchung");
        return wert;
    }
    if (abschnitt.stand == Nachweisstand::offen) {
        wert.beschreibung += QStringLiteral(": ") + qtext(abschnitt.luecke);
        if (abschnitt.groesster <= 1) return wert;
    }
    wert.wert = etatext(abschnitt.groesster);
    wert.beschreibung += QStringLiteral(": %1, %2").arg(wert.wert, urteilswort(wert.urteil));
    if (abschnitt.entfaelltImBericht)
        wert.beschreibung += QStringLiteral("; im Ausdruck \"entfällt\", zählt aber im Urteil mit");
    return wert;
}

void setzeText(Kurzzeile& schild, const QString& text) {
    if (schild.text() == text) return;
    schild.setzeText(text);
    schild.setToolTip(text);
    schild.setAccessibleName(text);
}

void faerbeSchrift(QWidget& schild, const QColor& farbe) {
    QPalette farben = schild.palette();
    if (farben.color(QPalette::WindowText) == farbe) return;
    farben.setColor(QPalette::WindowText, farbe);
    schild.setPalette(farben);
}

Kurzzeile* zeile(const char* name, int hoechstzeilen, QVBoxLayout& reihe) {
    auto* schild = new Kurzzeile(nullptr, hoechstzeilen);
    schild->setObjectName(QLatin1String(name));
    schild->setForegroundRole(QPalette::WindowText);
    reihe.addWidget(schild);
    return schild;
}

// A screen reader says the new verdict at once.
QString sageAn(QWidget& schild) {
    QAccessibleEvent gemeldet(&schild, QAccessible::Alert);
    QAccessible::updateAccessibility(&gemeldet);
    return schild.accessibleName();
}

// A finding that leads to its dialog: two lines of text that can be pressed.
class Hinweisknopf : public QAbstractButton {
  public:
    explicit Hinweisknopf(QWidget* parent) : QAbstractButton(parent) {
        setFocusPolicy(Qt::StrongFocus);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
        setAccessibleName(QStringLiteral("Hinweis"));
        setAccessibleDescription(QStringLiteral("Öffnet die Eingabe, um die es geht"));
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }
    void setzeHinweis(const QString& text) {
        text_ = text;
        update();
        setToolTip(text);
        setAccessibleName(text.isEmpty() ? QStringLiteral("Hinweis") : text);
        setVisible(!text.isEmpty());
    }
    QSize sizeHint() const override { return {0, 2 * fontMetrics().lineSpacing() + 2}; }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter maler(this);
        QColor grund = palette().color(QPalette::Highlight);
        grund.setAlpha(underMouse() || hasFocus() ? 36 : 0);
        maler.fillRect(rect(), grund);
        maler.setPen(urteilsfarben(palette()).warnung);
        maler.drawText(rect(), Qt::AlignLeft | Qt::AlignTop, QStringLiteral("•"));
        maler.setPen(palette().color(QPalette::WindowText));
        constexpr int einzug = 12;
        const QRect platz = rect().adjusted(einzug, 0, 0, 0);
        // A wrapped line stays somewhat short of the width.
        const QString gekuerzt = fontMetrics().elidedText(text_, Qt::ElideRight, platz.width() * 9 / 5);
        maler.drawText(platz, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, gekuerzt);
    }

  private:
    QString text_;
};

}  // namespace

Balkenurteil gesamturteil(const Sofortergebnis& ergebnis) {
    if (!ergebnis.urteil.maxEta) return Balkenurteil::ohneNachweis;
    if (!ergebnis.urteil.erfuellt()) return Balkenurteil::ueberschritten;
    return ergebnis.luecken.isEmpty() ? Balkenurteil::erfuellt : Balkenurteil::ohneNachweis;
}

// ---- The slim line ----

Urteilszeile::Urteilszeile(QWidget* parent) : QLabel(parent) {
    setObjectName(QStringLiteral("SofortUrteil"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void Urteilszeile::zeige(const Sofortergebnis& ergebnis) {
    const QString vorher = urteil_;
    urteil_ = urteilstext(ergebnis);
    rest_ =
        ergebnis.hinweise.empty() ? massgebendtext(ergebnis.urteil) : qtext(ergebnis.hinweise.front().text);
    if (ergebnis.urteil.maxEta && !ergebnis.luecken.isEmpty())
        rest_ += QStringLiteral(" · ") + ergebnis.luecken.constFirst();
    if (ergebnis.frisch) rest_ += QStringLiteral(" · frisch gerechnet: ") + *ergebnis.frisch;
    art_ = gesamturteil(ergebnis);
    setAccessibleName(urteil_ + QStringLiteral(" · ") + rest_);
    setToolTip(accessibleName());
    update();
    if (isVisible() && vorher != urteil_) Q_EMIT angesagt(sageAn(*this));
}

QSize Urteilszeile::sizeHint() const { return {0, fontMetrics().height() + 4}; }

QSize Urteilszeile::minimumSizeHint() const { return sizeHint(); }

void Urteilszeile::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    const QRect flaeche = contentsRect();
    QFont fett = font();
    fett.setWeight(QFont::Medium);
    maler.setFont(fett);
    maler.setPen(urteilsfarbe(palette(), art_));
    const QString urteil = maler.fontMetrics().elidedText(urteil_, Qt::ElideRight, flaeche.width());
    const int breite = maler.fontMetrics().horizontalAdvance(urteil + QStringLiteral("   "));
    maler.drawText(flaeche, Qt::AlignLeft | Qt::AlignVCenter, urteil);
    maler.setFont(font());
    maler.setPen(palette().color(QPalette::WindowText));
    const QRect platz = flaeche.adjusted(breite, 0, 0, 0);
    maler.drawText(platz, Qt::AlignLeft | Qt::AlignVCenter,
                   fontMetrics().elidedText(rest_, Qt::ElideRight, platz.width()));
}

// ---- The display of the main window ----

Urteilsanzeige::Urteilsanzeige(QWidget* parent) : QWidget(parent) {
    auto* reihe = new QVBoxLayout(this);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(2);
    urteil_ = zeile("SofortUrteil", 1, *reihe);
    QFont fett = urteil_->font();
    fett.setWeight(QFont::DemiBold);
    urteil_->setFont(fett);
    massgebend_ = zeile("SofortMassgebend", 1, *reihe);
    lastfall_ = zeile("SofortLastfall", 2, *reihe);
    lastfall_->hide();
    seiten_ = new QStackedLayout;  // as tall as the taller page: nothing jumps
    seiten_->addWidget(baueBalken());
    seiten_->addWidget(baueHinweise());
    reihe->addLayout(seiten_);
    luecke_ = zeile("SofortLuecke", 2, *reihe);
    frisch_ = zeile("SofortFrisch", 2, *reihe);
}

QWidget* Urteilsanzeige::baueBalken() {
    auto* seite = new QWidget(this);
    auto* grid = new QGridLayout(seite);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    for (int i = 0; i < abschnitte; ++i) {
        auto* balken = new Ausnutzungsbalken(seite);
        balken->setObjectName(QStringLiteral("SofortBalken(%1)").arg(i + 1));
        setzeEnter(*balken, Enter::weiter);
        connect(balken, &QAbstractButton::clicked, this, [this, i] { Q_EMIT abschnittGewaehlt(i + 1); });
        constexpr int zeilenzahl = abschnitte / spaltenzahl;
        grid->addWidget(balken, i % zeilenzahl, i / zeilenzahl);
        balken_.push_back(balken);
    }
    return seite;
}

QWidget* Urteilsanzeige::baueHinweise() {
    auto* seite = new QWidget(this);
    auto* reihe = new QVBoxLayout(seite);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(2);
    for (std::size_t i = 0; i < gezeigteHinweise; ++i) {
        auto* knopf = new Hinweisknopf(seite);
        knopf->setObjectName(QStringLiteral("SofortHinweis(%1)").arg(i + 1));
        connect(knopf, &QAbstractButton::clicked, this, [this, i] {
            if (i < ergebnis_.hinweise.size()) Q_EMIT hinweisGewaehlt(ergebnis_.hinweise[i].ort);
        });
        reihe->addWidget(knopf);
        hinweise_.push_back(knopf);
    }
    weitere_ = new QLabel(seite);
    weitere_->setForegroundRole(QPalette::PlaceholderText);
    reihe->addWidget(weitere_);
    reihe->addStretch(1);
    return seite;
}

void Urteilsanzeige::zeige(const Sofortergebnis& ergebnis) {
    ergebnis_ = ergebnis;
    const QString vorher = urteil_->text();
    setzeText(*urteil_, urteilstext(ergebnis));
    setzeText(*massgebend_, massgebendtext(ergebnis.urteil));
    setzeText(*luecke_, ergebnis.luecken.isEmpty()
                            ? QString()
                            : QStringLiteral("! ") + ergebnis.luecken.join(QStringLiteral("; ")));
    luecke_->setVisible(!ergebnis.luecken.isEmpty());
    setzeText(*frisch_,
              ergebnis.frisch ? QStringLiteral("frisch gerechnet: ") + *ergebnis.frisch : QString());
    frisch_->setVisible(ergebnis.frisch.has_value());
    if (ergebnis.urteil.maxEta)
        zeigeBalken();
    else
        zeigeHinweise();
    seiten_->setCurrentIndex(ergebnis.urteil.maxEta ? 0 : 1);
    faerbe();
    if (vorher != urteil_->text()) Q_EMIT angesagt(sageAn(*urteil_));
}

void Urteilsanzeige::zeigeLastfaelle(const std::optional<Fallurteil>& massgebend, const QString& fehler) {
    lastfallurteil_ = Balkenurteil::ohneNachweis;
    QString text = QStringLiteral("! Lastfälle: ") + fehler;
    if (massgebend && massgebend->urteil.maxEta) {
        lastfallurteil_ =
            massgebend->urteil.erfuellt() ? Balkenurteil::erfuellt : Balkenurteil::ueberschritten;
        text = QStringLiteral("%1 Lastfälle: %2 · %3")
                   .arg(urteilszeichen(lastfallurteil_), etatext(*massgebend->urteil.maxEta),
                        qtext(massgebendText(*massgebend)));
    } else if (massgebend) {
        text += qtext(massgebend->name) + QStringLiteral(": Hinweise, keine Berechnung");
    }
    setzeText(*lastfall_, text);
    lastfall_->setVisible(massgebend || !fehler.isEmpty());
    faerbe();
}

void Urteilsanzeige::zeigeBalken() {
    for (std::size_t i = 0; i < balken_.size() && i < ergebnis_.abschnitte.size(); ++i)
        balken_[i]->setze(balkenwert(ergebnis_.abschnitte[i]));
}

void Urteilsanzeige::zeigeHinweise() {
    const std::vector<Hinweis>& hinweise = ergebnis_.hinweise;
    for (std::size_t i = 0; i < hinweise_.size(); ++i)
        static_cast<Hinweisknopf*>(hinweise_[i])
            ->setzeHinweis(i < hinweise.size() ? qtext(hinweise[i].text) : QString());
    const std::size_t weitere = hinweise.size() - std::min(hinweise.size(), gezeigteHinweise);
    weitere_->setText(weitere == 0   ? QString()
                      : weitere == 1 ? QStringLiteral("und 1 weiterer")
                                     : QStringLiteral("und %1 weitere").arg(weitere));
}

void Urteilsanzeige::faerbe() {
    faerbeSchrift(*urteil_, urteilsfarbe(palette(), gesamturteil(ergebnis_)));
    faerbeSchrift(*lastfall_, urteilsfarbe(palette(), lastfallurteil_));
    faerbeSchrift(*luecke_, urteilsfarben(palette()).warnung);
    faerbeSchrift(*frisch_, urteilsfarben(palette()).warnung);
}

void Urteilsanzeige::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && frisch_ != nullptr) faerbe();
}

}  // namespace rippenscheibe
