#include "app/CorvellaneInstallerApp.h"

#include "platform/Resources.h"
#include "view/Metrics.h"
#include "view/qt/Appearance.h"

#include <QScreen>

namespace corvellane {
namespace {

constexpr int leastWidth = 648;
constexpr int leastHeight = 405;

std::shared_ptr<AppSettings> filledSettings(const Platform& platform)
{
    auto settings = std::make_shared<AppSettings>(platform);
    settings->refreshProducts();
    return settings;
}

} // namespace

CorvellaneInstallerApp::CorvellaneInstallerApp(const Platform& platform)
    : settings_(filledSettings(platform))
    , contentView_(platform.resources, platform.files, platform.console)
    , window_([this] { return body(); },
          [&resources = platform.resources](
              const std::string& name) { return resources.file(name, "svg").value_or(""); })
{
    contentView_.observe(*settings_, [this] { window_.scheduleRedraw(); });
    window_.setWindowTitle(QStringLiteral("Corvellane Plugin Installer"));
    const QSize opening = QSize(leastWidth, leastHeight) * view::textScale();
    window_.resize(opening.boundedTo(window_.screen()->availableSize()));
}

view::View CorvellaneInstallerApp::body()
{
    return contentView_.body(*settings_).withFrame({leastWidth, view::unbounded, leastHeight, view::unbounded});
}

} // namespace corvellane
