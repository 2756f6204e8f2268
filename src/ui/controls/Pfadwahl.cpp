#include "ui/controls/Pfadwahl.h"

#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStorageInfo>
#include <QTreeView>
#include <QVBoxLayout>

#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

// The roots a folder can be chosen below: drives where the platform has them, the file system and what
// users mount into it elsewhere, and the user's own folder.
QStringList laufwerke() {
    QStringList wurzeln;
    for (const QFileInfo& wurzel : QDir::drives()) wurzeln << wurzel.absoluteFilePath();
    for (const QStorageInfo& speicher : QStorageInfo::mountedVolumes()) {
        const QString pfad = speicher.rootPath();
        const bool eingehaengt = pfad.startsWith(QStringLiteral("/media/")) ||
                                 pfad.startsWith(QStringLiteral("/mnt/")) ||
                                 pfad.startsWith(QStringLiteral("/run/media/"));
        if (eingehaengt && speicher.isReady()) wurzeln << pfad;
    }
    wurzeln << QDir::homePath();
    wurzeln.removeDuplicates();
    return wurzeln;
}

QString mitTrenner(QString pfad) {
    pfad = QDir::toNativeSeparators(pfad);
    return pfad.endsWith(QDir::separator()) ? pfad : pfad + QDir::separator();
}

}  // namespace

Pfadwahl::Pfadwahl(Programm& programm, Meldungen& meldungen, QWidget* parent, Zweck zweck)
    : Fenster(programm, meldungen, parent,
              zweck == Zweck::standardpfad ? QStringLiteral("Form255") : QStringLiteral("Form500"),
              zweck == Zweck::standardpfad ? QStringLiteral("  Standardpfad wählen")
                                           : QStringLiteral("  Pfad festlegen"),
              Tippen::aendertNichts),
      zweck_(zweck),
      laufwerk_(new QComboBox(this)),
      ordner_(new QTreeView(this)),
      modell_(new QFileSystemModel(this)),
      gewaehlt_(new QLineEdit(this)) {
    baueFelder();
    QPushButton* ja = schaltflaeche(QStringLiteral("Command1(1)"), QStringLiteral("Übernehmen"));
    ja->setDefault(true);
    connect(ja, &QPushButton::clicked, this, &Pfadwahl::uebernehmen);
    QPushButton* nein = schaltflaeche(QStringLiteral("Command1(0)"), QStringLiteral("Abbruch"));
    connect(nein, &QPushButton::clicked, this, &QDialog::reject);

    connect(laufwerk_, &QComboBox::currentTextChanged, this, &Pfadwahl::zeigeLaufwerk);
    connect(ordner_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { gewaehlt_->setText(pfad()); });
    zeigeAnfang();
}

void Pfadwahl::baueFelder() {
    laufwerk_->setObjectName(QStringLiteral("Drive1"));
    laufwerk_->setAccessibleName(QStringLiteral("Laufwerk"));
    laufwerk_->addItems(laufwerke());
    inhalt()->addWidget(laufwerk_);

    modell_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    ordner_->setObjectName(QStringLiteral("Dir1"));
    ordner_->setAccessibleName(QStringLiteral("Ordner"));
    ordner_->setModel(modell_);
    ordner_->setHeaderHidden(true);
    for (int spalte = 1; spalte < modell_->columnCount(); ++spalte) ordner_->hideColumn(spalte);
    ordner_->setMinimumSize(420, 280);
    inhalt()->addWidget(ordner_, 1);

    gewaehlt_->setObjectName(QStringLiteral("LabelPfad"));
    gewaehlt_->setAccessibleName(QStringLiteral("gewählter Ordner"));
    gewaehlt_->setReadOnly(true);
    gewaehlt_->setFocusPolicy(Qt::ClickFocus);
    inhalt()->addWidget(gewaehlt_);
}

// The default folder is always chosen from the root on; a position begins where its folder is.
void Pfadwahl::zeigeAnfang() {
    QString start = QDir::rootPath();
    if (zweck_ == Zweck::positionspfad && !programm_.Positionspfad.empty())
        start = qtext(programm_.Positionspfad);
    zeigeOrdner(QDir(start).exists() ? start : QDir::rootPath());
    // Folders are read in the background and sorted later: until the user chooses, the start stays in sight.
    const QPersistentModelIndex anfang = ordner_->currentIndex();
    const auto zeige = [this, anfang] {
        if (!anfang.isValid() || ordner_->currentIndex() != anfang) return;
        ordner_->expand(anfang);
        ordner_->scrollTo(anfang, QAbstractItemView::PositionAtCenter);
    };
    connect(modell_, &QFileSystemModel::directoryLoaded, this, zeige);
    connect(modell_, &QFileSystemModel::layoutChanged, this, zeige);
}

QString Pfadwahl::pfad() const {
    const QModelIndex ort = ordner_->currentIndex();
    return mitTrenner(ort.isValid() ? modell_->filePath(ort) : modell_->rootPath());
}

void Pfadwahl::zeigeLaufwerk(const QString& wurzel) {
    ordner_->setCurrentIndex(QModelIndex());
    ordner_->setRootIndex(modell_->setRootPath(wurzel));
    gewaehlt_->setText(pfad());
}

// Shows a folder below the longest root it lies in.
void Pfadwahl::zeigeOrdner(const QString& ordner) {
    int beste = 0;
    for (int i = 0; i < laufwerk_->count(); ++i) {
        const QString wurzel = laufwerk_->itemText(i);
        if (mitTrenner(ordner).startsWith(mitTrenner(wurzel)) &&
            wurzel.size() >= laufwerk_->itemText(beste).size())
            beste = i;
    }
    laufwerk_->setCurrentIndex(beste);
    zeigeLaufwerk(laufwerk_->currentText());
    const QModelIndex ort = modell_->index(QDir::cleanPath(ordner));
    if (ort == ordner_->rootIndex()) return;
    ordner_->setCurrentIndex(ort);
    ordner_->expand(ort);
    ordner_->scrollTo(ort, QAbstractItemView::PositionAtCenter);
}

void Pfadwahl::uebernehmen() {
    std::string& ziel =
        zweck_ == Zweck::standardpfad ? programm_.einstellungen.StandardPfad : programm_.Positionspfad;
    ziel = utf8(pfad());
    accept();
}

}  // namespace rippenscheibe
