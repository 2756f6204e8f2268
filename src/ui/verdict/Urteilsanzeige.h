#pragma once

#include <QLabel>
#include <QWidget>
#include <vector>

#include "ui/verdict/Ausnutzungsbalken.h"
#include "ui/verdict/Sofortrechnung.h"

class QStackedLayout;

namespace rippenscheibe {

class Kurzzeile;

// The look of the whole verdict: met only without open demands.
Balkenurteil gesamturteil(const Sofortergebnis& ergebnis);

// The verdict as a slim line, for the foot of a dialog. What does not fit stands in its tool tip.
class Urteilszeile : public QLabel {
    Q_OBJECT

  public:
    explicit Urteilszeile(QWidget* parent = nullptr);

    void zeige(const Sofortergebnis& ergebnis);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    void angesagt(const QString& text);  // what a screen reader was given to say

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString urteil_;
    QString rest_;
    Balkenurteil art_ = Balkenurteil::ohneBedarf;
};

// The live verdict of the main window: verdict, decisive proof, what a fresh run says otherwise, and one bar
// a section of the proofs, or the first findings. Old values stay until the new ones are there.
class Urteilsanzeige : public QWidget {
    Q_OBJECT

  public:
    explicit Urteilsanzeige(QWidget* parent = nullptr);

    void zeige(const Sofortergebnis& ergebnis);
    // What the table of load cases beside the position says: the case that governs, or why it is not read.
    // Nothing without a table.
    void zeigeLastfaelle(const std::optional<Fallurteil>& massgebend, const QString& fehler);

  Q_SIGNALS:
    void abschnittGewaehlt(int abschnitt);  // 5.x
    void hinweisGewaehlt(Eingabeort ort);
    void angesagt(const QString& text);  // what a screen reader was given to say

  protected:
    void changeEvent(QEvent* event) override;

  private:
    static constexpr int abschnitte = 8;
    static constexpr std::size_t gezeigteHinweise = 2;

    QWidget* baueBalken();
    QWidget* baueHinweise();
    void zeigeBalken();
    void zeigeHinweise();
    void faerbe();

    Sofortergebnis ergebnis_;
    Balkenurteil lastfallurteil_ = Balkenurteil::ohneBedarf;
    Kurzzeile* urteil_;
    Kurzzeile* massgebend_;
    Kurzzeile* lastfall_;
    Kurzzeile* frisch_ = nullptr;
    Kurzzeile* luecke_;
    QStackedLayout* seiten_;
    std::vector<Ausnutzungsbalken*> balken_;
    std::vector<QAbstractButton*> hinweise_;
    QLabel* weitere_;
};

}  // namespace rippenscheibe
