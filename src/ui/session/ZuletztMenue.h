#pragma once

#include <QMenu>
#include <functional>

namespace rippenscheibe {

// The menu of the position files that were opened or saved last. They stand in the program's folder.
class ZuletztMenue : public QMenu {
    Q_OBJECT

  public:
    // `einstellungen` is the file that keeps them; `oeffne` opens a chosen one.
    ZuletztMenue(QString einstellungen, std::function<void(const QString& datei)> oeffne,
                 QWidget* parent = nullptr);

    static constexpr int hoechstens = 8;

    // Puts a file in front.
    void merke(const QString& datei) const;

  private:
    void fuelle();

    QString einstellungen_;
    std::function<void(const QString&)> oeffne_;
};

}  // namespace rippenscheibe
