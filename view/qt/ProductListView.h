#pragma once

#include "view/qt/ProductModel.h"

#include <QListView>
#include <QStyledItemDelegate>

namespace corvellane::view {

/// Draws a product's row and toggles it: by a click on its symbol or name, and by the space bar.
class ProductRowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

private:
    bool pressedInside_ = false;
};

/// The widget of a list.
class ProductListView : public QListView {
public:
    explicit ProductListView(QWidget* parent);

    void present(const List& list);

protected:
    /// The second of two quick clicks is a click like the first.
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }

private:
    ProductModel model_;
    ProductRowDelegate delegate_;
};

} // namespace corvellane::view
