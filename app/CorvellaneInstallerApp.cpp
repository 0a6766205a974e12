#include "app/CorvellaneInstallerApp.h"

#include "platform/Console.h"
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

view::Images imagesOf(const Platform& platform)
{
    return {
        [&resources = platform.resources](const std::string& name) {
            const auto drawing = resources.file(name, "svg");
            return drawing ? *drawing : resources.file(name, "png").value_or("");
        },
        [&console = platform.console](const std::string& name) {
            console.print(
                "The file “" + name + ".svg” is missing or is no picture; the product’s name stands in its place.");
        },
    };
}

} // namespace

CorvellaneInstallerApp::CorvellaneInstallerApp(const Platform& platform)
    : settings_(filledSettings(platform))
    , contentView_(platform.resources, platform.files, platform.console)
    , window_([this] { return body(); }, imagesOf(platform))
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
