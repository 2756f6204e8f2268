#pragma once

#include <QAbstractTableModel>
#include <QPalette>
#include <QPixmap>
#include <QSortFilterProxyModel>
#include <unordered_map>
#include <vector>

#include "study/Projekt.h"

namespace rippenscheibe {

// The positions of a folder, a row a file in the order of their names. Rows are there before they are read.
class Projektmodell : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Spalte {
        Wand,
        Masse,
        Beplankung,
        Befestigung,
        Verankerung,
        Ausnutzung,
        Massgebend,
        Offen,
        Datum,
        Spaltenzahl
    };
    enum Rolle { Sortierwert = Qt::UserRole + 10, Suchtext, Stand, MitLuecken };

    explicit Projektmodell(QObject* parent);

    // The materials that pictures show; forgets all rows.
    void beginne(const EigeneMaterialien& materialien);
    // The files that are there now. Rows of files that did not change stay as they are.
    void setzeDateien(std::vector<Projektdatei> dateien);
    void nimmAuf(const Projektposition& position);
    void setzeFarben(const QPalette& palette, double dichte);

    const std::vector<Projektdatei>& dateien() const { return dateien_; }
    // Nothing while the row is not read.
    const Projektposition* position(int zeile) const;

    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& index, int rolle) const override;
    QVariant headerData(int spalte, Qt::Orientation richtung, int rolle) const override;

  private:
    QPixmap miniatur(int zeile) const;

    std::vector<Projektdatei> dateien_;
    std::vector<std::string> namen_;                            // their paths
    std::unordered_map<std::string, int> zeilen_;               // the row of a path
    std::unordered_map<std::string, Projektposition> gelesen_;  // by path
    EigeneMaterialien materialien_;
    QPalette farben_;
    double dichte_ = 1;
    mutable std::unordered_map<std::string, QPixmap> bilder_;
};

// What the search and the choice of a verdict leave of them.
class Projektfilter : public QSortFilterProxyModel {
    Q_OBJECT

  public:
    enum class Wahl { alle, erfuellt, nichtErfuellt, luecken, hinweise, unlesbar };

    explicit Projektfilter(QObject* parent);
    void suche(const QString& text);
    void waehle(Wahl wahl);

  protected:
    bool filterAcceptsRow(int zeile, const QModelIndex& eltern) const override;

  private:
    bool gewaehlt(const QModelIndex& index) const;

    QStringList worte_;
    Wahl wahl_ = Wahl::alle;
};

// What there is to say of a position besides its verdict, a sentence each: why it does not open, findings,
// gaps, what a search would object to.
QStringList projektsaetze(const Projektposition& position);

}  // namespace rippenscheibe
