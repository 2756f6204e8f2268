#pragma once

#include <QLabel>

namespace rippenscheibe {

// A text of a few lines in the secondary colour. It wraps before it elides.
class Kurzzeile : public QLabel {
    Q_OBJECT

  public:
    explicit Kurzzeile(QWidget* parent = nullptr, int hoechstzeilen = 2);

    void setzeText(const QString& text);
    bool setzeHoechstzeilen(int zeilen);  // whether they changed
    bool gekuerzt() const;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int breite) const override;
    int hoehe(int breite, int hoechstzeilen) const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QStringList zeilen(int breite, int hoechstzeilen) const;

    int hoechstzeilen_;
};

}  // namespace rippenscheibe
