#pragma once

#include <QWidget>

namespace rippenscheibe {

class Programm;

// form0, the splash window: the first window of the program. It closes after a second or on any key and
// tells so once; the main window follows it.
class Form0 : public QWidget {
    Q_OBJECT

  public:
    explicit Form0(const Programm& programm, QWidget* parent = nullptr);

    static constexpr int anzeigedauer = 1000;  // ms

  Q_SIGNALS:
    void entladen();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    const Programm& programm_;
    bool entladen_ = false;
};

}  // namespace rippenscheibe
