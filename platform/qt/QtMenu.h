#pragma once

#include "platform/Menu.h"

#include <QList>

#include <functional>

class QMenu;
class QWidget;

namespace corvellane {

/// The main menu as plain values, from which real menus are made when they are to be shown.
class QtMenu : public Menu {
public:
    struct Command {
        const char* title;
        std::function<void(QWidget& window)> perform;
    };
    /// Titles are keys of the context "Menu" in the table of translated texts.
    struct Item {
        const char* title;
        std::vector<Command> commands;
    };

    explicit QtMenu(std::vector<Item> items)
        : items_(std::move(items))
    {
    }

    std::vector<std::string> itemTitles() const override;
    void removeItem(std::size_t index) override;

    /// The items as they stand now, one menu each, owned by `parent`; their commands act on `window`, and do nothing
    /// while `hears` gives false.
    QList<QMenu*> makeMenus(QWidget& window, QWidget* parent, const std::function<bool()>& hears) const;

private:
    std::vector<Item> items_;
};

} // namespace corvellane
