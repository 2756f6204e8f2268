#include "ui/folder/Mengenseite.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QTextDocument>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <array>

#include "files/Dateischreiber.h"
#include "study/Csv.h"
#include "study/Felder.h"
#include "ui/basics/Fenster.h"
#include "ui/basics/Knopf.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/basics/Zieldatei.h"
#include "ui/paper/Druckdialog.h"

namespace rippenscheibe {

namespace {

constexpr std::array<const char*, 6> mengenkoepfe{"Art",   "Bezeichnung", "Maß in mm",
                                                  "Stück", "Menge",       "Einheit"};
constexpr int ersteZahl = 3;
constexpr int letzteZahl = 4;

bool istZahl(int spalte) { return spalte >= ersteZahl && spalte <= letzteZahl; }

// The cells of a row for reading.
QStringList zellen(const Mengenzeile& zeile) {
    const QLocale sprache;
    const int stellen = zeile.einheit == "Stück" ? 0 : zeile.einheit == "m³" ? 3 : 2;
    return {qtext(zeile.art),
            qtext(zeile.name),
            qtext(zeile.mass).replace(QLatin1Char('x'), QStringLiteral(" × ")),
            sprache.toString(zeile.stueck, 'f', 0),
            sprache.toString(zeile.menge, 'f', stellen),
            qtext(zeile.einheit)};
}

}  // namespace

Mengenseite::Mengenseite(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : QWidget(parent),
      programm_(programm),
      meldungen_(meldungen),
      wahl_(new QButtonGroup(this)),
      titel_(new QLabel(this)),
      tabelle_(new QTreeWidget(this)) {
    auto* reihe = new QVBoxLayout(this);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(Fenster::raster / 2);
    reihe->addWidget(baueLeiste());
    tabelle_->setObjectName(QStringLiteral("Mengen"));
    tabelle_->setAccessibleName(QStringLiteral("Mengen"));
    tabelle_->setRootIsDecorated(false);
    tabelle_->setAlternatingRowColors(true);
    tabelle_->setUniformRowHeights(true);
    QStringList namen;
    for (const char* kopf : mengenkoepfe) namen << qtext(kopf);
    tabelle_->setHeaderLabels(namen);
    tabelle_->setColumnCount(static_cast<int>(mengenkoepfe.size()));
    for (int spalte = ersteZahl; spalte <= letzteZahl; ++spalte)
        tabelle_->headerItem()->setTextAlignment(spalte, Qt::AlignRight | Qt::AlignVCenter);
    tabelle_->header()->setStretchLastSection(false);
    tabelle_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tabelle_->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    reihe->addWidget(tabelle_, 1);
}

QWidget* Mengenseite::baueLeiste() {
    auto* leiste = new QWidget(this);
    auto* reihe = new QHBoxLayout(leiste);
    reihe->setContentsMargins(0, 0, 0, 0);
    titel_->setObjectName(QStringLiteral("Mengentitel"));
    QFont fett = titel_->font();
    fett.setWeight(QFont::DemiBold);
    titel_->setFont(fett);
    reihe->addWidget(titel_);
    reihe->addSpacing(2 * Fenster::raster);
    const auto option = [&](const char* name, const char* text, const char* tip) {
        auto* neu = new QRadioButton(qtext(text), leiste);
        neu->setObjectName(QLatin1String(name));
        neu->setAccessibleName(QStringLiteral("Mengen: ") + qtext(text).remove(QLatin1Char('&')));
        neu->setToolTip(qtext(tip));
        wahl_->addButton(neu);
        reihe->addWidget(neu);
        return neu;
    };
    QRadioButton* projekt =
        option("MengenProjekt", "ganzes &Projekt", "Mengen aller lesbaren Wände des Ordners");
    option("MengenAuswahl", "Aus&wahl", "Mengen der gewählten Zeilen");
    projekt->setChecked(true);
    connect(wahl_, &QButtonGroup::idToggled, this, [this](int, bool an) {
        if (an) Q_EMIT umgeschaltet();
    });
    reihe->addStretch(1);
    const auto knopf = [&](const char* name, const char* text, const char* tip, auto tue) {
        QPushButton* neu = neuerKnopf(leiste, QLatin1String(name), qtext(text), qtext(tip));
        connect(neu, &QPushButton::clicked, this, tue);
        reihe->addWidget(neu);
    };
    knopf("MengenDrucken", "Mengen &drucken ...", "Die Mengenliste drucken", [this] { drucke(); });
    knopf("MengenCsv", "Mengen als &CSV ...", "Die Mengenliste für eine Tabellenkalkulation sichern",
          [this] { sichereCsv(); });
    return leiste;
}

bool Mengenseite::ganzesProjekt() const {
    return wahl_->checkedButton()->objectName() == QStringLiteral("MengenProjekt");
}

void Mengenseite::zeige(const Mengen& mengen, const QString& titel, const QString& ordner) {
    zeilen_ = mengenzeilen(mengen);
    ordner_ = ordner;
    titel_->setText(QStringLiteral("Mengen: ") + titel);
    tabelle_->clear();
    for (const Mengenzeile& zeile : zeilen_) {
        auto* neu = new QTreeWidgetItem(tabelle_, zellen(zeile));
        for (int spalte = 0; spalte < tabelle_->columnCount(); ++spalte)
            if (istZahl(spalte)) neu->setTextAlignment(spalte, Qt::AlignRight | Qt::AlignVCenter);
    }
}

void Mengenseite::drucke() {
    clsPrintDialog dialog(programm_.drucker(), meldungen_, this);
    dialog.ShowPrinter();
    if (dialog.Cancelled()) return;
    QString html = QStringLiteral("<h3>%1</h3><p>%2</p><table cellpadding='3' width='100%'><tr>")
                       .arg(titel_->text().toHtmlEscaped(), ordner_.toHtmlEscaped());
    for (int spalte = 0; spalte < tabelle_->columnCount(); ++spalte)
        html += QStringLiteral("<th align='%1'>%2</th>")
                    .arg(istZahl(spalte) ? QStringLiteral("right") : QStringLiteral("left"),
                         qtext(mengenkoepfe[static_cast<std::size_t>(spalte)]));
    for (const Mengenzeile& zeile : zeilen_) {
        html += QStringLiteral("</tr><tr>");
        const QStringList texte = zellen(zeile);
        for (int spalte = 0; spalte < texte.size(); ++spalte)
            html += QStringLiteral("<td align='%1'>%2</td>")
                        .arg(istZahl(spalte) ? QStringLiteral("right") : QStringLiteral("left"),
                             texte[spalte].toHtmlEscaped());
    }
    QTextDocument blatt;
    blatt.setDefaultFont(QFont(QStringLiteral("Liberation Sans"), 9));
    blatt.setHtml(html + QStringLiteral("</tr></table>"));
    programm_.drucker().setDocName(titel_->text());
    blatt.print(&programm_.drucker());
}

void Mengenseite::sichereCsv() {
    const auto ziel = waehleZiel(meldungen_, this,
                                 {.titel = QStringLiteral("Mengen als CSV sichern"),
                                  .ordner = ordner_,
                                  .vorschlag = QStringLiteral("Mengen.csv"),
                                  .filter = QStringLiteral("CSV-Datei (*.csv)"),
                                  .endung = QStringLiteral("csv")});
    if (!ziel) return;
    const Csvform form{';', dezimalzeichen()};
    std::string text = "\xEF\xBB\xBF";  // so that spreadsheets take it for UTF-8
    std::vector<std::string> kopf(mengenkoepfe.begin(), mengenkoepfe.end());
    text += csvZeile(kopf, form);
    for (const Mengenzeile& zeile : zeilen_)
        text +=
            csvZeile(std::vector<std::string>{zeile.art, zeile.name, zeile.mass,
                                              mitDezimalzeichen(zahltext(zeile.stueck), form),
                                              mitDezimalzeichen(zahltext(zeile.menge), form), zeile.einheit},
                     form);
    if (const auto fehler = schreibeDauerhaft(pfad(*ziel), text))
        meldungen_.kritisch(this, QStringLiteral(" Fehler"), qtext(fehler->text));
}

}  // namespace rippenscheibe
