#include "view/qt/ProductListView.h"

#include "view/qt/TextScale.h"
#include "view/qt/TintedPicture.h"
#include "view/qt/Tones.h"
#include "view/qt/Words.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace corvellane::view {
namespace {

constexpr int inset = 10;
constexpr int aboveName = 4;

ListRow rowOf(const QModelIndex& index)
{
    return static_cast<const ProductModel*>(index.model())->rowAt(index.row());
}

/// A symbol grows with the text beside it.
int sizeOf(const Symbol& symbol)
{
    return qRound(symbol.size * textScale());
}

QRect symbolArea(const QRect& row, const Symbol& symbol)
{
    const int size = sizeOf(symbol);
    return {row.left() + inset, row.top() + (row.height() - size) / 2, size, size};
}

/// The name's own area; a name longer than the row ends at the row's end.
QRect nameArea(const QRect& row, const ListRow& shown)
{
    const int left = symbolArea(row, shown.symbol).right() + 1 + standardSpacing;
    const int natural
        = QFontMetrics(fontOf(shown.name.font)).horizontalAdvance(QString::fromStdString(shown.name.text));
    return {left, row.top(), std::max(0, std::min(natural + 1, row.right() - inset - left)), row.height()};
}

bool hits(const QRect& row, const ListRow& shown, const QPoint& point)
{
    const QRect symbol = symbolArea(row, shown.symbol);
    const QRect name = nameArea(row, shown);
    return QRect(symbol.left(), row.top(), symbol.width(), row.height()).contains(point) || name.contains(point);
}

void paintFocus(QPainter& painter, const QRect& row)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colorOf(Tint::blue), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(row).adjusted(3.5, 0.5, -3.5, -0.5), 4, 4);
}

} // namespace

void ProductRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const ListRow shown = rowOf(index);
    const QRect symbol = symbolArea(option.rect, shown.symbol);
    painter->save();
    painter->drawPixmap(symbol.topLeft(),
        tintedPicture(symbolFile(shown.symbol.name), colorOf(shown.symbol.tint), symbol.size(),
            painter->device()->devicePixelRatioF()));
    const QRect area = nameArea(option.rect, shown);
    const QFont font = fontOf(shown.name.font);
    painter->setFont(font);
    painter->setPen(colorOf(shown.name.tint));
    painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        QFontMetrics(font).elidedText(QString::fromStdString(shown.name.text), Qt::ElideMiddle, area.width()));
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        paintFocus(*painter, option.rect);
    }
    painter->restore();
}

QSize ProductRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const
{
    const ListRow shown = rowOf(index);
    const int height = std::max(sizeOf(shown.symbol), QFontMetrics(fontOf(shown.name.font)).height());
    return {inset, height + 2 * aboveName};
}

bool ProductRowDelegate::editorEvent(
    QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const auto toggle = [&] { return model->setData(index, {}, Qt::CheckStateRole); };
    const auto isInside = [&] {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        return mouse->button() == Qt::LeftButton && hits(option.rect, rowOf(index), mouse->position().toPoint());
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        pressedInside_ = isInside();
        return false;
    case QEvent::MouseButtonRelease:
        return std::exchange(pressedInside_, false) && isInside() && toggle();
    case QEvent::KeyPress:
        return static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space && toggle();
    default:
        return false;
    }
}

ProductListView::ProductListView(QWidget* parent)
    : QListView(parent)
    , model_(this)
    , delegate_(this)
{
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    setTabKeyNavigation(false);
    setViewportMargins(0, 0, 0, 0);
    setItemDelegate(&delegate_);
    setModel(&model_);
}

void ProductListView::present(const List& list)
{
    setAccessibleName(QString::fromStdString(list.name));
    model_.present(list);
}

} // namespace corvellane::view
