#pragma once

#include <QDialog>
#include <QPointer>
#include <functional>

class QFocusFrame;
class QHBoxLayout;
class QKeyEvent;
class QLabel;
class QPushButton;
class QTableView;
class QVBoxLayout;

namespace rippenscheibe {

class Meldungen;
class Programm;

// What Enter does in a control where it is not the usual: to press a button, to move on from a value, a
// list, a check box or an option.
enum class Enter {
    ueblich,
    weiter,  // a button that no key presses, as it starts a run: Enter moves on, Space does nothing
    eigen,   // the control works with Enter itself
};
void setzeEnter(QWidget& feld, Enter enter);
// Tab leaves a table like any other control; its corner is no button, and yet has a name to read out.
void fuegeInTabfolge(QTableView& tabelle);

// What keys, focus and wheel do in a window besides their usual work, the same under every desktop theme.
//
// A typed character, Enter included, calls `getippt`. Enter presses the button that has the focus, and moves
// on from a value, a list, a check box or an option. Up and down in a control whose name begins with "Text3"
// move to the previous and next field, but not beyond the first and the last. The wheel changes a list or a
// value only when it has the focus. A frame shows where the focus is that the keyboard moved.
class Tastenregel : public QObject {
    Q_OBJECT

  public:
    explicit Tastenregel(QWidget* fenster);

    // Asked before Enter does anything; true when it is done.
    std::function<bool(QWidget& feld)> enter;

    bool eventFilter(QObject* object, QEvent* event) override;

  Q_SIGNALS:
    void getippt();

  private:
    bool taste(QWidget& feld, const QKeyEvent& taste);
    bool drueckeEnter(QWidget& feld, bool wiederholt);

    QWidget* fenster_;
    QPointer<QFocusFrame> rahmen_;
};

// Whether a character typed in a window marks the position as changed.
enum class Tippen { aendertPosition, aendertNichts };

// Base of every secondary window: modal, on top, the key rule above, a content area and a row of buttons
// beneath it. It opens no larger than the screen; what does not fit scrolls, the buttons stay. Its place,
// a size that the user gave it and its splitters come back the next time.
class Fenster : public QDialog {
    Q_OBJECT

  public:
    // `name` is the object name, "Form4"; `titel` the caption as it stands.
    Fenster(Programm& programm, Meldungen& meldungen, QWidget* parent, const QString& name,
            const QString& titel, Tippen tippen = Tippen::aendertPosition);

    static constexpr int raster = 8;  // px, the grid of all layouts

    void setVisible(bool sichtbar) override;

  protected:
    Programm& programm_;
    Meldungen& meldungen_;

    // The area above the buttons; the window's own layout goes in here.
    QVBoxLayout* inhalt() const { return inhalt_; }
    // Adds a button to the row at the bottom right, with its name and caption. The tab order is the order of
    // building, so the buttons are built last.
    QPushButton* schaltflaeche(const QString& name, const QString& text);
    // A button of the content area, and a label at the left of a field; both with a name to read out.
    QPushButton* knopf(const QString& name, const QString& text);
    QLabel* beschriftung(const QString& text, QWidget* feld);
    // The usual "Zurück" of small windows with its tool tip; it closes the window.
    QPushButton* zurueck(const QString& name);
    // A line above the buttons that stays while the content scrolls.
    void setzeUeberFuss(QWidget* zeile);
    // The row at the bottom, to put something at its left.
    QHBoxLayout* fusszeile() const { return fusszeile_; }

    // Enter in any control, before its usual work; true when it is done.
    virtual bool enter(QWidget&) { return false; }

    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QSize platz() const;
    QString merkdatei() const;
    void bringeAufDenSchirm();
    void merke() const;

    QWidget* flaeche_;     // what scrolls
    QSize bedarf_;         // its smallest size
    QSize eigeneGroesse_;  // of the window, as long as nobody changed it
    QVBoxLayout* inhalt_;
    QHBoxLayout* fusszeile_;
};

}  // namespace rippenscheibe
