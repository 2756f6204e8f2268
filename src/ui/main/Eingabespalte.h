#pragma once

#include <QScrollArea>
#include <vector>

namespace rippenscheibe {

class Eingabezeile;

// The inputs of the main window. Summaries wrap as far as there is room for all rows, from the top; what does
// not fit then scrolls.
class Eingabespalte : public QScrollArea {
    Q_OBJECT

  public:
    Eingabespalte(QWidget* inhalt, QWidget* parent);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void verteile();

    std::vector<Eingabezeile*> zeilen_;
};

}  // namespace rippenscheibe
