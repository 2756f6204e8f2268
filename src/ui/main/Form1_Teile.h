#pragma once

#include <QLabel>
#include <QListWidget>

// Two small parts of the main window.

namespace rippenscheibe {

// One line of text in the secondary colour. Too long a text is elided and stands in the tool tip.
class Kurzzeile : public QLabel {
    Q_OBJECT

  public:
    explicit Kurzzeile(QWidget* parent = nullptr);

    void setzeText(const QString& text);
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void setzeHinweis();
};

// The list of findings; an empty one says so in grey.
class Hinweisliste : public QListWidget {
    Q_OBJECT

  public:
    explicit Hinweisliste(QWidget* parent = nullptr);

    void zeige(const QStringList& hinweise);

  Q_SIGNALS:
    void geoeffnet(const QString& hinweis);  // double click or Enter on a finding

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace rippenscheibe
