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

/// The path of the picture `name`, drawn or of pixels; empty where there is none.
std::string pictureOf(const Resources& resources, const std::string& name)
{
    const auto drawing = resources.file(name, "svg");
    return drawing ? *drawing : resources.file(name, "png").value_or("");
}

/// `path` is empty where there is no file.
std::string wordsOnMissing(const std::string& name, const std::string& path)
{
    const std::string reason
        = path.empty() ? "“" + name + ".svg” is missing" : "“" + path.substr(path.rfind('/') + 1) + "” is no picture";
    return "The file " + reason + "; the product’s name stands in its place.";
}

view::Images imagesOf(const Platform& platform)
{
    const Resources& resources = platform.resources;
    return {
        [&resources](const std::string& name) { return pictureOf(resources, name); },
        [&resources, &console = platform.console](
            const std::string& name) { console.print(wordsOnMissing(name, pictureOf(resources, name))); },
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
