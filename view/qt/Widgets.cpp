#include "view/qt/Widgets.h"

#include "view/qt/Accessibility.h"
#include "view/qt/ListView.h"
#include "view/qt/LogView.h"
#include "view/qt/Pictures.h"
#include "view/qt/PushButton.h"
#include "view/qt/RichTextViewer.h"
#include "view/qt/TextLabel.h"
#include "view/qt/TickTimer.h"

#include <concepts>

namespace corvellane::view {
namespace {

/// One function a kind of view: a kind that is forgotten here does not build.
struct Presenter {
    const View& view;
    const Standing& standing;
    QWidget* parent;
    const Images& images;
    const bool& deaf;

    Standing operator()(const Nothing&) const { return {.takesRoom = false}; }
    Standing operator()(const Gap&) const { return {}; }
    Standing operator()(const Stack& stack) const { return panel(stack, false); }
    Standing operator()(const Layers& layers) const { return panel(layers, layers.modal); }
    Standing operator()(const Fill& fill) const { return shown(theWidget<FillArea>(), fill); }
    Standing operator()(const Symbol& symbol) const { return shown(theWidget<SymbolPicture>(), symbol); }
    Standing operator()(const Image& image) const { return shown(theWidget<ImagePicture>(images), image); }
    Standing operator()(const Text& text) const { return shown(theWidget<TextLabel>(), text); }
    Standing operator()(const Button& button) const { return shown(theWidget<PushButton>(deaf), button); }
    Standing operator()(const List& list) const { return shown(theWidget<ListView>(deaf), list); }
    Standing operator()(const LogArea& log) const { return shown(theWidget<LogView>(), log); }

    Standing operator()(const Timer& timer) const
    {
        Standing ticking = shown(theWidget<TickTimer>(deaf), timer);
        ticking.takesRoom = false;
        return ticking;
    }

    /// One that is on the screen already keeps showing the text that it was made with.
    Standing operator()(const RichText& rich) const
    {
        QWidget* const viewer = standing.widget != nullptr ? standing.widget : makeRichTextViewer(*rich.text, parent);
        nameForAssistance(*viewer, QString::fromStdString(rich.name));
        return {viewer};
    }

private:
    /// What stands is of the kind that it was made as.
    template <typename Widget, typename... Arguments>
    Widget& theWidget(Arguments&... arguments) const
    {
        return standing.widget != nullptr ? static_cast<Widget&>(*standing.widget) : *new Widget(parent, arguments...);
    }

    template <typename Widget, typename... Contents>
    static Standing shown(Widget& widget, const Contents&... contents)
    {
        widget.present(contents...);
        if constexpr (std::derived_from<Widget, Measurable>) {
            return {&widget, &widget};
        } else {
            return {&widget};
        }
    }

    Standing panel(const Panel::Arrangement& arrangement, bool modal) const
    {
        auto& panel = theWidget<Panel>();
        panel.present(arrangement, view.backdrop, modal);
        return {&panel, &panel, &panel};
    }
};

} // namespace

Standing Widgets::present(const View& view, const Standing& standing, QWidget* parent) const
{
    return std::visit(Presenter{view, standing, parent, images_, deaf_}, view.element);
}

} // namespace corvellane::view
