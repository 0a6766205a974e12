#include "view/qt/Widgets.h"

#include "platform/Resources.h"
#include "view/qt/LogView.h"
#include "view/qt/Panel.h"
#include "view/qt/Picture.h"
#include "view/qt/ProductListView.h"
#include "view/qt/PushButton.h"
#include "view/qt/RichTextViewer.h"
#include "view/qt/TextLabel.h"
#include "view/qt/TickTimer.h"
#include "view/qt/TintedPicture.h"

namespace corvellane::view {
namespace {

QWidget* newWidget(const Stack&, QWidget* parent)
{
    return new Panel(parent);
}

QWidget* newWidget(const Layers& layers, QWidget* parent)
{
    auto* const panel = new Panel(parent);
    panel->setModal(layers.modal);
    return panel;
}

QWidget* newWidget(const Fill&, QWidget* parent)
{
    return new FillArea(parent);
}

QWidget* newWidget(const Text&, QWidget* parent)
{
    return new TextLabel(parent);
}

QWidget* newWidget(const Symbol&, QWidget* parent)
{
    return new Picture(parent);
}

QWidget* newWidget(const Image&, QWidget* parent)
{
    return new Picture(parent);
}

QWidget* newWidget(const Button&, QWidget* parent)
{
    return new PushButton(parent);
}

QWidget* newWidget(const List&, QWidget* parent)
{
    return new ProductListView(parent);
}

QWidget* newWidget(const RichText& rich, QWidget* parent)
{
    QWidget* const viewer = makeRichTextViewer(*rich.text, parent);
    viewer->setAccessibleName(QString::fromStdString(rich.name));
    return viewer;
}

QWidget* newWidget(const LogArea&, QWidget* parent)
{
    return new LogView(parent);
}

QWidget* newWidget(const Timer&, QWidget* parent)
{
    return new TickTimer(parent);
}

template <typename Kind>
QWidget* newWidget(const Kind&, QWidget*)
{
    return nullptr;
}

/// The widget as the kind it was made as.
template <typename Kind>
Kind& as(QWidget& widget)
{
    return dynamic_cast<Kind&>(widget);
}

} // namespace

QWidget* Widgets::make(const Element& element, QWidget* parent) const
{
    QWidget* const widget = std::visit([&](const auto& kind) { return newWidget(kind, parent); }, element);
    if (widget != nullptr) {
        change(*widget, element);
        follow(*widget, element);
    }
    return widget;
}

void Widgets::change(QWidget& widget, const Element& element) const
{
    if (const auto* text = std::get_if<Text>(&element)) {
        as<TextLabel>(widget).present(*text);
    } else if (const auto* symbol = std::get_if<Symbol>(&element)) {
        as<Picture>(widget).present(symbolFile(symbol->name), symbol->tint);
    } else if (const auto* image = std::get_if<Image>(&element)) {
        as<Picture>(widget).present(imageFile(image->name), image->tint);
    } else if (const auto* button = std::get_if<Button>(&element)) {
        as<PushButton>(widget).present(*button);
    } else if (const auto* fill = std::get_if<Fill>(&element)) {
        as<FillArea>(widget).present(*fill);
    } else if (const auto* timer = std::get_if<Timer>(&element)) {
        as<TickTimer>(widget).present(*timer);
    }
}

void Widgets::follow(QWidget& widget, const Element& element)
{
    if (const auto* button = std::get_if<Button>(&element)) {
        as<PushButton>(widget).setAction(button->action);
    } else if (const auto* timer = std::get_if<Timer>(&element)) {
        as<TickTimer>(widget).setAction(timer->tick);
    } else if (const auto* list = std::get_if<List>(&element)) {
        as<ProductListView>(widget).present(*list);
    } else if (const auto* log = std::get_if<LogArea>(&element)) {
        as<LogView>(widget).present(*log);
    }
}

QString Widgets::imageFile(const std::string& name) const
{
    const auto file = resources_.file(name, "svg");
    return file ? QString::fromStdString(*file) : QString();
}

} // namespace corvellane::view
