#pragma once

#include <QCheckBox>
#include <vector>

#include "study/Raster.h"
#include "ui/verdict/Lastfallquelle.h"

namespace rippenscheibe {

class Programm;

// Whether a study counts the load cases beside the position: on where there are any. They cannot count where
// they set what the study varies; the tick then says so.
class Lastfallwahl : public QCheckBox {
    Q_OBJECT

  public:
    explicit Lastfallwahl(const Programm& programm, QWidget* parent = nullptr);

    // Looks at the table again. The cases for a study of these axes, none when they do not count.
    std::vector<Lastfallzeile> faelle(const Raster& raster = {});

  private:
    void zeige(const QString& text, const QString& hinweis, bool moeglich);

    const Programm& programm_;
    Lastfallquelle quelle_;
    bool gewuenscht_ = true;
};

}  // namespace rippenscheibe
