#include "ui/ContentView.h"

#include "state/AppSettings.h"
#include "ui/AlertView.h"
#include "ui/Pages.h"
#include "view/Build.h"

namespace corvellane {

using namespace view;

namespace {

View pageRow(Page page, Page currentPage)
{
    const Tint dot = page == currentPage ? Tint::blue : Tint::gray;
    View label = verbatim(std::string(sideBarLabel(page)), ContentView::textColor);
    std::get<Text>(label.element).remark = page == currentPage ? "Current step" : "";
    return holding(Stack{Axis::horizontal, standardSpacing, Placement::firstLine}, symbol("circle.fill", dot, 8),
        std::move(label), gap())
        .withFrame({{}, {}, 20, 20});
}

View pageList(Page currentPage)
{
    View list = column(0, Placement::centre).withPadding(onLeftAndRight);
    for (const Page page : allPages) {
        list.children.push_back(pageRow(page, currentPage));
    }
    return list;
}

/// The logo and the list of the pages, the current one marked.
View sideBar(Page currentPage)
{
    View logo
        = holding(Image{"Logo", ContentView::textColor, "Corvellane Plugin Installer"}).withFrame({180, 180, 38, 40});
    return column(0, Placement::centre, gap().withPriority(0.1), std::move(logo), gap(), gap(), pageList(currentPage),
        gap().withPriority(0.5))
        .withFrame({180, 195, {}, {}});
}

View extraButton(AppSettings& settings)
{
    if (!isSelectAllVisible(settings.currentPage.get())) {
        return nothing();
    }
    return button<&AppSettings::selectAll>("Select All", settings, isSelectAllEnabled(settings.products.get()));
}

View forwardButton(AppSettings& settings)
{
    const Page page = settings.currentPage.get();
    return button<&AppSettings::nextAction>(
        page == Page::summary ? "Close" : "Next", settings, isForwardEnabled(page, settings.products.get()))
        .withPadding(aboveAndBelow);
}

/// The buttons that move through the wizard, and "Select All" on the page of the products.
View buttonRow(AppSettings& settings)
{
    return row(standardSpacing, extraButton(settings), gap(),
        button<&AppSettings::goBack>("Go Back", settings, isGoBackEnabled(settings.currentPage.get())),
        forwardButton(settings), space(20));
}

} // namespace

ContentView::ContentView(const Resources& resources, const Files& files, Console& console)
    : document_(resources, files, console)
{
    document_.load("CorvellaneEULA");
}

void ContentView::observe(AppSettings& settings, const std::function<void()>& changed)
{
    settingsChange_ = settings.objectWillChange.subscribe(changed);
    documentChange_ = document_.objectWillChange.subscribe(changed);
}

View ContentView::body(AppSettings& settings) const
{
    return holding(Layers{Placement::leading, false},
        row(0, sideBar(settings.currentPage.get()), mainColumn(settings)).withBackdrop({backgroundColor, 0, {}}),
        AlertView{settings}.body());
}

View ContentView::mainColumn(AppSettings& settings) const
{
    View title
        = verbatim(std::string(pageTitle(settings.currentPage.get())), textColor, Placement::centre).withPadding(below);
    std::get<Text>(title.element).announcement = Announcement::spoken;
    return column(standardSpacing, Placement::centre, gap(20), std::move(title), contentRow(settings), gap(),
        buttonRow(settings));
}

View ContentView::contentRow(AppSettings& settings) const
{
    View panel = holding(Layers{}, stateView(settings).withIdentity(std::string(nameOf(settings.currentPage.get()))))
                     .withBackdrop({Tint::white, 0, Tint::separator});
    return row(0, std::move(panel), space(20));
}

View ContentView::stateView(AppSettings& settings) const
{
    switch (settings.currentPage.get()) {
    case Page::intro:
        return introView();
    case Page::license:
        return TextWithAttributedString{document_.data.get()}.body();
    case Page::products:
        return productsView(settings);
    case Page::install:
        return selectedProductsView(settings);
    case Page::summary:
        return summaryView(settings);
    }
    return nothing();
}

} // namespace corvellane
