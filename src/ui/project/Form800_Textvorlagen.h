#pragma once

#include <filesystem>
#include <string>

#include "files/Textvorlagen.h"
#include "ui/basics/Fenster.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

namespace rippenscheibe {

enum class Vorlagenart { vorbemerkungen, zusatzbemerkungen };

// "  Textvorlagen für Vorbemerkungen" (Form800, three lines at most) and "  Textvorlagen für Bemerkungen"
// (Form801): named texts, each kind in a file of its own. There is no way to delete one.
class Textvorlagenfenster : public Fenster {
    Q_OBJECT

  public:
    Textvorlagenfenster(Programm& programm, Meldungen& meldungen, QWidget* parent, Vorlagenart art);

    // The text as it stands in the box, lines with CR LF.
    std::string text() const;

  private:
    void baueFelder();
    void ordneAn(const QString& textschild);
    void gibFrei(bool text = true);
    void zeigeGewaehlte();
    void neu();
    void sichern();
    void fuelleListe();

    std::filesystem::path datei_;
    const bool hoechstensDrei_;
    Textvorlagen vorlagen_;
    QListWidget* liste_;
    QLineEdit* name_;
    QPlainTextEdit* text_;
    QPushButton* neue_;
    QPushButton* sichern_;
    QPushButton* uebernehmen_;
    QLabel* zuLang_;  // beside the text while a template is chosen that it cannot take
};

}  // namespace rippenscheibe
