#include "ui/AlertCards.h"

#include "state/AppSettings.h"
#include "view/Build.h"

namespace corvellane {
namespace {

constexpr Font plainFont{13, false};
constexpr Font emphasisedFont{13, true};

View installButton(AppSettings& settings)
{
    View install = button("Install", [&settings] { settings.confirmInstallation(); });
    std::get<Button>(install.element).style = Button::Style::emphasised;
    return install;
}

View openSettingsButton(AppSettings& settings)
{
    View open = button("Open settings", [&settings] { settings.openAutomationSettings(); });
    std::get<Button>(open.element).symbol = "gear";
    return open;
}

bool probeAgain(AppSettings& settings)
{
    if (settings.accessType.get() == FinderAccess::allowed) {
        return false;
    }
    settings.checkAccess();
    return true;
}

} // namespace

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
            row(standardSpacing, button("Read License", [&settings] { settings.closeLicenseAlert(); }), gap(),
                button("Disagree", [&settings] { settings.terminateApp(); }),
                button("Agree", [&settings] { settings.agreeWithLicense(); }))
                .withPadding(onAllSides)),
        Tint::white, 500, 180);
}

View installConfirmationCard(AppSettings& settings)
{
    return card(column(5, Placement::centre, gap(5),
                    text("Click \"Install\" button to complete the installation.", emphasisedFont, Placement::centre),
                    row(standardSpacing, gap(), button("Cancel", [&settings] { settings.closeInstallConfirmation(); }),
                        space(20), installButton(settings), gap())
                        .withPadding(onAllSides)),
        Tint::white, 280, 110);
}

View automationPermissionCard(AppSettings& settings)
{
    return card(column(standardSpacing, Placement::centre,
                    text("To make changes with Installer please allow Finder access from Settings", standardFont,
                        Placement::centre),
                    row(standardSpacing, button("Close", [&settings] { settings.terminateApp(); }),
                        openSettingsButton(settings)),
                    holding(Timer{1.0, {[&settings] { return probeAgain(settings); }}})),
        Tint::white, 500, 150);
}

} // namespace corvellane
