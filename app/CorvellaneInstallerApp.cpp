#include "app/CorvellaneInstallerApp.h"

#include "base/PathNames.h"
#include "platform/Console.h"
#include "platform/Files.h"
#include "platform/Resources.h"
#include "view/Metrics.h"
#include "view/qt/Appearance.h"

#include <QScreen>

namespace corvellane {
namespace {

constexpr int leastWidth = 648;
constexpr int leastHeight = 405;
/// What the title bar and the borders that desktops draw around a window take of the screen.
constexpr QSize frame(16, 40);

std::shared_ptr<AppSettings> filledSettings(const Platform& platform)
{
    auto settings = std::make_shared<AppSettings>(platform);
    settings->refreshProducts();
    return settings;
}

/// Drawn or of pixels.
Expected<view::ImageFile> imageFile(const Resources& resources, const Files& files, const std::string& name)
{
    constexpr std::size_t largest = 16 << 20;
    auto path = resources.file(name, "svg");
    if (!path) {
        path = resources.file(name, "png");
    }
    if (!path) {
        return Unexpected({"The file “" + name + ".svg” is missing."});
    }
    return files.read(*path, largest).map([&path](std::string&& bytes) {
        return view::ImageFile{std::string(lastPathComponent(*path)), std::move(bytes)};
    });
}

view::Images imagesOf(const Platform& platform)
{
    return {
        [&resources = platform.resources, &files = platform.files](
            const std::string& name) { return imageFile(resources, files, name); },
        [&console = platform.console](
            const std::string& why) { console.print(why + " The product’s name stands in its place."); },
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
    window_.resize(opening.boundedTo(window_.screen()->availableSize() - frame));
}

view::View CorvellaneInstallerApp::body()
{
    return contentView_.body(*settings_).withFrame({leastWidth, view::unbounded, leastHeight, view::unbounded});
}

} // namespace corvellane
