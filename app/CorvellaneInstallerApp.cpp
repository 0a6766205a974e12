#include "app/CorvellaneInstallerApp.h"

#include "view/Build.h"

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
    , contentView_(platform.resources, platform.console)
    , window_([this] { return body(); }, platform.resources)
{
    contentView_.observe(*settings_, [this] { window_.scheduleRedraw(); });
    window_.setWindowTitle(QStringLiteral("Corvellane Plugin Installer"));
    window_.resize(leastWidth, leastHeight);
}

View CorvellaneInstallerApp::body()
{
    const auto framed = [this](AppSettings& settings) {
        return contentView_.body(settings).withFrame({leastWidth, unbounded, leastHeight, unbounded});
    };
    return holding(Environment{settings_.get(), {framed}});
}

} // namespace corvellane
