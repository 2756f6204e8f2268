#pragma once

#include <QPrinter>

#include "ui/basics/Fenster.h"
#include "ui/paper/PdfAusgabe.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPrintPreviewWidget;
class QProgressBar;
class QPushButton;
class QRadioButton;

namespace rippenscheibe {

class Werteingabe;

// "   Drucken ": what of the report is printed, with page numbers and a preview. The preview, the printer and
// the PDF come from one page machine.
class Form6 : public Fenster {
    Q_OBJECT

  public:
    // What is chosen when it opens.
    enum class Wahl { bericht, rechenweg };
    Form6(Programm& programm, Meldungen& meldungen, QWidget* parent, Wahl wahl = Wahl::bericht);

    // Does nothing while a job runs but to stop it.
    void reject() override;

  private:
    QWidget* baueOptionen();
    QGroupBox* baueForm();
    QGroupBox* baueUmfang();
    QGroupBox* baueSeitenzahl();
    QWidget* baueLogo();
    QWidget* baueVorschau();
    QCheckBox* ankreuzfeld(const QString& name, const QString& text);

    void lade();
    void setzeZaehlung(bool an);
    void waehleForm();
    void folgeAenderungen();

    // What the controls say.
    Ausdruck ausdruck() const;
    void zeigeVorschau(QPrinter* drucker);
    void zeigeSeite();
    // Takes the page number settings over.
    void uebernimmZaehlung();
    void drucke();
    bool setzeUndSende();
    void zeigeAnlauf();
    void pruefeStopp() const;
    void speicherePdf();
    void speichereRtf();
    void merkeSeite(const Druckergebnis& ergebnis);

    bool gestoppt_ = false;
    bool druckt_ = false;
    int erstesBlatt_ = 1;  // of the pages that the user chose
    int letztesBlatt_ = 0;
    QImage logo_;
    std::shared_ptr<const Dokument> dokument_;  // the derivation, made when it is first asked for
    QPrinter vorschaudrucker_{QPrinter::HighResolution};

    QWidget* optionen_;
    QRadioButton* lang_;
    QRadioButton* rechenweg_;
    QGroupBox* umfang_;
    QPushButton* alsRtf_;
    QCheckBox* bemerkungen_;
    QCheckBox* systemgrafik_;
    QCheckBox* randbedingungen_;
    QCheckBox* seitenzahl_;
    Werteingabe* startseite_;
    Werteingabe* suffix_;
    QLabel* indexschild_;
    QLineEdit* index_;
    QProgressBar* fortschritt_;
    QPrintPreviewWidget* vorschau_;
    QLabel* seitenanzahl_;
    QPushButton* stopp_;
};

}  // namespace rippenscheibe
