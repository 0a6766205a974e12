#include "view/qt/Accessibility.h"

#include "view/qt/Layout.h"
#include "view/qt/LogView.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace corvellane::view {
namespace {

/// The log as a text of many lines that cannot be edited or selected from.
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

    void selection(int, int* begin, int* end) const override { *begin = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override { }
    void removeSelection(int) override { }
    void setSelection(int, int, int) override { }
    int cursorPosition() const override { return 0; }
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

QAccessibleInterface* interfaceOf(const QString&, QObject* object)
{
    if (auto* const log = dynamic_cast<LogView*>(object)) {
        return new AccessibleLog(*log);
    }
    if (auto* const panel = dynamic_cast<Panel*>(object)) {
        return new QAccessibleWidget(panel, panel->isModal() ? QAccessible::Dialog : QAccessible::Grouping);
    }
    return nullptr;
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(interfaceOf);
}

} // namespace corvellane::view
