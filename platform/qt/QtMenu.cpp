#include "platform/qt/QtMenu.h"

#include <QCoreApplication>
#include <QMenu>

namespace corvellane {

namespace {

QString shown(const char* title)
{
    return QCoreApplication::translate("Menu", title);
}

} // namespace

std::vector<std::string> QtMenu::itemTitles() const
{
    std::vector<std::string> titles;
    titles.reserve(items_.size());
    for (const Item& item : items_) {
        titles.emplace_back(item.title);
    }
    return titles;
}

void QtMenu::removeItem(std::size_t index)
{
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
}

QList<QMenu*> QtMenu::makeMenus(QWidget& window, QWidget* parent, const std::function<bool()>& hears) const
{
    QList<QMenu*> menus;
    for (const Item& item : items_) {
        auto* menu = new QMenu(shown(item.title), parent);
        for (const Command& command : item.commands) {
            QObject::connect(menu->addAction(shown(command.title)), &QAction::triggered, &window,
                [&window, hears, perform = command.perform] {
                    if (hears()) {
                        perform(window);
                    }
                });
        }
        menus.append(menu);
    }
    return menus;
}

} // namespace corvellane
