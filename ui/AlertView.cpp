#include "ui/AlertView.h"

#include "state/AppSettings.h"
#include "ui/AlertCards.h"
#include "ui/LogDetails.h"
#include "view/Build.h"

namespace corvellane {
namespace {

/// The gaps may vanish, so that the tallest card fits the smallest window.
View centred(View card)
{
    return column(
        standardSpacing, Placement::centre, gap(0), row(standardSpacing, gap(0), std::move(card), gap(0)), gap(0));
}

View dimmedFrame(std::string identity, View card)
{
    return holding(Layers{Placement::leading, true}, holding(Fill{Tint::gray, 0.65}), centred(std::move(card)))
        .withIdentity(std::move(identity));
}

} // namespace

View AlertView::body() const
{
    switch (settings.visibleAlert()) {
    case Alert::agreement:
        return dimmedFrame("agreement", agreementCard(settings));
    case Alert::installConfirmation:
        return dimmedFrame("installConfirmation", installConfirmationCard(settings));
    case Alert::automationPermission:
        return dimmedFrame("automationPermission", automationPermissionCard(settings));
    case Alert::logDetails:
        return dimmedFrame("logDetails", logDetailsCard(settings));
    default:
        return nothing();
    }
}

} // namespace corvellane
