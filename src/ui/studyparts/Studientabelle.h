#pragma once

#include <QTreeWidget>
#include <optional>

#include "study/Bewertung.h"
#include "ui/verdict/Ausnutzungsbalken.h"

namespace rippenscheibe {

// One cell of a table of walls.
struct Studienzelle {
    QString text;
    bool zahl = false;            // numbers stand at the right
    std::optional<double> eta{};  // a bar before the text
    Balkenurteil urteil = Balkenurteil::ohneBedarf;
    QString tip{};
};

// A table of walls to choose from, one a row; utilisations have a bar. The first row may be the wall as it
// is, apart from the others.
class Studientabelle : public QTreeWidget {
    Q_OBJECT

  public:
    Studientabelle(const QString& name, const QString& bezeichnung, QWidget* parent = nullptr);

    // Empties it. The column `breit` takes the room that is left, if any.
    void beginne(const QStringList& spalten, int breit);
    // `nummer` is what `gewaehlt` says of the row.
    void fuegeZeileAn(const QList<Studienzelle>& zellen, int nummer, bool heute = false);
    // Columns as wide as their texts; chooses the first row with a number of at least 0.
    void schliesseAb();
    // The number of the chosen row, -1 without one.
    int nummer() const;

    QSize sizeHint() const override { return {640, 240}; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  Q_SIGNALS:
    void gewaehlt(int nummer);

  private:
    void verteileBreiten();

    int breit_ = 0;
};

// The utilisation of a wall, its verdict as a sign and a colour.
Studienzelle ausnutzungszelle(const Bewertung& bewertung, const Bewertungsregel& regel);
// "5.1 Scheibenschub parallel", the finding or the gap; the load case stands in the tip.
Studienzelle massgebendzelle(const Bewertung& bewertung, const Bewertungsregel& regel);
// The direction of the horizontal load that governs, `Fvk` that of the position; "–" without one.
QString richtungstext(const Bewertung& bewertung, const Bewertungsregel& regel, double Fvk);
Balkenurteil balkenurteil(Ausgang ausgang);

}  // namespace rippenscheibe
