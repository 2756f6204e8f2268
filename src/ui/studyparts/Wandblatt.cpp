#include "ui/studyparts/Wandblatt.h"

#include <QLabel>
#include <QVBoxLayout>

#include "ui/basics/Fenster.h"
#include "ui/basics/Programm.h"
#include "ui/drawings/Zeichnungsansicht.h"

namespace rippenscheibe {

Wandblatt::Wandblatt(QWidget* parent)
    : QWidget(parent),
      wert_(new QLabel(this)),
      urteil_(new QLabel(this)),
      grund_(new QLabel(this)),
      ansicht_(new Zeichnungsansicht(Zeichnung::ansicht)) {
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(Fenster::raster);
    QFont fett = font();
    fett.setWeight(QFont::DemiBold);
    for (const auto& [schild, name] :
         {std::pair(wert_, "Wert"), std::pair(urteil_, "Urteil"), std::pair(grund_, "Grund")}) {
        schild->setObjectName(QLatin1String(name));
        schild->setWordWrap(true);
        if (schild != grund_) schild->setFont(fett);
        spalte->addWidget(schild);
    }
    wert_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    grund_->setMinimumHeight(4 * fontMetrics().lineSpacing());
    grund_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    urteil_->hide();
    ansicht_->setMinimumSize(320, 160);
    ansicht_->setzeDezimalzeichen(dezimalzeichen());
    spalte->addWidget(ansicht_, 1);
}

void Wandblatt::zeigeWand(const Wand& w, const QString& wert) {
    ansicht_->setzeWand(w);
    wert_->setText(wert);
}

void Wandblatt::zeigeUrteil(const QString& text, Balkenurteil art) {
    QPalette farben = palette();
    farben.setColor(QPalette::WindowText, urteilsfarbe(palette(), art));
    urteil_->setPalette(farben);
    urteil_->setText(text);
    urteil_->show();
}

void Wandblatt::zeigeGrund(const QString& text, const QString& hinweis) {
    grund_->setText(text);
    grund_->setToolTip(hinweis);
}

}  // namespace rippenscheibe
