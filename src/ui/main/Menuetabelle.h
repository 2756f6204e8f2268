#pragma once

#include <QHash>
#include <QKeySequence>
#include <QString>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

// Menus and tool bar of the main window as tables.

namespace rippenscheibe {

// An entry of a menu: a command with a name, a whole menu, or, without either, a separator.
struct Menuepunkt {
    QString name{};
    QString text{};
    std::function<void()> ausfuehren{};
    QKeySequence taste{};
    QMenu* untermenue = nullptr;
};

struct Menue {
    QString name;
    QString text;
    std::vector<Menuepunkt> punkte;
};

// Builds the menu bar; commands and menus carry their names.
void baueMenueleiste(QMainWindow& fenster, const std::vector<Menue>& menues);

// A button of the tool bar: it triggers the command of this name. Without a text it is a separator.
struct Leistenknopf {
    QString text{};
    QString symbol{};
    QString befehl{};
};

// Builds the tool bar: "Toolbar1(i)", counted from 1 without the separators. Returns the buttons with the
// names of their symbols.
std::vector<std::pair<QAction*, QString>> baueWerkzeugleiste(QMainWindow& fenster,
                                                             const std::vector<Leistenknopf>& knoepfe);

}  // namespace rippenscheibe
