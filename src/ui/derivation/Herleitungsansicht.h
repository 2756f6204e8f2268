#pragma once

#include <QWidget>
#include <memory>
#include <optional>
#include <vector>

#include "model/Wand.h"
#include "trace/Darstellung.h"
#include "ui/derivation/Formelbild.h"

class QLabel;
class QListWidget;
class QListWidgetItem;
class QScrollArea;

namespace rippenscheibe {

class Meldungen;
class Programm;

// A typeset formula; its operands are links.
class Formelfeld : public QWidget {
    Q_OBJECT

  public:
    explicit Formelfeld(QWidget* parent);

    void zeige(Formelbild bild, const QString& worte);

  Q_SIGNALS:
    void gewaehlt(herleitung::Ort knoten);

  protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;

  private:
    std::optional<herleitung::Ort> unter(const QPointF& punkt) const;

    Formelbild bild_;
};

// Where a printed number comes from: its formula in symbols and numbers, what it rests on as links one level
// down, the way there at the top. Inputs open the dialog in which they are entered.
class Herleitungsansicht : public QWidget {
    Q_OBJECT

  public:
    Herleitungsansicht(Programm& programm, Meldungen& meldungen, QWidget* parent);

    // The number at this place of the result view; the lines above tell equal lines apart.
    void zeigeStelle(const std::vector<QString>& zeilenBisher, const QString& zeile, int spalte);

  private:
    struct Station {
        herleitung::Ort schritt = herleitung::keiner;  // none for a value that the report forms
        herleitung::Ort ausdruck = herleitung::keiner;
    };
    bool leiteHer();
    void beginne(herleitung::Ort ausdruck);
    void gehe(herleitung::Ort knoten);
    void zeige();
    void zeigePfad();
    void zeigeWoher(const Station& s);
    void woher(herleitung::Ort knoten, bool bedingung);
    void waehle(const QListWidgetItem& zeile);
    void oeffneEingabe(const herleitung::Stand& stand);
    void melde(const QString& text);
    QString name(const Station& s) const;

    Programm& programm_;
    Meldungen& meldungen_;
    const Wand vorDemLauf_;
    const Wand nachDemLauf_;
    std::unique_ptr<herleitung::Graph> graph_;  // made when the first number is asked for
    std::unique_ptr<Darstellung> d_;
    bool vergeblich_ = false;
    std::vector<Station> pfad_;

    QLabel* pfadzeile_;
    QLabel* bedeutung_;
    QScrollArea* rahmen_;
    Formelfeld* formel_;
    QLabel* anmerkungen_;
    QListWidget* woher_;
};

}  // namespace rippenscheibe
