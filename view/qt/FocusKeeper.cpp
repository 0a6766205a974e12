#include "view/qt/FocusKeeper.h"

#include "view/qt/Panel.h"

#include <QAccessible>
#include <QLabel>

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
        if (first == nullptr && each.widget != nullptr && takesFocus(*each.widget) && each.widget->isEnabled()) {
            first = each.widget;
        }
    });
    return first;
}

/// What a person would call the alert: its words, or the name of the log in it.
QString wordsOf(const Mounted& root)
{
    QString words;
    forEachMounted(root, [&](const Mounted& each) {
        if (each.as<Text>() != nullptr) {
            words += (words.isEmpty() ? "" : " ") + static_cast<QLabel*>(each.widget)->text();
        } else if (each.as<LogArea>() != nullptr) {
            words += each.widget->accessibleName();
        }
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
            if (child.get() != modal && child->widget != nullptr) {
                child->widget->setEnabled(each.children.back().get() != modal || modal == nullptr);
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
    QWidget* const alert = modal != nullptr ? modal->widget : nullptr;
    if (alert != alert_) {
        enableBehind(root, modal);
        settleAlert(alert, modal != nullptr ? *modal : root);
    }
    readOut(root);
}

void FocusKeeper::setTabOrder(const Mounted& root) const
{
    QWidget* previous = nullptr;
    forEachMounted(root, [&](const Mounted& each) {
        if (each.widget == nullptr || !takesFocus(*each.widget)) {
            return;
        }
        if (previous != nullptr) {
            QWidget::setTabOrder(previous, each.widget);
        }
        previous = each.widget;
    });
}

void FocusKeeper::settleAlert(QWidget* alert, const Mounted& root)
{
    const bool hadAlert = !alert_.isNull();
    alert_ = alert;
    if (alert == nullptr) {
        return giveBack();
    }
    if (!hadAlert) {
        behindAlert_ = before_;
    }
    alert->setAccessibleName(wordsOf(root));
    if (QWidget* const first = firstFocusable(root)) {
        first->setFocus(Qt::OtherFocusReason);
    }
    QAccessibleEvent shown(alert, QAccessible::Alert);
    QAccessible::updateAccessibility(&shown);
}

void FocusKeeper::giveBack()
{
    if (behindAlert_ != nullptr && behindAlert_->isVisible() && behindAlert_->isEnabled()) {
        behindAlert_->setFocus(Qt::OtherFocusReason);
    }
    behindAlert_ = nullptr;
}

void FocusKeeper::readOut(const Mounted& root)
{
    QWidget* announced = nullptr;
    forEachMounted(root, [&](const Mounted& each) {
        if (each.as<Text>() != nullptr && each.as<Text>()->announced) {
            announced = each.widget;
        }
    });
    if (announced != nullptr && announced != announced_ && alert_ == nullptr) {
        announced->setFocus(Qt::OtherFocusReason);
    }
    announced_ = announced;
}

} // namespace corvellane::view
