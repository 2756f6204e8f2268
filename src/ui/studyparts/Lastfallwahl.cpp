#include "ui/studyparts/Lastfallwahl.h"

#include "study/Lastfaelle.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

Lastfallwahl::Lastfallwahl(const Programm& programm, QWidget* parent)
    : QCheckBox(parent), programm_(programm) {
    setObjectName(QStringLiteral("MitLastfaellen"));
    connect(this, &QCheckBox::clicked, this, [this](bool an) { gewuenscht_ = an; });
    faelle();
}

std::vector<Lastfallzeile> Lastfallwahl::faelle(const Raster& raster) {
    const std::vector<Lastfallzeile>& alle = quelle_.zu(programm_.Dateiname);
    if (!quelle_.fehler().isEmpty()) {
        zeige(QStringLiteral("! Lastfälle sind nicht lesbar"), quelle_.fehler(), false);
    } else if (alle.empty()) {
        zeige(QStringLiteral("keine Lastfälle neben der Position"),
              QStringLiteral("Das Fenster „Lastfälle“ schlägt welche vor"), false);
    } else if (ueberschriebenesFeld(raster, alle)) {
        zeige(QStringLiteral("ohne die Lastfälle: sie setzen die Größe selbst"),
              QStringLiteral("Es gelten die Lasten der Position"), false);
    } else {
        zeige(alle.size() == 1 ? QStringLiteral("mit dem Lastfall neben der Position")
                               : QStringLiteral("mit den %1 Lastfällen neben der Position").arg(alle.size()),
              QStringLiteral("Eine Wand besteht, wenn sie in jedem Lastfall besteht; ohne Haken gelten die "
                             "Lasten der Position"),
              true);
    }
    return isChecked() ? alle : std::vector<Lastfallzeile>{};
}

void Lastfallwahl::zeige(const QString& text, const QString& hinweis, bool moeglich) {
    setText(text);
    setAccessibleName(text);
    setToolTip(hinweis);
    setEnabled(moeglich);
    setChecked(moeglich && gewuenscht_);
}

}  // namespace rippenscheibe
