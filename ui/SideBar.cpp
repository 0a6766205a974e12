#include "ui/SideBar.h"

#include "state/AppSettings.h"
#include "ui/ContentView.h"
#include "ui/PageTexts.h"
#include "view/Build.h"

namespace corvellane {
namespace {

View pageRow(Page page, Page currentPage)
{
    const Tint dot = page == currentPage ? Tint::blue : Tint::gray;
    return row(
        standardSpacing, symbol("circle.fill", dot, 8), verbatim(sideBarLabel(page), ContentView::textColor), gap())
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

View logo()
{
    return holding(Image{"Logo", ContentView::textColor}).withFrame({180, 180, 38, 40});
}

} // namespace

View sideBar(const AppSettings& settings)
{
    return column(0, Placement::centre, gap().withPriority(0.1), logo(), gap(), gap(),
        pageList(settings.currentPage.get()), gap().withPriority(0.5))
        .withFrame({180, 195, {}, {}});
}

} // namespace corvellane
