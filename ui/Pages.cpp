#include "ui/Pages.h"

#include "state/AppSettings.h"
#include "view/Build.h"

namespace corvellane {

using namespace view;

namespace {

constexpr Font listFont{14, false};

View noProducts()
{
    return column(standardSpacing, Placement::centre, gap(),
        row(standardSpacing, gap(), text("No products found"), gap()), gap());
}

View iconRow(bool failed)
{
    return row(standardSpacing, gap(),
        failed ? symbol("exclamationmark.circle", Tint::red, 60) : symbol("checkmark.circle", Tint::green, 60), gap());
}

View message(bool failed)
{
    const char* const key = failed ? "The installation was not completed successfully."
                                   : "You have been successfully installed selected products.";
    return holding(Text{key, true, thirdTitleFont, Tint::label, Placement::centre, Announcement::focused, {}})
        .withBackdrop({Tint::white, 0, {}})
        .withPadding({standardPadding, standardPadding, standardPadding, 0});
}

View detailsRow(AppSettings& settings)
{
    View link = button<&AppSettings::toggleLogDetails>("Details", settings);
    std::get<Button>(link.element).style = Button::Style::link;
    return row(standardSpacing, gap(), std::move(link)).withPadding(onAllSides);
}

} // namespace

View TextWithAttributedString::body() const
{
    return holding(RichText{std::string(pageTitle(Page::license)), attributedString});
}

View introView()
{
    return column(0, Placement::centre,
        row(standardSpacing, gap(3),
            text("You will be guided through the steps necessary to use this software.", standardFont,
                Placement::centre),
            gap(3)),
        gap())
        .withPadding(onTop);
}

View productsView(AppSettings& settings)
{
    const ProductSelection& products = settings.products.get();
    if (products.empty()) {
        return noProducts();
    }
    return holding(List{std::string(pageTitle(Page::products)), products.locations(), products.ticks(),
        Symbol{"square", Tint::secondaryLabel, 14}, Symbol{"checkmark.square.fill", Tint::blue, 14}, listFont,
        Action<void(const std::string&)>::calling<&AppSettings::toggleProduct>(settings)});
}

View selectedProductsView(const AppSettings& settings)
{
    const Symbol dot{"circle.fill", Tint::gray, 13};
    return holding(
        List{std::string(pageTitle(Page::install)), settings.products.get().ticked(), {}, dot, dot, listFont, {}});
}

View summaryView(AppSettings& settings)
{
    const bool failed = settings.completedWithErrors.get();
    return column(standardSpacing, Placement::centre, gap(), iconRow(failed), message(failed), gap(),
        failed ? detailsRow(settings) : nothing())
        .withBackdrop({Tint::white, 0, {}});
}

} // namespace corvellane
