#include "view/qt/FocusKeeper.h"

#include "view/qt/TextLabel.h"

#include <QAccessible>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace corvellane::view {
namespace {

bool takesFocus(const QWidget& widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) != 0;
}

/// The last mounted view that is modal; null when there is none.
const Mounted* modalOf(const Mounted& root)
{
    const Mounted* found = nullptr;
    forEachMounted(root, [&](const Mounted& each) {
        const auto* layers = each.as<Layers>();
        found = layers != nullptr && layers->modal ? &each : found;
    });
    return found;
}

QWidget* firstFocusable(const Mounted& root)
{
    QWidget* first = nullptr;
    forEachMounted(root, [&](const Mounted& each) {
        QWidget* const widget = each.standing.widget;
        if (first == nullptr && widget != nullptr && takesFocus(*widget) && widget->isEnabled()) {
            first = widget;
        }
    });
    return first;
}

std::vector<QWidget*> widgetsOf(const Mounted& root)
{
    std::vector<QWidget*> widgets;
    forEachMounted(root, [&](const Mounted& each) { widgets.push_back(each.standing.widget); });
    return widgets;
}

int placeOf(const QWidget* widget, const std::vector<QWidget*>& widgets)
{
    const auto found = std::ranges::find(widgets, widget);
    return widget == nullptr || found == widgets.end() ? -1 : static_cast<int>(found - widgets.begin());
}

QWidget* widgetAt(int place, const std::vector<QWidget*>& widgets)
{
    return place < 0 || place >= std::ssize(widgets) ? nullptr : widgets[static_cast<std::size_t>(place)];
}

/// What a person would call the alert: its words, or the name of the log in it.
QString wordsOf(const Mounted& root)
{
    QString words;
    forEachMounted(root, [&](const Mounted& each) {
        if (const auto* text = each.as<Text>()) {
            words += (words.isEmpty() ? "" : " ") + TextLabel::wordsOf(*text);
        } else if (const auto* log = each.as<LogArea>()) {
            words += QString::fromStdString(log->name);
        }
    });
    return words;
}

QWidget* textToRead(const Mounted& root)
{
    QWidget* found = nullptr;
    forEachMounted(root, [&](const Mounted& each) {
        const auto* text = each.as<Text>();
        found = text != nullptr && text->announcement == Announcement::focused ? each.standing.widget : found;
    });
    return found;
}

QString wordsToSpeak(const Mounted& root)
{
    QString words;
    forEachMounted(root, [&](const Mounted& each) {
        const auto* text = each.as<Text>();
        words = text != nullptr && text->announcement == Announcement::spoken ? TextLabel::wordsOf(*text) : words;
    });
    return words;
}

/// What lies behind a modal view in the same layers can be used only while there is none.
void enableBehind(const Mounted& root, const Mounted* modal)
{
    forEachMounted(root, [&](const Mounted& each) {
        if (each.as<Layers>() == nullptr || each.children.size() < 2) {
            return;
        }
        for (const auto& child : each.children) {
            if (child.get() != modal && child->standing.widget != nullptr) {
                child->standing.widget->setEnabled(each.children.back().get() != modal || modal == nullptr);
            }
        }
    });
}

} // namespace

void FocusKeeper::remember()
{
    before_ = window_.focusWidget();
}

void FocusKeeper::settle(const Mounted& root)
{
    setTabOrder(root);
    const Mounted* const modal = modalOf(root);
    const QPointer<QWidget> textBefore = std::exchange(textToRead_, textToRead(root));
    const bool readsAnother = modal == nullptr && textToRead_ != nullptr && textToRead_ != textBefore;
    if (readsAnother) {
        behindAlert_ = nullptr;
    }
    if (alert_ != (modal != nullptr ? modal->standing.widget : nullptr)) {
        settleAlert(root, modal);
    }
    if (readsAnother) {
        textToRead_->setFocus(Qt::OtherFocusReason);
    }
    speak(wordsToSpeak(root));
}

void FocusKeeper::setTabOrder(const Mounted& root) const
{
    QWidget* previous = nullptr;
    forEachMounted(root, [&](const Mounted& each) {
        QWidget* const widget = each.standing.widget;
        if (widget == nullptr || !takesFocus(*widget)) {
            return;
        }
        if (previous != nullptr) {
            QWidget::setTabOrder(previous, widget);
        }
        previous = widget;
    });
}

void FocusKeeper::settleAlert(const Mounted& root, const Mounted* modal)
{
    const bool hadAlert = !alert_.isNull();
    alert_ = modal != nullptr ? modal->standing.widget : nullptr;
    if (modal == nullptr) {
        enableBehind(root, nullptr);
        return giveBack(root);
    }
    if (!hadAlert) {
        behindAlert_ = before_;
    }
    nameForAssistance(*alert_, wordsOf(*modal));
    if (QWidget* const first = firstFocusable(*modal)) {
        first->setFocus(Qt::OtherFocusReason);
    }
    // Only now: a widget that is disabled while it has the focus hands it on to whatever comes next.
    enableBehind(root, modal);
    QAccessibleEvent shown(alert_, QAccessible::Alert);
    QAccessible::updateAccessibility(&shown);
}

void FocusKeeper::giveBack(const Mounted& root)
{
    if (behindAlert_ == nullptr) {
        return;
    }
    const bool isUsable = behindAlert_->isVisible() && behindAlert_->isEnabled();
    if (QWidget* const next = isUsable ? behindAlert_.data() : firstFocusable(root)) {
        next->setFocus(Qt::OtherFocusReason);
    }
    behindAlert_ = nullptr;
}

/// What is there when the window opens is read with it.
void FocusKeeper::speak(const QString& words)
{
    if (spoken_ && spoken_ != words && !words.isEmpty()) {
        announcer_.say(words);
    }
    spoken_ = words;
}

FocusKeeper::Places FocusKeeper::placesIn(const Mounted& root) const
{
    const std::vector<QWidget*> widgets = widgetsOf(root);
    return {placeOf(window_.focusWidget(), widgets), placeOf(behindAlert_, widgets)};
}

void FocusKeeper::restore(const Places& places, const Mounted& root)
{
    const std::vector<QWidget*> widgets = widgetsOf(root);
    behindAlert_ = widgetAt(places.behindAlert, widgets);
    if (QWidget* const focus = widgetAt(places.focus, widgets)) {
        focus->setFocus(Qt::OtherFocusReason);
    }
}

} // namespace corvellane::view
