#include "view/qt/ListAccessibility.h"

#include "view/qt/ListView.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWindow>

#include <algorithm>
#include <vector>

namespace corvellane::view {
namespace {

class AccessibleRow : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleRow(ListView& list, int row)
        : list_(list)
        , row_(row)
    {
    }

    bool isValid() const override { return row_ < list_.model()->rowCount(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return list_.window()->windowHandle(); }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&list_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QAccessible::Role role() const override
    {
        return list_.rows().canTick() ? QAccessible::CheckBox : QAccessible::ListItem;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name && isValid() ? list_.rows().nameAt(row_) : QString();
    }
    void setText(QAccessible::Text, const QString&) override { }

    QRect rect() const override
    {
        const QRect inList = list_.visualRect(index());
        return {list_.viewport()->mapToGlobal(inList.topLeft()), inList.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.focusable = true;
        state.focused = list_.hasFocus() && list_.currentIndex() == index();
        state.checkable = list_.rows().canTick();
        state.checked = isValid() && list_.rows().isTicked(row_);
        state.disabled = !list_.isEnabled();
        state.invisible = !list_.isVisible();
        state.offscreen = !list_.viewport()->rect().intersects(list_.visualRect(index()));
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }

    QStringList actionNames() const override
    {
        return list_.rows().canTick() ? QStringList{toggleAction(), setFocusAction()} : QStringList{setFocusAction()};
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& name) override
    {
        if (isValid() && list_.isEnabled() && name == toggleAction()) {
            list_.toggle(row_);
        } else if (isValid() && list_.isEnabled() && name == setFocusAction()) {
            list_.setFocus();
            list_.setCurrentIndex(index());
        }
    }

private:
    QModelIndex index() const { return list_.model()->index(row_, 0); }

    ListView& list_;
    int row_;
};

class AccessibleList : public QAccessibleWidget {
public:
    explicit AccessibleList(ListView& list)
        : QAccessibleWidget(&list, QAccessible::List)
        , list_(list)
    {
    }
    AccessibleList(const AccessibleList&) = delete;
    AccessibleList& operator=(const AccessibleList&) = delete;

    int childCount() const override { return list_.model()->rowCount(); }

    QAccessibleInterface* child(int row) const override
    {
        if (row < 0 || row >= childCount()) {
            return nullptr;
        }
        for (int missing = static_cast<int>(rows_.size()); missing <= row; ++missing) {
            rows_.push_back(QAccessible::registerAccessibleInterface(new AccessibleRow(list_, missing)));
        }
        return QAccessible::accessibleInterface(rows_[static_cast<std::size_t>(row)]);
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto found = std::ranges::find_if(
            rows_, [&](QAccessible::Id id) { return QAccessible::accessibleInterface(id) == child; });
        return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        return child(list_.indexAt(list_.viewport()->mapFromGlobal(QPoint(x, y))).row());
    }

    QAccessibleInterface* focusChild() const override
    {
        return list_.hasFocus() && list_.currentIndex().isValid() ? child(list_.currentIndex().row()) : nullptr;
    }

protected:
    ~AccessibleList() override { std::ranges::for_each(rows_, QAccessible::deleteAccessibleInterface); }

private:
    ListView& list_;
    /// Those that were asked for.
    mutable std::vector<QAccessible::Id> rows_;
};

} // namespace

QAccessibleInterface* makeListAccessibility(ListView& list)
{
    return new AccessibleList(list);
}

} // namespace corvellane::view
