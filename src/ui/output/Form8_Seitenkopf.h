#pragma once

#include <QImage>
#include <QWidget>
#include <array>
#include <string>

#include "files/Einstellungsdatei.h"
#include "model/Wand.h"
#include "ui/basics/Fenster.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace rippenscheibe {

// The top of a printed page as it comes from the printer, and its foot line.
class Kopfvorschau : public QWidget {
    Q_OBJECT

  public:
    Kopfvorschau(const Wand& w, QImage logo, QWidget* parent);

    void zeige(const Einstellungen& e);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int breite) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Wand& w_;
    QImage logo_;
    Einstellungen e_;
};

// "  Einstellungen für Seitenkopf und Standardpfad": head and foot of printed pages, the default folder and
// what is printed by default.
class Form8 : public Fenster {
    Q_OBJECT

  public:
    Form8(Programm& programm, Meldungen& meldungen, QWidget* parent);

    // Brings template, texts and folder back, but not the fonts.
    void reject() override;

  private:
    static constexpr int anzahlHaken = 7;

    QWidget* baueVorlagen();
    QWidget* baueTexte();
    QGroupBox* baueHaken();
    QWidget* baueLogo();
    QWidget* bauePfad();
    QPushButton* knopf(const QString& name, const QString& text, void (Form8::*tue)());

    void lade();
    void waehleVorlage(int vorlage);
    void uebernimmTexte();
    void zeigeSchriften();
    void zeigeVorschau();

    void aendereText();
    void waehleSchrift1();
    void waehleSchrift2();
    void waehleSchrift(std::size_t zeile);
    void waehlePfad();
    void leereProjekte();
    void setzeVoreinstellung();
    void uebernehmen();

    const Einstellungen beimOeffnen_;
    std::array<std::string, 2> eigeneTexte_;  // of the templates that can be edited

    QListWidget* vorlagen_;
    std::array<QLineEdit*, 2> texte_{};
    std::array<QPushButton*, 3> textknoepfe_{};
    std::array<QCheckBox*, anzahlHaken> haken_{};
    QLineEdit* pfad_;
    Kopfvorschau* vorschau_;
};

}  // namespace rippenscheibe
