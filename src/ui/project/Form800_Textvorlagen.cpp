#include "ui/project/Form800_Textvorlagen.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "model/Bemerkungen.h"
#include "ui/basics/Freitext.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/project/Bemerkungsfeld.h"

namespace rippenscheibe {

namespace {

// Where the two windows differ.
struct Fassung {
    const char* name;
    const char* titel;
    const char* textschild;
    std::string_view datei;
};
const Fassung& fassung(Vorlagenart art) {
    static constexpr Fassung vor{"Form800", "  Textvorlagen für Vorbemerkungen", "Text:  (max. 3 Zeilen)",
                                 vorlagenVorbemerkungen};
    static constexpr Fassung zusatz{"Form801", "  Textvorlagen für Bemerkungen",
                                    "Text: ", vorlagenZusatzbemerkungen};
    return art == Vorlagenart::vorbemerkungen ? vor : zusatz;
}

QLabel* schild(const QString& text, QWidget* feld) {
    auto* label = new QLabel(text, feld->parentWidget());
    label->setBuddy(feld);
    return label;
}

}  // namespace

// Enter moves on from the name, in the text it makes a new line.
Textvorlagenfenster::Textvorlagenfenster(Programm& programm, Meldungen& meldungen, QWidget* parent,
                                         Vorlagenart art)
    : Fenster(programm, meldungen, parent, QString::fromUtf8(fassung(art).name),
              QString::fromUtf8(fassung(art).titel), Tippen::aendertNichts),
      datei_(programm.datei(fassung(art).datei)),
      hoechstensDrei_(art == Vorlagenart::vorbemerkungen),
      liste_(new QListWidget(this)),
      name_(new QLineEdit(this)),
      text_(new QPlainTextEdit(this)) {
    baueFelder();
    ordneAn(QString::fromUtf8(fassung(art).textschild));
    if (hoechstensDrei_) new Zeilengrenze(text_);
    for (QWidget* feld :
         {static_cast<QWidget*>(name_), static_cast<QWidget*>(text_), static_cast<QWidget*>(sichern_)})
        feld->setEnabled(false);

    uebernehmen_ = schaltflaeche(QStringLiteral("ComBem"), QStringLiteral("Übernehmen und zurück"));
    uebernehmen_->setEnabled(false);  // nothing is shown yet that could replace the remark
    connect(uebernehmen_, &QPushButton::clicked, this, &QDialog::accept);
    QPushButton* abbruch =
        schaltflaeche(QStringLiteral("Command1"), QStringLiteral("Abbruch ohne Übernehmen"));
    connect(abbruch, &QPushButton::clicked, this, &QDialog::reject);

    Gelesen<Textvorlagen> gelesen = liesTextvorlagen(datei_);
    vorlagen_ = std::move(gelesen.wert);
    fuelleListe();
    if (const auto stoerung = gelesen.stoerung())
        meldungen_.kritisch(this, QStringLiteral("Fehler"), qtext(stoerung->text));
}

void Textvorlagenfenster::baueFelder() {
    liste_->setObjectName(QStringLiteral("List1"));
    liste_->setAccessibleName(QStringLiteral("Vorlagen"));
    liste_->setMinimumWidth(220);
    name_->setObjectName(QStringLiteral("Text2"));
    name_->setAccessibleName(QStringLiteral("Name der Vorlage"));
    text_->setObjectName(QStringLiteral("Text1"));
    text_->setAccessibleName(QStringLiteral("Text"));
    text_->setTabChangesFocus(true);
    text_->setLineWrapMode(QPlainTextEdit::NoWrap);
    text_->setMinimumSize(460, 140);
    sichern_ = knopf(QStringLiteral("Command3"), QStringLiteral("Vorlage sichern"));
    neue_ = knopf(QStringLiteral("Command2"), QStringLiteral("neue Vorlage anlegen -->"));
    neue_->setAccessibleName(QStringLiteral("neue Vorlage anlegen"));
    neue_->setToolTip(QStringLiteral("neue Textvorlage anlegen"));
    // Not the current row: the list makes its first row current when it gets the focus, and that is no
    // choice.
    connect(liste_, &QListWidget::itemSelectionChanged, this, &Textvorlagenfenster::zeigeGewaehlte);
    connect(neue_, &QPushButton::clicked, this, &Textvorlagenfenster::neu);
    connect(sichern_, &QPushButton::clicked, this, &Textvorlagenfenster::sichern);
}

void Textvorlagenfenster::ordneAn(const QString& textschild) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * raster);
    grid->setVerticalSpacing(raster);
    grid->setColumnStretch(1, 1);
    grid->addWidget(schild(QStringLiteral("Vorlagen:"), liste_), 0, 0);
    grid->addWidget(liste_, 1, 0, 3, 1);
    grid->addWidget(neue_, 4, 0);
    grid->addWidget(schild(QStringLiteral("Name der Vorlage: "), name_), 0, 1);
    grid->addWidget(name_, 1, 1);
    grid->addWidget(schild(textschild, text_), 2, 1);
    grid->addWidget(text_, 3, 1);
    grid->addWidget(sichern_, 4, 1, Qt::AlignLeft);
    zuLang_ = new QLabel(QStringLiteral("⚠ Die Vorlage hat mehr als 3 Zeilen und passt nicht in die "
                                        "Vorbemerkungen."),
                         this);
    zuLang_->setObjectName(QStringLiteral("VorlageZuLang"));
    zuLang_->setWordWrap(true);
    zuLang_->hide();
    grid->addWidget(zuLang_, 5, 1);
    grid->setRowStretch(3, 1);
    inhalt()->addLayout(grid, 1);
}

std::string Textvorlagenfenster::text() const { return textAus(*text_); }

void Textvorlagenfenster::fuelleListe() {
    liste_->clear();
    for (const Textvorlage& vorlage : vorlagen_) liste_->addItem(qtext(vorlage.name));
}

// `text` false shows a template that the box cannot take: it is neither edited nor stored nor taken over.
void Textvorlagenfenster::gibFrei(bool text) {
    for (QWidget* feld : {static_cast<QWidget*>(name_), static_cast<QWidget*>(text_),
                          static_cast<QWidget*>(sichern_), static_cast<QWidget*>(uebernehmen_)})
        feld->setEnabled(text);
    zuLang_->setVisible(!text);
}

void Textvorlagenfenster::zeigeGewaehlte() {
    const QList<QListWidgetItem*> gewaehlt = liste_->selectedItems();
    if (gewaehlt.isEmpty()) return;
    const Textvorlage& vorlage = vorlagen_[static_cast<std::size_t>(liste_->row(gewaehlt.constFirst()))];
    const bool passt = !hoechstensDrei_ || passtInVorbemerkungen(vorlage.text);
    gibFrei(passt);
    name_->setText(qtext(vorlage.name));
    if (passt) zeigeText(*text_, vorlage.text);
}

void Textvorlagenfenster::neu() {
    liste_->setCurrentRow(-1);
    name_->clear();
    text_->clear();
    gibFrei();
    name_->setFocus();
}

void Textvorlagenfenster::sichern() {
    if (name_->text().trimmed().isEmpty()) {
        meldungen_.kritisch(this, QStringLiteral("Fehler"),
                            QStringLiteral("Bitte einen Namen für die Vorlage eingeben!"));
        name_->setFocus();
        return;
    }
    ersetzeAnfuehrungszeichen(meldungen_, this, {name_, text_});
    const Textvorlage vorlage = speicherbar({utf8(name_->text()), text()});
    if (const auto fehler = sichereTextvorlage(datei_, vorlage, vorlagen_)) {
        meldungen_.kritisch(this, QStringLiteral("Fehler"), qtext(fehler->text));
        return;
    }
    fuelleListe();
    for (std::size_t i = 0; i < vorlagen_.size(); ++i)
        if (vorlagen_[i].name == vorlage.name) liste_->setCurrentRow(static_cast<int>(i));
}

}  // namespace rippenscheibe
