#pragma once

#include <QListWidget>
#include <vector>

#include "model/Hinweis.h"

class QLabel;

namespace rippenscheibe {

// The list of findings of the last check. An empty one says in grey whether there was a check; behind a
// change it says that it is older. Neither is an item.
class Hinweisliste : public QListWidget {
    Q_OBJECT

  public:
    explicit Hinweisliste(QWidget* parent = nullptr);

    enum class Stand { ungeprueft, aktuell, veraltet };

    void zeige(const std::vector<Hinweis>& hinweise);
    void setzeStand(Stand stand);
    Stand stand() const { return stand_; }
    // The line for what is older than the position; it stands beside the list and is hidden otherwise.
    QLabel* standzeile() const { return standzeile_; }

  Q_SIGNALS:
    void geoeffnet(Eingabeort ort);  // double click or Enter on a finding

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void oeffne(int zeile);

    std::vector<Hinweis> gezeigt_;  // a row each
    Stand stand_ = Stand::ungeprueft;
    QLabel* standzeile_;
};

}  // namespace rippenscheibe
