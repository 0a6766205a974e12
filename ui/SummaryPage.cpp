#include "ui/SummaryPage.h"

#include "state/AppSettings.h"
#include "view/Build.h"

namespace corvellane {
namespace {

View iconRow(bool failed)
{
    return row(standardSpacing, gap(),
        failed ? symbol("exclamationmark.circle", Tint::red, 60) : symbol("checkmark.circle", Tint::green, 60), gap());
}

View message(bool failed)
{
    const char* const key = failed ? "The installation was not completed successfully."
                                   : "You have been successfully installed selected products.";
    View shown = text(key, thirdTitleFont, Placement::centre);
    std::get<Text>(shown.element).announced = true;
    return std::move(shown)
        .withBackdrop({Tint::white, 0, {}})
        .withPadding({standardPadding, standardPadding, standardPadding, 0});
}

View detailsRow(AppSettings& settings)
{
    View link = button("Details", [&settings] { settings.toggleLogDetails(); });
    std::get<Button>(link.element).style = Button::Style::link;
    return row(standardSpacing, gap(), std::move(link)).withPadding(onAllSides);
}

} // namespace

View summaryView(AppSettings& settings)
{
    const bool failed = settings.completedWithErrors.get();
    return column(standardSpacing, Placement::centre, gap(), iconRow(failed), message(failed), gap(),
        failed ? detailsRow(settings) : nothing())
        .withBackdrop({Tint::white, 0, {}});
}

} // namespace corvellane
