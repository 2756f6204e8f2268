#pragma once

#include <QAbstractTableModel>
#include <array>
#include <optional>
#include <vector>

#include "study/Projekt.h"

namespace rippenscheibe {

// The load cases of a position as they are edited, each with its verdict from a fresh run. An empty cell
// keeps the value of the position, which is shown in grey; a refused text stays, and its case has no verdict.
class Lastfallmodell : public QAbstractTableModel {
    Q_OBJECT

  public:
    static constexpr int lasten = 9;
    enum Spalte { Name, ersteLast, Ausnutzung = ersteLast + lasten, Massgebend, Spaltenzahl };

    Lastfallmodell(const Wand& wand, QObject* parent);

    void setzeFaelle(const std::vector<Lastfallzeile>& faelle);
    // Nothing while a text is refused.
    std::optional<std::vector<Lastfallzeile>> faelle() const;
    // The first cell with a refused text.
    QModelIndex abgelehnt() const;
    // A copy of the case, or an empty one behind the last; its row comes back.
    int fuegeEin(int vorlage);
    void loesche(int zeile);
    // The verdict of a row; nothing while one of its texts is refused.
    const Fallurteil* urteil(int zeile) const;
    // The row that governs, -1 without one.
    int massgebend() const { return massgebend_; }
    // The words a cell is chosen from; none for a cell with a number.
    static QStringList auswahl(int spalte);

    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& index, int rolle) const override;
    bool setData(const QModelIndex& index, const QVariant& wert, int rolle) override;
    QVariant headerData(int spalte, Qt::Orientation richtung, int rolle) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  Q_SIGNALS:
    void gerechnet();  // behind every change

  private:
    struct Zeile {
        QString name;
        std::array<QString, lasten> texte;
        std::array<QString, lasten> einwaende;  // why a text is refused
        std::optional<Fallurteil> urteil;
    };

    void pruefe(Zeile& zeile) const;
    std::optional<Lastfallzeile> fall(const Zeile& zeile) const;
    void rechne();
    QString wert(const Zeile& zeile, int last) const;  // the own one, else that of the position
    QVariant urteilsdaten(const Zeile& zeile, int spalte, int rolle) const;
    QString lasttext(const Zeile& zeile, int last) const;

    Eingaben eingaben_;
    EigeneMaterialien materialien_;
    std::vector<Zeile> zeilen_;
    int massgebend_ = -1;
};

}  // namespace rippenscheibe
