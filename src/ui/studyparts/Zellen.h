#pragma once

#include <QStyledItemDelegate>

namespace rippenscheibe {

// Cells of tables that hold walls, drawn from what their model says.

// A bar of utilisation before its text and the sign of its verdict. A cell without `Eta` is drawn as text.
class Ausnutzungszelle : public QStyledItemDelegate {
    Q_OBJECT

  public:
    enum Rolle { Eta = Qt::UserRole + 1, Urteil };  // a number; a Balkenurteil
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

// A picture and beside it a name with smaller lines beneath. The first line of the text is the name.
class Wandzelle : public QStyledItemDelegate {
    Q_OBJECT

  public:
    static constexpr QSize bildgroesse{104, 60};
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

// The lines of a text one below the other; what is too long is elided and stands in its tip.
class Zeilenzelle : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

}  // namespace rippenscheibe
