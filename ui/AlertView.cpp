#include "ui/AlertView.h"

#include "state/AppSettings.h"
#include "view/Build.h"

namespace corvellane {

using namespace view;

namespace {

constexpr Font plainFont{13, false};
constexpr Font emphasisedFont{13, true};
/// What has no padding of its own in a card keeps off its edges.
constexpr Padding besideTheEdge{8, 0, 8, 0};
constexpr Padding offTheEdges{8, 8, 8, 8};

/// A card that takes the space the window offers up to its maximum, in points.
View card(View content, Tint fill, int maximumWidth, int maximumHeight)
{
    return holding(Layers{}, std::move(content))
        .withFrame({{}, maximumWidth, {}, maximumHeight})
        .withBackdrop({fill, 8, {}});
}

View agreementCard(AppSettings& settings)
{
    return card(
        column(5, Placement::leading, gap(5),
            text("To continue using the software you must agree to the terms of the software license agreement.",
                emphasisedFont)
                .withPadding(onLeftAndRight),
            gap(),
            text("Click Agree to continue or click Disagree to cancel and quit the Installer.", plainFont)
                .withPadding(onLeftAndRight),
            gap(),
            row(standardSpacing, button<&AppSettings::closeLicenseAlert>("Read License", settings), gap(),
                button<&AppSettings::terminateApp>("Disagree", settings),
                button<&AppSettings::agreeWithLicense>("Agree", settings))
                .withPadding(onAllSides)),
        Tint::white, 500, 180);
}

View installConfirmationCard(AppSettings& settings)
{
    View install = button<&AppSettings::confirmInstallation>("Install", settings);
    std::get<Button>(install.element).style = Button::Style::emphasised;
    return card(column(5, Placement::centre, gap(5),
                    text("Click \"Install\" button to complete the installation.", emphasisedFont, Placement::centre)
                        .withPadding(besideTheEdge),
                    row(standardSpacing, gap(), button<&AppSettings::closeInstallConfirmation>("Cancel", settings),
                        space(20), std::move(install), gap())
                        .withPadding(onAllSides)),
        Tint::white, 280, 110);
}

bool probeAgain(AppSettings& settings)
{
    if (settings.accessType.get() == FinderAccess::allowed) {
        return false;
    }
    settings.checkAccess();
    return true;
}

/// Repeats the probe of the permission once a second for as long as it is shown and the permission is missing.
View automationPermissionCard(AppSettings& settings)
{
    View openSettings = button<&AppSettings::openAutomationSettings>("Open settings", settings);
    std::get<Button>(openSettings.element).symbol = "gear";
    return card(
        column(standardSpacing, Placement::centre,
            text("To make changes with Installer please allow Finder access from Settings", standardFont,
                Placement::centre),
            row(standardSpacing, button<&AppSettings::terminateApp>("Close", settings), std::move(openSettings)),
            holding(Timer{1.0, Action<bool()>::calling<&probeAgain>(settings)}))
            .withPadding(offTheEdges),
        Tint::white, 500, 150);
}

/// The failed installation's message, to be read and copied; as wide as the card, which long labels may widen.
View logDetailsCard(AppSettings& settings)
{
    return card(column(5, Placement::leading, gap(5),
                    holding(LogArea{"Details", settings.logDetailsStr}).withFrame({500, {}, 300, 300}), gap(),
                    row(standardSpacing, button<&AppSettings::copyLogDetails>("Copy to Clipboard", settings), gap(),
                        button<&AppSettings::toggleLogDetails>("Close", settings))
                        .withPadding(onAllSides)),
        Tint::windowBackground, 500, 400);
}

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
    case Alert::none:
        break;
    }
    return nothing();
}

} // namespace corvellane
