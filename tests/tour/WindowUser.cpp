#include "tests/tour/WindowUser.h"

#include "view/qt/Appearance.h"

#include <QAbstractButton>
#include <QLabel>
#include <QListView>
#include <QStyle>
#include <QTest>
#include <QWindow>

#include <algorithm>

namespace corvellane {
namespace {

constexpr int patience = 5000;
constexpr int blink = 20;

template <typename Kind>
QList<Kind*> visible(const QWidget& window)
{
    QList<Kind*> found = window.findChildren<Kind*>();
    found.removeIf([](const Kind* widget) { return !widget->isVisible(); });
    return found;
}

} // namespace

bool WindowUser::reads(const std::string& text) const
{
    const QList<QLabel*> labels = visible<QLabel>(window_);
    return std::any_of(labels.begin(), labels.end(),
        [&](const QLabel* label) { return label->accessibleName() == view::localized(text); });
}

/// Where several have the label, the one in front.
QWidget* WindowUser::button(const std::string& label) const
{
    QWidget* found = nullptr;
    for (QAbstractButton* const each : visible<QAbstractButton>(window_)) {
        if (each->text() == view::localized(label) && (found == nullptr || each->isEnabled())) {
            found = each;
        }
    }
    return found;
}

bool WindowUser::canPress(const std::string& label) const
{
    const QWidget* const found = button(label);
    return found != nullptr && found->isEnabled();
}

bool WindowUser::click(const std::string& label) const
{
    QWidget* const found = button(label);
    if (found == nullptr) {
        return false;
    }
    const QPoint middle = found->mapTo(&window_, found->rect().center());
    if (window_.childAt(middle) != found) {
        return false;
    }
    clickAt(middle);
    return true;
}

void WindowUser::clickThrough(const std::string& label) const
{
    if (QWidget* const found = button(label)) {
        clickAt(found->mapTo(&window_, found->rect().center()));
    }
}

QListView* WindowUser::list() const
{
    const QList<QListView*> lists = visible<QListView>(window_);
    return lists.isEmpty() ? nullptr : lists.first();
}

void WindowUser::clickRow(int row, int x) const
{
    if (QListView* const view = list()) {
        view->scrollTo(view->model()->index(row, 0));
        const QRect area = view->visualRect(view->model()->index(row, 0));
        const QPoint point(area.left() + x, area.center().y());
        clickAt(view->viewport()->mapTo(&window_, QStyle::visualPos(view->layoutDirection(), area, point)));
    }
}

void WindowUser::clickAt(const QPoint& point) const
{
    QTest::mouseClick(window_.windowHandle(), Qt::LeftButton, {}, point);
    QTest::qWait(blink);
}

void WindowUser::press(Qt::Key key) const
{
    QTest::keyClick(window_.windowHandle(), key);
    QTest::qWait(blink);
}

bool WindowUser::wait(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, patience);
}

} // namespace corvellane
