#pragma once

#include <QDialog>
#include <QStringList>

class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace rippenscheibe {

class Meldungen;
class Programm;

// What a key does in a window besides its usual work.
//
// A typed character, Enter included, calls `getippt`. Enter in a control whose name begins with one of
// `enterWeiter` moves on to the next field. Up and down in a control whose name begins with "Text3" move to
// the previous and next field, but not beyond the first and the last.
class Tastenregel : public QObject {
    Q_OBJECT

  public:
    Tastenregel(QWidget* fenster, QStringList enterWeiter);

    bool eventFilter(QObject* object, QEvent* event) override;

  Q_SIGNALS:
    void getippt();

  private:
    QWidget* fenster_;
    QStringList enterWeiter_;
};

// Whether a character typed in a window marks the position as changed.
enum class Tippen { aendertPosition, aendertNichts };

// Base of every secondary window: modal, on top, the key rule above, a content area and a row of buttons
// beneath it.
class Fenster : public QDialog {
    Q_OBJECT

  public:
    // `name` is the object name, "Form4"; `titel` the caption as it stands.
    Fenster(Programm& programm, Meldungen& meldungen, QWidget* parent, const QString& name,
            const QString& titel, Tippen tippen = Tippen::aendertPosition,
            const QStringList& enterWeiter = {QStringLiteral("Text"), QStringLiteral("Comb"),
                                              QStringLiteral("Mate")});

    static constexpr int raster = 8;  // px, the grid of all layouts

  protected:
    Programm& programm_;
    Meldungen& meldungen_;

    // The area above the buttons; the window's own layout goes in here.
    QVBoxLayout* inhalt() const { return inhalt_; }
    // Adds a button to the row at the bottom right, with its name and caption. The tab order is the order of
    // building, so the buttons are built last.
    QPushButton* schaltflaeche(const QString& name, const QString& text);
    // The usual "Zurück" of small windows with its tool tip; it closes the window.
    QPushButton* zurueck(const QString& name);
    // The row at the bottom, to put something at its left.
    QHBoxLayout* fusszeile() const { return fusszeile_; }

    void showEvent(QShowEvent* event) override;

  private:
    QVBoxLayout* inhalt_;
    QHBoxLayout* fusszeile_;
};

}  // namespace rippenscheibe
