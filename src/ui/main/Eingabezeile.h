#pragma once

#include <QPushButton>

namespace rippenscheibe {

class Kurzzeile;

// An input entry of the main window, a flat row across the column: icon, caption, below it a summary of what
// is set, at the right the key that opens it and a chevron.
class Eingabezeile : public QPushButton {
    Q_OBJECT

  public:
    Eingabezeile(const QString& name, const QString& text, QWidget* parent);

    void setzeZusammenfassung(const QString& text);
    void setzeTaste(const QKeySequence& taste);  // shown only; the menu entry owns it
    // The summary wraps into as many lines, then it is cut.
    void setzeSummenzeilen(int zeilen);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int breite) const override;
    int hoehe(int breite, int summenzeilen) const;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QRect textflaeche() const;
    void ordne();
    int beschriftungshoehe() const;
    int summenbreite(int breite) const;

    Kurzzeile* zusammenfassung_;
    QString taste_;
};

}  // namespace rippenscheibe
