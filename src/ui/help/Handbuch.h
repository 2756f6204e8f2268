#pragma once

#include <QDialog>
#include <QObject>
#include <QTextBrowser>
#include <QTimer>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace rippenscheibe {

// The chapter of the user's handbook that belongs to a window, by the window's object name; the table of
// contents for a window that has none.
QString handbuchkapitel(const QString& fenstername);

// Shows Markdown with its pictures no wider than the view and sharp on every screen.
class Handbuchseite : public QTextBrowser {
    Q_OBJECT

  public:
    explicit Handbuchseite(QWidget* parent);
    QVariant loadResource(int type, const QUrl& name) override;
    // Lights all places of the words; returns their number.
    int suche(const QString& worte);
    // Goes to the next place of the words, behind the last one to the first.
    void springe(const QString& worte);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void liesNeu();

    QTimer neuLesen_;
};

// The viewer of the user's handbook, with its chapters at the left and a search over all of them. It does not
// hold up the window that opened it.
class Handbuch : public QDialog {
    Q_OBJECT

  public:
    explicit Handbuch(QWidget* parent);

    void zeigeKapitel(const QString& datei);
    QString kapitel() const;

  private:
    void baueSuche();
    void ordneAn();
    void verbinde();
    void suche(const QString& worte);
    void sucheWeiter();
    int nachbar(int schritt) const;
    void blaettere(int schritt);
    void zeigeKnoepfe();

    QLineEdit* suchwort_;
    QLabel* trefferzahl_;
    QListWidget* inhalt_;
    Handbuchseite* seite_;
    QPushButton* vorige_;
    QPushButton* naechste_;
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
