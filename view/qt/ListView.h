#pragma once

#include "view/View.h"
#include "view/qt/NameLines.h"

#include <QAbstractListModel>
#include <QElapsedTimer>
#include <QListView>
#include <QStyledItemDelegate>

namespace corvellane::view {

/// The rows of a list, as of the last `present`. Where the rows are the same, only those whose tick differs are told
/// about.
class RowModel : public QAbstractListModel {
public:
    explicit RowModel(const bool& deaf)
        : deaf_(deaf)
    {
    }

    void present(const List& list);

    const List& list() const { return list_; }
    const std::string& pathAt(int row) const { return (*list_.paths)[static_cast<std::size_t>(row)]; }
    bool canTick() const { return !list_.ticks.empty(); }
    bool isTicked(int row) const { return canTick() && list_.ticks[static_cast<std::size_t>(row)]; }
    const Symbol& symbolAt(int row) const { return isTicked(row) ? list_.ticked : list_.plain; }
    QString nameAt(int row) const;

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// A request; the row changes when the state has.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void tellTicks(const std::vector<bool>& before);

    const bool& deaf_;
    List list_;
};

/// Draws a row and toggles it: by a click on its symbol or name, and by the space bar.
class RowDelegate : public QStyledItemDelegate {
public:
    explicit RowDelegate(const RowModel& model)
        : model_(model)
    {
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

private:
    NameLines nameOf(const QModelIndex& index, int rowWidth) const;
    bool isHit(const QModelIndex& index, const QRect& row, const QPoint& point) const;

    const RowModel& model_;
    bool pressedInside_ = false;
};

/// The widget of a list. Toggles nothing while `deaf`.
class ListView : public QListView {
public:
    ListView(QWidget* parent, const bool& deaf);

    void present(const List& list);

    const RowModel& rows() const { return model_; }
    void toggle(int row) { model_.setData(model_.index(row), {}, Qt::CheckStateRole); }

protected:
    void dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) override;
    void focusInEvent(QFocusEvent* event) override;
    /// A space within a name that is being typed belongs to the name, and ticks nothing.
    void keyPressEvent(QKeyEvent* event) override;
    /// The second of two quick clicks is a click like the first.
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }

private:
    RowModel model_;
    RowDelegate delegate_;
    QElapsedTimer sinceLetter_;
};

} // namespace corvellane::view
