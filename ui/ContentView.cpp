#include "ui/ContentView.h"

#include "state/AppSettings.h"
#include "ui/AlertView.h"
#include "ui/ButtonRow.h"
#include "ui/IntroPage.h"
#include "ui/LicensePage.h"
#include "ui/PageTexts.h"
#include "ui/ProductsPage.h"
#include "ui/SelectedProductsPage.h"
#include "ui/SideBar.h"
#include "ui/SummaryPage.h"
#include "view/Build.h"

namespace corvellane {

ContentView::ContentView(const Resources& resources, Console& console)
    : document_(resources, console)
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
        row(0, sideBar(settings), mainColumn(settings)).withBackdrop({backgroundColor, 0, {}}),
        AlertView{settings}.body());
}

View ContentView::mainColumn(AppSettings& settings) const
{
    return column(standardSpacing, Placement::centre, gap(20),
        verbatim(pageTitle(settings.currentPage.get()), textColor).withPadding(below), contentRow(settings), gap(),
        buttonRow(settings));
}

View ContentView::contentRow(AppSettings& settings) const
{
    View panel = holding(Layers{}, stateView(settings)).withBackdrop({Tint::white, 0, Tint::separator});
    return row(0, std::move(panel), space(20));
}

View ContentView::stateView(AppSettings& settings) const
{
    const Page page = settings.currentPage.get();
    View content;
    switch (page) {
    case Page::intro:
        content = introView();
        break;
    case Page::license:
        content = licenseView(document_.data.get());
        break;
    case Page::products:
        content = productsView(settings);
        break;
    case Page::install:
        content = selectedProductsView(settings);
        break;
    case Page::summary:
        content = summaryView(settings);
        break;
    }
    return std::move(content).withIdentity(std::string(nameOf(page)));
}

} // namespace corvellane
