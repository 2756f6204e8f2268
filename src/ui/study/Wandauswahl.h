#pragma once

#include <QSplitter>
#include <vector>

#include "ui/studyparts/Feldworte.h"
#include "ui/studyparts/Studientabelle.h"

class QLabel;

namespace rippenscheibe {

class Zeichnungsansicht;

// A table of walls, each told by what it changes against the wall of today, and the drawing of the chosen
// one.
class Wandauswahl : public QSplitter {
    Q_OBJECT

  public:
    // `name` is the object name of the table.
    Wandauswahl(const QString& name, const QString& bezeichnung, Qt::Orientation richtung,
                QWidget* parent = nullptr);

    // Empties it. The column `breit` takes the room that is left.
    void beginne(const Wand& heute, const QStringList& spalten, int breit);
    // The wall of today, then the others in the order of the table.
    void fuegeHeuteAn(const QList<Studienzelle>& zellen);
    void fuegeAn(const QList<Studienzelle>& zellen, Zuweisungen setzt);
    void schliesseAb();
    // What the chosen wall changes; empty for the wall of today.
    Zuweisungen gewaehlt() const;

  Q_SIGNALS:
    void auswahlGeaendert(bool aendertEtwas);

  private:
    void zeige();

    Wand heute_;
    std::vector<Zuweisungen> waende_;
    Studientabelle* tabelle_;
    Zeichnungsansicht* ansicht_;
    QLabel* aenderung_;
};

}  // namespace rippenscheibe
