#include "ui/input/Form16_VMKatalog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "basis/Zahlenformat.h"
#include "model/VMKatalog.h"
#include "ui/basics/Kuerzel.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"

namespace rippenscheibe {

namespace {

// The boxes Textbox1 of the fastener dialog that a click fills.
struct Felder {
    int d;
    int ln;
    int dk;
};
constexpr Paar<Felder> felder{{{{8, 9, 2}, {10, 11, 6}}}};

// The catalogue is in single precision; what a box is given is the decimal number that is meant: 4.3, not
// 4.30000019073486, which no exact comparison with 4.3 would find.
double dezimal(float wert) { return QString::number(static_cast<double>(wert), 'g', 7).toDouble(); }

QString zahl(float wert) {
    const double w = dezimal(wert);
    const bool hundertstel = w * 10 != static_cast<double>(static_cast<int>(w * 10));
    return qtext(formatiere(hundertstel ? "0.00" : "0.0", w, dezimalzeichen()));
}

QString abmessung(const VMKatalogzeile& zeile) {
    return zahl(zeile.d) + QStringLiteral(" x ") +
           qtext(formatiere("0", static_cast<double>(zeile.ln), dezimalzeichen()));
}

// How many rows of a group stand beneath each other before the next column begins: a series of one
// diameter where there is one.
int zeilenJeSpalte(int anzahl) {
    if (anzahl % 7 == 0) return 7;
    if (anzahl % 5 == 0) return 5;
    return anzahl > 3 ? (anzahl + 1) / 2 : 1;
}

}  // namespace

Form16::Form16(Programm& programm, Meldungen& meldungen, QWidget* dialog, Seite VMKatalogSeite)
    : Fenster(programm, meldungen, dialog, QStringLiteral("Form16"),
              QStringLiteral(" Infos zu Verbindungsmitteln"), Tippen::aendertNichts),
      dialog_(dialog),
      seite_(VMKatalogSeite) {
    auto* rahmen = new QGroupBox(
        QStringLiteral("Übliche Verbindungsmittel (Klick auf die entsprechende >>> Werte werden übernommen)"),
        this);
    auto* aussen = new QVBoxLayout(rahmen);
    auto* spalten = new QHBoxLayout;
    spalten->setSpacing(2 * raster);
    auto* links = new QVBoxLayout;
    auto* rechts = new QVBoxLayout;
    for (QVBoxLayout* spalte : {links, rechts}) spalte->setSpacing(raster);
    for (const VMKataloggruppe& gruppe : VMKataloggruppen()) {
        // The two long lists of screws and the short one of nails fill the column at the right.
        const int anzahl = gruppe.letzteZeile - gruppe.ersteZeile + 1;
        (anzahl == 21 || anzahl == 3 ? rechts : links)->addWidget(baueGruppe(gruppe));
    }
    links->addStretch(1);
    rechts->addStretch(1);
    spalten->addLayout(links);
    spalten->addLayout(rechts);
    aussen->addLayout(spalten);
    inhalt()->addWidget(rahmen, 1);
    ohneKuerzel(*rahmen);  // 71 buttons of one caption
    QPushButton* ende = zurueck(QStringLiteral("ComEnde"));
    disconnect(ende, nullptr, this, nullptr);
    connect(ende, &QPushButton::clicked, this, &QDialog::reject);
}

QGroupBox* Form16::baueGruppe(const VMKataloggruppe& gruppe) {
    auto* rahmen = new QGroupBox(qtext(gruppe.name), this);
    auto* spalte = new QVBoxLayout;
    spalte->setSpacing(raster / 2);
    for (const std::string_view hinweis : {gruppe.hinweis, gruppe.zusatz}) {
        if (hinweis.empty()) continue;
        auto* schild = new QLabel(qtext(hinweis), rahmen);
        schild->setTextFormat(Qt::PlainText);
        spalte->addWidget(schild, 0, Qt::AlignTop);
    }
    // The note stands beside the buttons, above them where they need the width.
    auto* grid = new QGridLayout;
    const int anzahl = gruppe.letzteZeile - gruppe.ersteZeile + 1;
    const bool breit = anzahl == 21 || anzahl == 3;
    auto* aussen = new QBoxLayout(breit ? QBoxLayout::TopToBottom : QBoxLayout::RightToLeft, rahmen);
    aussen->addLayout(spalte);
    aussen->addLayout(grid);
    if (breit) {
        aussen->setSpacing(raster / 2);
    } else {
        aussen->addStretch(0);
        spalte->addStretch(1);
        aussen->setStretch(0, 1);
    }
    grid->setHorizontalSpacing(raster / 2);
    grid->setVerticalSpacing(2);
    const int jeSpalte = zeilenJeSpalte(anzahl);
    for (int i = 0; i < anzahl; ++i) baueZeile(gruppe, i, *rahmen, *grid, i % jeSpalte, 3 * (i / jeSpalte));
    grid->setColumnStretch(3 * ((anzahl + jeSpalte - 1) / std::max(jeSpalte, 1)), 1);
    return rahmen;
}

// One size with its button, in three columns of the grid; the third is the gap.
void Form16::baueZeile(const VMKataloggruppe& gruppe, int i, QWidget& rahmen, QGridLayout& grid, int zeile,
                       int spalte) {
    const int nummer = gruppe.ersteZeile + i;
    const VMKatalogzeile& werte = VMKatalog()[static_cast<std::size_t>(nummer - 1)];
    auto* schild = new QLabel(abmessung(werte), &rahmen);
    schild->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // All groups share the columns of the widest size.
    schild->setMinimumWidth(schild->fontMetrics().horizontalAdvance(QStringLiteral("4,5 x 100")));
    schild->setToolTip(QStringLiteral("d-Kopf = %1 mm").arg(zahl(werte.dk)));
    QPushButton* waehlen = knopf(QStringLiteral("Command1(%1)").arg(nummer - 1), QStringLiteral("auswählen"));
    waehlen->setAccessibleName(qtext(gruppe.name).remove(QStringLiteral(" :")) + QLatin1Char(' ') +
                               schild->text() + QStringLiteral(" auswählen"));
    waehlen->setToolTip(schild->toolTip());
    schild->setBuddy(waehlen);
    grid.addWidget(schild, zeile, spalte);
    grid.addWidget(waehlen, zeile, spalte + 1);
    grid.setColumnMinimumWidth(spalte + 2, raster);
    connect(waehlen, &QPushButton::clicked, this, [this, nummer] { waehle(nummer); });
}

// Row `zeile`, from 1. Whether the box of the head diameter is in use is the dialog's to know.
// The values go into the boxes as they stand in the catalogue, where a box takes them: the rows of staples
// carry one for the head, which their kinds do not use and which is too small for its box.
void Form16::waehle(int zeile) {
    const VMKatalogzeile& werte = VMKatalog()[static_cast<std::size_t>(zeile - 1)];
    const auto setze = [this](int index, float wert) {
        auto* feld = dialog_->findChild<Werteingabe*>(QStringLiteral("Textbox1(%1)").arg(index));
        if (feld != nullptr && feld->erlaubt(dezimal(wert))) feld->setzeWert(dezimal(wert));
    };
    setze(felder[seite_].d, werte.d);
    setze(felder[seite_].ln, werte.ln);
    setze(felder[seite_].dk, werte.dk);
    accept();
}

}  // namespace rippenscheibe
