#include "ui/LogDetails.h"

#include "state/AppSettings.h"
#include "ui/AlertCards.h"
#include "view/Build.h"

namespace corvellane {

View logDetailsCard(AppSettings& settings)
{
    return card(column(5, Placement::leading, gap(5),
                    holding(LogArea{"Details", &settings.logDetailsStr}).withSize(500, 300), gap(),
                    row(standardSpacing, button("Copy to Clipboard", [&settings] { settings.copyLogDetails(); }), gap(),
                        button("Close", [&settings] { settings.toggleLogDetails(); }))
                        .withPadding(onAllSides)),
        Tint::windowBackground, 500, 400);
}

} // namespace corvellane
