#include "files/Textvorlagen.h"
#include "support/Gerechnet.h"
#include "ui/basics/Fensteroeffner.h"
#include "ui/main/Form1_Hauptfenster.h"

namespace rippenscheibe {
namespace {

// A text that Qt takes for HTML: shown as such it would load a file from the disk.
constexpr const char* markup = "<img src=\"/fremd.png\"><b>fett</b>";

// Puts the text wherever one can be typed.
void tippeUeberall(QWidget& fenster) {
    const QString text = QString::fromUtf8(markup);
    for (auto* liste : fenster.findChildren<QComboBox*>())
        if (liste->isEditable()) liste->setEditText(text);
    for (auto* feld : fenster.findChildren<QLineEdit*>())
        if (qobject_cast<Werteingabe*>(feld) == nullptr) feld->setText(text);
    for (auto* feld : fenster.findChildren<QPlainTextEdit*>()) feld->setPlainText(text);
}

// How many labels and tool tips show the text, and that each shows it as it is.
int klareStellen(const QWidget& fenster) {
    int stellen = 0;
    const auto fremd = [](const QString& text) { return text.contains(QStringLiteral("<b>fett</b>")); };
    const auto pruefe = [&](const QLabel& schild) {
        if (!fremd(schild.text())) return;
        ++stellen;
        EXPECT_EQ(schild.textFormat(), Qt::PlainText) << utf8(schild.objectName());
    };
    for (const auto* schild : fenster.findChildren<QLabel*>()) pruefe(*schild);
    for (auto* feld : fenster.findChildren<QWidget*>()) {
        if (!fremd(feld->toolTip())) continue;
        QToolTip::showText(QPoint(1, 1), feld->toolTip(), feld);
        for (const auto* oben : QApplication::topLevelWidgets())
            if (oben->inherits("QTipLabel")) pruefe(*qobject_cast<const QLabel*>(oben));
        QToolTip::hideText();
    }
    return stellen;
}

class Fremdtext : public Gerechnet {
  protected:
    Fremdtext() {
        Wand& w = programm.w;
        w.FreierAnkerName = w.Projekt = w.Position = w.PositionsBemerkung = w.Datum = markup;
        w.Ankertyp = 13;
        w.Vorbemerkungen.fill(markup);
        w.Hinweise = {Hinweis{markup}};
        w.eigeneMaterialien.zeilen.assign(1, {});
        w.eigeneMaterialien.zeilen[0].name = markup;
        for (const Seite n : beideSeiten) {
            w.Material[n] = 13;
            w.EigenesMaterial[n] = 1;
        }
        programm.projekte.eintraege = {{markup, markup}};
        programm.einstellungen.Kopfzeile1 = programm.einstellungen.StandardPfad = markup;
        programm.Positionspfad = programm.Dateiname = markup;
        for (const std::string_view vorlagen : {vorlagenVorbemerkungen, vorlagenZusatzbemerkungen})
            EXPECT_FALSE(schreibeTextvorlagen(programm.datei(vorlagen),
                                              {speicherbar({.name = markup, .text = markup})}));
        programm.varianten = {{QString::fromUtf8(markup), programm.eingabestand()}};
        programm.zuweisen();
    }
};

TEST_F(Fremdtext, NoWindowTakesATextFromAFileForMarkup) {
    ASSERT_TRUE(Qt::mightBeRichText(QString::fromUtf8(markup)));
    Form1 hauptfenster(programm, meldungen);
    hauptfenster.show();
    int stellen = klareStellen(hauptfenster);
    jedesNebenfenster(hauptfenster, Fensterart::ueber, [&](QWidget& fenster) {
        SCOPED_TRACE(utf8(fenster.objectName()));
        tippeUeberall(fenster);
        QCoreApplication::processEvents();
        stellen += klareStellen(fenster);
    });
    EXPECT_GT(stellen, 0);
    // A label that is told nothing of its format.
    QLabel schild(QString::fromUtf8(markup));
    EXPECT_EQ(schild.textFormat(), Qt::AutoText);
    schild.show();
    EXPECT_EQ(schild.textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace rippenscheibe
