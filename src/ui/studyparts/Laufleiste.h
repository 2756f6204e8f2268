#pragma once

#include <QString>
#include <QWidget>
#include <cstddef>

#include "study/Faeden.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace rippenscheibe {

class Hintergrund;
struct Wand;

// Seconds that one wall takes to be judged, as measured on this one.
double sekundenJeWand(const Wand& w);
// "unter 1 s", "höchstens 12 s", "höchstens 3 min", "höchstens 2 h".
QString zeittext(double sekunden);
// With the thousands mark of the user's locale.
QString ganzzahltext(std::size_t zahl);

// Start and stop of a long computation: how much there is to do, two buttons, a bar, and how far it is.
class Laufleiste : public QWidget {
    Q_OBJECT

  public:
    // `name` and `text` are those of the start button; the others are "Umfang", "Anhalten", "Fortschritt" and
    // "Stand". `vorbereitung` is what stands there before the first progress.
    Laufleiste(Hintergrund& hintergrund, const QString& name, const QString& text,
               const QString& vorbereitung, QWidget* parent = nullptr);

    // What there is to do; `moeglich`: it can be started.
    void setzeUmfang(const QString& umfang, bool moeglich);
    void setzeStand(const QString& stand);

  Q_SIGNALS:
    void starte();

  private:
    void zeigeLauf(bool laeuft);
    void zeige(const Fortschritt& stand);

    Hintergrund& hintergrund_;
    bool moeglich_ = true;
    QString vorbereitung_;
    QLabel* umfang_;
    QPushButton* start_;
    QPushButton* halt_;
    QProgressBar* balken_;
    QLabel* stand_;
};

}  // namespace rippenscheibe
