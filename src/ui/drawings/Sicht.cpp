#include "ui/drawings/Sicht.h"

#include <algorithm>

namespace rippenscheibe {

QTransform Sicht::abbildung() const {
    return QTransform::fromTranslate(versatz_.x(), versatz_.y()).scale(lupe_, lupe_);
}

bool Sicht::zoome(QPointF um, double faktor, QSizeF flaeche) {
    const double neu = std::clamp(lupe_ * faktor, 1.0, groessteLupe);
    if (neu == lupe_) return false;
    versatz_ = um - (um - versatz_) * (neu / lupe_);
    lupe_ = neu;
    begrenze(flaeche);
    return true;
}

void Sicht::schiebe(QPointF um, QSizeF flaeche) {
    versatz_ += um;
    begrenze(flaeche);
}

void Sicht::einpassen() { *this = Sicht(); }

void Sicht::begrenze(QSizeF flaeche) {
    versatz_.setX(std::clamp(versatz_.x(), flaeche.width() * (1.0 - lupe_), 0.0));
    versatz_.setY(std::clamp(versatz_.y(), flaeche.height() * (1.0 - lupe_), 0.0));
}

}  // namespace rippenscheibe
