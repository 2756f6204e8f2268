#pragma once

#include <QDialog>
#include <QObject>
#include <QTextBrowser>
#include <QTimer>

class QListWidget;

namespace rippenscheibe {

// The chapter of the user's handbook that belongs to a window, by the window's object name; the table of
// contents for a window that has none.
QString handbuchkapitel(const QString& fenstername);

// Shows Markdown with its pictures no wider than the view.
class Handbuchseite : public QTextBrowser {
    Q_OBJECT

  public:
    explicit Handbuchseite(QWidget* parent);
    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void liesNeu();

    QTimer neuLesen_;
};

// The viewer of the user's handbook, with its chapters at the left. It does not hold up the window that
// opened it.
class Handbuch : public QDialog {
    Q_OBJECT

  public:
    explicit Handbuch(QWidget* parent);

    void zeigeKapitel(const QString& datei);
    QString kapitel() const;

  private:
    QListWidget* inhalt_;
    Handbuchseite* seite_;
};

// F1 in any window opens the handbook at the chapter of the window in front. Installed on the application.
class Hilfetaste : public QObject {
    Q_OBJECT

  public:
    explicit Hilfetaste(QObject* parent);
    bool eventFilter(QObject* object, QEvent* event) override;
};

// Opens the handbook over `fenster`, or brings the one already open there to the front.
void oeffneHandbuch(QWidget* fenster);

}  // namespace rippenscheibe
