#include "view/qt/ListView.h"

#include "base/PathNames.h"
#include "view/qt/Accessibility.h"
#include "view/qt/Appearance.h"
#include "view/qt/Pictures.h"
#include "view/qt/ScrollBars.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace corvellane::view {
namespace {

constexpr int besideRow = 10;
constexpr int aboveName = 4;
constexpr int besideFocus = 3;
/// Between the list's edge and its first row, and after its last.
constexpr int aboveRows = 4;

/// Positions in a row are those of text from left to right, and mirrored for the other direction.
QRect mirrored(const QRect& row, const QRect& area)
{
    return QStyle::visualRect(QGuiApplication::layoutDirection(), row, area);
}

/// A symbol grows with the text beside it.
int sizeOf(const Symbol& symbol)
{
    return qRound(symbol.size * textScale());
}

QRect symbolArea(const QRect& row, const Symbol& symbol)
{
    const int size = sizeOf(symbol);
    return mirrored(row, {row.left() + besideRow, row.top() + (row.height() - size) / 2, size, size});
}

/// The width that a row leaves to its name.
int nameWidth(int rowWidth, const Symbol& symbol)
{
    return rowWidth - 2 * besideRow - sizeOf(symbol) - standardSpacing;
}

/// The name's own area, as wide as its longest line.
QRect nameArea(const QRect& row, const Symbol& symbol, const QFont& font, const NameLines& name)
{
    const int natural = QFontMetrics(font).size(0, name.text).width() + 1;
    const int width = std::clamp(natural, 0, std::max(0, nameWidth(row.width(), symbol)));
    return mirrored(row, {row.left() + besideRow + sizeOf(symbol) + standardSpacing, row.top(), width, row.height()});
}

/// A name has a direction of its own, and stands where those of the window's direction begin.
void drawName(QPainter& painter, const QRect& area, const NameLines& name)
{
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    const Qt::Alignment side = QGuiApplication::isLeftToRight() ? Qt::AlignLeft : Qt::AlignRight;
    painter.drawText(area, static_cast<int>((side | Qt::AlignAbsolute | Qt::AlignVCenter).toInt()), name.text);
}

} // namespace

// Rows

void RowModel::present(const List& list)
{
    const bool hasSameRows = list.paths == list_.paths && list.ticks.size() == list_.ticks.size();
    if (!hasSameRows) {
        beginResetModel();
        list_ = list;
        return endResetModel();
    }
    const List before = std::exchange(list_, list);
    tellTicks(before.ticks);
}

void RowModel::tellTicks(const std::vector<bool>& before)
{
    auto [was, is] = std::mismatch(before.begin(), before.end(), list_.ticks.begin());
    while (was != before.end()) {
        const QModelIndex changed = index(static_cast<int>(was - before.begin()));
        Q_EMIT dataChanged(changed, changed, {Qt::CheckStateRole});
        std::tie(was, is) = std::mismatch(was + 1, before.end(), is + 1);
    }
}

QString RowModel::nameAt(int row) const
{
    const std::string_view name = lastPathComponent(pathAt(row));
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

int RowModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(list_.paths->size());
}

QVariant RowModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return nameAt(index.row());
    }
    if (role == Qt::CheckStateRole && canTick()) {
        return isTicked(index.row()) ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

bool RowModel::setData(const QModelIndex& index, const QVariant&, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid() || !list_.toggle || deaf_) {
        return false;
    }
    const Action<void(const std::string&)> toggle = list_.toggle;
    const std::string path = pathAt(index.row());
    toggle(path);
    return true;
}

Qt::ItemFlags RowModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const Qt::ItemFlags always = Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    return canTick() ? always | Qt::ItemIsUserCheckable : always;
}

// Drawing and clicks

NameLines RowDelegate::nameOf(const QModelIndex& index, int rowWidth) const
{
    const int row = index.row();
    return linesOf(model_.nameAt(row), fontOf(model_.list().font), nameWidth(rowWidth, model_.symbolAt(row)));
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const Symbol& symbol = model_.symbolAt(index.row());
    const QRect picture = symbolArea(option.rect, symbol);
    painter->save();
    painter->drawPixmap(picture.topLeft(),
        symbolPicture(symbol.name, colorOf(symbol.tint), picture.size(), painter->device()->devicePixelRatioF()));
    const QFont font = fontOf(model_.list().font);
    const NameLines name = nameOf(index, option.rect.width());
    painter->setFont(font);
    painter->setPen(colorOf(Tint::label));
    drawName(*painter, nameArea(option.rect, symbol, font, name), name);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        paintFocusFrame(*painter, QRectF(option.rect).adjusted(besideFocus, 0, -besideFocus, 0), 4);
    }
    painter->restore();
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto* const list = static_cast<const QAbstractScrollArea*>(option.widget);
    const NameLines name = nameOf(index, list->viewport()->width());
    const int text = QFontMetrics(fontOf(model_.list().font)).size(0, name.text).height();
    return {besideRow, std::max(sizeOf(model_.list().plain), text) + 2 * aboveName};
}

bool RowDelegate::isHit(const QModelIndex& index, const QRect& row, const QPoint& point) const
{
    const Symbol& symbol = model_.symbolAt(index.row());
    const QRect symbolColumn = symbolArea(row, symbol);
    const QRect name = nameArea(row, symbol, fontOf(model_.list().font), nameOf(index, row.width()));
    return QRect(symbolColumn.left(), row.top(), symbolColumn.width(), row.height()).contains(point)
        || name.contains(point);
}

/// A name that is shown in part is shown whole beside the pointer.
bool RowDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (!index.isValid() || nameOf(index, option.rect.width()).isWhole) {
        QToolTip::hideText();
        return false;
    }
    const QString lines = allLinesOf(model_.nameAt(index.row()), QToolTip::font(), option.rect.width());
    QToolTip::showText(event->globalPos(), Qt::convertFromPlainText(lines), view, option.rect);
    return true;
}

bool RowDelegate::editorEvent(
    QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const auto toggle = [&] { return model->setData(index, {}, Qt::CheckStateRole); };
    const auto isInside = [&] {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        return mouse->button() == Qt::LeftButton && isHit(index, option.rect, mouse->position().toPoint());
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        pressedInside_ = isInside();
        return false;
    case QEvent::MouseButtonRelease:
        return std::exchange(pressedInside_, false) && isInside() && toggle();
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        return key->key() == Qt::Key_Space && !key->isAutoRepeat() && toggle();
    }
    default:
        return false;
    }
}

// The list

ListView::ListView(QWidget* parent, const bool& deaf)
    : QListView(parent)
    , model_(deaf)
    , delegate_(model_)
{
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    makePlain(*verticalScrollBar());
    setResizeMode(QListView::Adjust); // a name's lines depend on the width
    setTabKeyNavigation(false);
    setViewportMargins(0, aboveRows, 0, aboveRows);
    setItemDelegate(&delegate_);
    setModel(&model_);
}

void ListView::dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles)
{
    QListView::dataChanged(first, last, roles);
    if (roles.contains(Qt::CheckStateRole)) {
        for (int row = first.row(); row <= last.row(); ++row) {
            tellTick(*this, row);
        }
    }
}

/// The list as a whole is what gets the focus; its row, the first one in the beginning, is spoken of after it.
void ListView::focusInEvent(QFocusEvent* event)
{
    if (event->reason() != Qt::MouseFocusReason && !currentIndex().isValid()) {
        const QSignalBlocker silently(selectionModel());
        selectionModel()->setCurrentIndex(model_.index(0), QItemSelectionModel::NoUpdate);
    }
    QListView::focusInEvent(event);
    const auto tellRow = [this] {
        if (hasFocus() && currentIndex().isValid()) {
            tellFocus(*this, currentIndex().row());
        }
    };
    QMetaObject::invokeMethod(this, tellRow, Qt::QueuedConnection);
}

void ListView::keyPressEvent(QKeyEvent* event)
{
    const bool isNaming = sinceLetter_.isValid() && !sinceLetter_.hasExpired(QApplication::keyboardInputInterval());
    const bool isSpace = event->key() == Qt::Key_Space;
    if (!event->text().trimmed().isEmpty() || (isSpace && isNaming)) {
        sinceLetter_.start();
    }
    if (isSpace && isNaming) {
        keyboardSearch(event->text());
    } else {
        QListView::keyPressEvent(event);
    }
}

void ListView::present(const List& list)
{
    nameForAssistance(*this, QString::fromStdString(list.name));
    const List& shown = model_.list();
    if (std::tie(list.plain, list.ticked, list.font) != std::tie(shown.plain, shown.ticked, shown.font)) {
        scheduleDelayedItemsLayout();
    }
    model_.present(list);
}

} // namespace corvellane::view
