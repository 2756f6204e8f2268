#include "ui/help/Form3_Taschenrechner.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "ui/basics/Kuerzel.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

struct Ort {
    int zeile;
    int spalte;
};

// Digits 0 to 9 and the operators "+", "-", "X", "/", "=" on the grid of keys.
constexpr std::array<Ort, 10> ziffernorte{
    {{4, 0}, {3, 0}, {3, 1}, {3, 2}, {2, 0}, {2, 1}, {2, 2}, {1, 0}, {1, 1}, {1, 2}}};
constexpr std::array<Ort, 5> operatororte{{{3, 3}, {2, 3}, {1, 3}, {0, 3}, {4, 3}}};
constexpr std::array<const char*, 5> operatoren{"+", "-", "X", "/", "="};
constexpr std::array<const char*, 5> operatornamen{"plus", "minus", "mal", "durch", "gleich"};

// The keys beside digits and operators.
struct Sondertaste {
    const char* name;
    const char* text;
    int zeile;
    int spalte;
    const char* vorlesen;  // where the text is no word
    const char* hinweis;
    void (Rechner::*druecke)();
};
constexpr std::array<Sondertaste, 4> sondertasten{{
    {"Cancel", "C", 0, 0, "", "alles löschen", &Rechner::loeschen},
    {"CancelEntry", "CE", 0, 1, "", "Eingabe löschen", &Rechner::eingabeLoeschen},
    {"Percent", "%", 0, 2, "Prozent", "", &Rechner::prozent},
    {"Decimal", ".", 4, 2, "Dezimalpunkt", "", &Rechner::dezimal},
}};

QString indiziert(const char* name, std::size_t index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

}  // namespace

Form3::Form3(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Form3"),
              QStringLiteral("        Quendel Software Rechner"), Tippen::aendertNichts),
      anzeige_(new QLineEdit(this)) {
    anzeige_->setObjectName(QStringLiteral("Readout"));
    anzeige_->setAccessibleName(QStringLiteral("Anzeige"));
    anzeige_->setReadOnly(true);
    anzeige_->setFocusPolicy(Qt::ClickFocus);
    anzeige_->setAlignment(Qt::AlignRight);
    QFont gross = anzeige_->font();
    gross.setPointSizeF(gross.pointSizeF() * 1.6);
    anzeige_->setFont(gross);
    inhalt()->addWidget(anzeige_);

    auto* grid = new QGridLayout;
    grid->setSpacing(raster / 2);
    inhalt()->addLayout(grid, 1);
    baueTasten(grid);

    zurueck(QStringLiteral("Command1"))->setDefault(false);
    ohneKuerzel(*this);  // each key of the calculator is typed as it stands
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
    zeige();
}

void Form3::baueTasten(QGridLayout* grid) {
    for (const Sondertaste& sonder : sondertasten) {
        QPushButton* knopf =
            taste(grid, QLatin1String(sonder.name), QLatin1String(sonder.text), sonder.zeile, sonder.spalte);
        if (*sonder.vorlesen != 0) knopf->setAccessibleName(QLatin1String(sonder.vorlesen));
        knopf->setToolTip(QString::fromUtf8(sonder.hinweis));
        connect(knopf, &QPushButton::clicked, this, [this, &sonder] {
            (rechner_.*sonder.druecke)();
            zeige();
        });
    }

    for (std::size_t i = 0; i < ziffernorte.size(); ++i) {
        QPushButton* knopf = taste(grid, indiziert("Number", i), QString::number(i), ziffernorte[i].zeile,
                                   ziffernorte[i].spalte);
        connect(knopf, &QPushButton::clicked, this, [this, i] {
            rechner_.ziffer(static_cast<int>(i));
            zeige();
        });
    }
    // The nought is two keys wide.
    grid->addWidget(findChild<QPushButton*>(indiziert("Number", 0)), 4, 0, 1, 2);
    for (std::size_t i = 0; i < operatoren.size(); ++i) {
        QPushButton* knopf = taste(grid, indiziert("Operator", i), QLatin1String(operatoren[i]),
                                   operatororte[i].zeile, operatororte[i].spalte);
        knopf->setAccessibleName(QLatin1String(operatornamen[i]));
        connect(knopf, &QPushButton::clicked, this, [this, i] { operation(static_cast<Rechner::Taste>(i)); });
    }
}

QPushButton* Form3::taste(QGridLayout* grid, const QString& name, const QString& text, int zeile,
                          int spalte) {
    QPushButton* neu = knopf(name, text);
    neu->setAccessibleDescription(QStringLiteral("Taste des Rechners"));
    neu->setMinimumSize(56, 40);
    neu->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    grid->addWidget(neu, zeile, spalte);
    return neu;
}

void Form3::zeige() { anzeige_->setText(qtext(rechner_.anzeige())); }

void Form3::operation(Rechner::Taste taste) {
    const Rechner::Meldung meldung = rechner_.operation(taste);
    if (meldung == Rechner::Meldung::divisionDurchNull)
        meldungen_.zeige(this, {Symbol::achtung, QStringLiteral("Achtung"),
                                QStringLiteral("Division durch Null! "), Knoepfe::ok});
    zeige();
}

// Enter is "=", whatever button was pressed by the mouse before; only "Zurück" is pressed by it.
bool Form3::enter(QWidget& feld) {
    if (feld.objectName() == QStringLiteral("Command1")) return false;
    operation(Rechner::Taste::gleich);
    return true;
}

// The same keys as on the number pad; the entry is forgotten by Entf or the backspace key, all by C.
void Form3::keyPressEvent(QKeyEvent* event) {
    const auto klick = [this](const QString& name) { findChild<QPushButton*>(name)->click(); };
    const int taste = event->key();
    if (taste >= Qt::Key_0 && taste <= Qt::Key_9) {
        klick(indiziert("Number", static_cast<std::size_t>(taste - Qt::Key_0)));
        return;
    }
    switch (taste) {
        case Qt::Key_Plus:
            klick(indiziert("Operator", 0));
            return;
        case Qt::Key_Minus:
            klick(indiziert("Operator", 1));
            return;
        case Qt::Key_X:
        case Qt::Key_Asterisk:
            klick(indiziert("Operator", 2));
            return;
        case Qt::Key_Slash:
            klick(indiziert("Operator", 3));
            return;
        case Qt::Key_Equal:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            klick(indiziert("Operator", 4));
            return;
        case Qt::Key_Period:
        case Qt::Key_Comma:
            klick(QStringLiteral("Decimal"));
            return;
        case Qt::Key_Percent:
            klick(QStringLiteral("Percent"));
            return;
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            klick(QStringLiteral("CancelEntry"));
            return;
        case Qt::Key_C:
            if (event->modifiers() & Qt::ControlModifier) {
                anzeige_->selectAll();
                anzeige_->copy();
                anzeige_->deselect();
            } else {
                klick(QStringLiteral("Cancel"));
            }
            return;
        default:
            Fenster::keyPressEvent(event);
    }
}

}  // namespace rippenscheibe
