#include "ui/controls/Symbol.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <memory>
#include <utility>

#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

constexpr qreal gedimmt = 0.4;  // of a control that does not apply

class Svgsymbol : public QIconEngine {
  public:
    explicit Svgsymbol(std::shared_ptr<QSvgRenderer> bild) : bild_(std::move(bild)) {}

    void paint(QPainter* painter, const QRect& flaeche, QIcon::Mode zustand, QIcon::State) override {
        painter->save();
        if (zustand == QIcon::Disabled) painter->setOpacity(painter->opacity() * gedimmt);
        bild_->render(painter, flaeche);
        painter->restore();
    }
    QPixmap pixmap(const QSize& groesse, QIcon::Mode zustand, QIcon::State stellung) override {
        QPixmap bild(groesse);
        bild.fill(Qt::transparent);
        QPainter painter(&bild);
        paint(&painter, QRect(QPoint(), groesse), zustand, stellung);
        return bild;
    }
    QIconEngine* clone() const override { return new Svgsymbol(bild_); }
    bool isNull() override { return !bild_->isValid(); }

  private:
    std::shared_ptr<QSvgRenderer> bild_;
};

}  // namespace

QIcon symbol(const QString& name) {
    verbindeRessourcen();
    return QIcon(new Svgsymbol(std::make_shared<QSvgRenderer>(QStringLiteral(":/icons/%1.svg").arg(name))));
}

}  // namespace rippenscheibe
