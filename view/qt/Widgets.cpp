#include "view/qt/Widgets.h"

#include "view/qt/ListView.h"
#include "view/qt/LogView.h"
#include "view/qt/Panel.h"
#include "view/qt/Pictures.h"
#include "view/qt/PushButton.h"
#include "view/qt/RichTextViewer.h"
#include "view/qt/TextLabel.h"
#include "view/qt/TickTimer.h"

namespace corvellane::view {
namespace {

/// One function a kind of view: a kind that is forgotten here does not build.
struct Presenter {
    const View& view;
    QWidget* standing;
    QWidget* parent;
    const Widgets::ImageFiles& imageFiles;
    const bool& deaf;

    QWidget* operator()(const Nothing&) const { return nullptr; }
    QWidget* operator()(const Gap&) const { return nullptr; }
    QWidget* operator()(const Stack& stack) const { return panel(stack, false); }
    QWidget* operator()(const Layers& layers) const { return panel(layers, layers.modal); }
    QWidget* operator()(const Fill& fill) const { return shown(theWidget<FillArea>(), fill); }
    QWidget* operator()(const Text& text) const { return shown(theWidget<TextLabel>(), text); }
    QWidget* operator()(const Button& button) const { return shown(theWidget<PushButton>(deaf), button); }
    QWidget* operator()(const List& list) const { return shown(theWidget<ListView>(deaf), list); }
    QWidget* operator()(const LogArea& log) const { return shown(theWidget<LogView>(), log); }
    QWidget* operator()(const Timer& timer) const { return shown(theWidget<TickTimer>(deaf), timer); }

    QWidget* operator()(const Symbol& symbol) const
    {
        return shown(theWidget<Picture>(), symbolFile(symbol.name), symbol.tint);
    }

    QWidget* operator()(const Image& image) const
    {
        return shown(theWidget<Picture>(), QString::fromStdString(imageFiles(image.name)), image.tint);
    }

    /// One that is on the screen already keeps showing the text that it was made with.
    QWidget* operator()(const RichText& rich) const
    {
        QWidget* const viewer = standing != nullptr ? standing : makeRichTextViewer(*rich.text, parent);
        viewer->setAccessibleName(QString::fromStdString(rich.name));
        return viewer;
    }

private:
    /// What stands is of the kind that it was made as.
    template <typename Widget, typename... Arguments>
    Widget& theWidget(Arguments&... arguments) const
    {
        return standing != nullptr ? static_cast<Widget&>(*standing) : *new Widget(parent, arguments...);
    }

    template <typename Widget, typename... Contents>
    static QWidget* shown(Widget& widget, const Contents&... contents)
    {
        widget.present(contents...);
        return &widget;
    }

    QWidget* panel(const ViewLayout::Arrangement& arrangement, bool modal) const
    {
        return shown(theWidget<Panel>(), arrangement, view.backdrop, modal);
    }
};

} // namespace

QWidget* Widgets::present(const View& view, QWidget* standing, QWidget* parent) const
{
    return std::visit(Presenter{view, standing, parent, imageFiles_, deaf_}, view.element);
}

} // namespace corvellane::view
