#include "view/qt/Accessibility.h"

#include "view/qt/Layout.h"
#include "view/qt/ListAccessibility.h"
#include "view/qt/ListView.h"
#include "view/qt/LogView.h"
#include "view/qt/ViewHost.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleObject>
#include <QAccessibleWidget>

#include <algorithm>

namespace corvellane::view {
namespace {

/// The log as a text of many lines that cannot be edited.
class AccessibleLog : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit AccessibleLog(LogView& log)
        : QAccessibleWidget(&log, QAccessible::EditableText)
        , log_(log)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        state.multiLine = true;
        return state;
    }

    QString text(int begin, int end) const override { return log_.wholeText().mid(begin, end - begin); }
    int characterCount() const override { return static_cast<int>(log_.wholeText().size()); }
    QString text(QAccessible::Text kind) const override { return QAccessibleWidget::text(kind); }

    void selection(int, int* begin, int* end) const override
    {
        *begin = static_cast<int>(log_.selection().begin());
        *end = static_cast<int>(log_.selection().end());
    }
    int selectionCount() const override { return log_.selection().begin() == log_.selection().end() ? 0 : 1; }
    void addSelection(int begin, int end) override { setSelection(0, begin, end); }
    void removeSelection(int) override { setSelection(0, 0, 0); }
    void setSelection(int, int begin, int end) override
    {
        const int count = characterCount();
        log_.select({std::clamp(begin, 0, count), std::clamp(end, 0, count)});
    }
    int cursorPosition() const override { return static_cast<int>(log_.selection().cursor); }
    void setCursorPosition(int) override { }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override { }
    QString attributes(int, int* begin, int* end) const override
    {
        *begin = 0;
        *end = characterCount();
        return {};
    }

private:
    LogView& log_;
};

class AccessibleAnnouncer : public QAccessibleObject {
public:
    explicit AccessibleAnnouncer(Announcer& announcer)
        : QAccessibleObject(&announcer)
        , announcer_(announcer)
    {
    }

    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(&announcer_.window());
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? announcer_.words() : QString();
    }

private:
    Announcer& announcer_;
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object)
{
    if (auto* const log = dynamic_cast<LogView*>(object)) {
        return new AccessibleLog(*log);
    }
    if (auto* const list = dynamic_cast<ListView*>(object)) {
        return makeListAccessibility(*list);
    }
    if (auto* const panel = dynamic_cast<Panel*>(object)) {
        return new QAccessibleWidget(panel, panel->isModal() ? QAccessible::Dialog : QAccessible::Grouping);
    }
    if (auto* const window = dynamic_cast<ViewHost*>(object)) {
        return new QAccessibleWidget(window, QAccessible::Window);
    }
    if (auto* const announcer = dynamic_cast<Announcer*>(object)) {
        return new AccessibleAnnouncer(*announcer);
    }
    return nullptr;
}

/// Null where nobody listens.
QAccessibleInterface* accessibleRow(QAbstractItemView& list, int row)
{
    QAccessibleInterface* const rows = QAccessible::isActive() ? QAccessible::queryAccessibleInterface(&list) : nullptr;
    return rows != nullptr ? rows->child(row) : nullptr;
}

void tell(QObject& object, QAccessible::Event what)
{
    QAccessibleEvent event(&object, what);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(interfaceOf);
}

void nameForAssistance(QWidget& widget, const QString& name)
{
    if (widget.accessibleName() != name) {
        widget.setAccessibleName(name);
    }
}

void describeForAssistance(QWidget& widget, const QString& description)
{
    if (widget.accessibleDescription() != description) {
        widget.setAccessibleDescription(description);
    }
}

void tellTick(QAbstractItemView& list, int row)
{
    if (QAccessibleInterface* const accessible = accessibleRow(list, row)) {
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(accessible, changed);
        QAccessible::updateAccessibility(&event);
    }
}

void tellFocus(QAbstractItemView& list, int row)
{
    if (QAccessibleInterface* const accessible = accessibleRow(list, row)) {
        QAccessibleEvent event(accessible, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

void tellSelection(QWidget& text, int begin, int end)
{
    QAccessibleTextSelectionEvent event(&text, begin, end);
    QAccessible::updateAccessibility(&event);
}

Announcer::Announcer(QWidget& window)
    : QObject(&window)
    , window_(window)
{
}

void Announcer::say(const QString& words)
{
    words_ = words;
    tell(*this, QAccessible::NameChanged);
    tell(*this, QAccessible::ObjectShow);
}

} // namespace corvellane::view
