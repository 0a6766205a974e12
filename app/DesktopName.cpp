#include "app/DesktopName.h"

#include "app/ResourceBytes.h"

#include <QGuiApplication>

namespace corvellane {
namespace {

QString identifier(const Resources& resources, const Files& files)
{
    constexpr std::size_t longest = 1024;
    const QString name = QString::fromStdString(bytesOf(resources, files, "Identifier", "txt", longest)).trimmed();
    return name.isEmpty() ? QStringLiteral("com.corvellane.PluginInstaller") : name;
}

} // namespace

void nameForDesktop(const Resources& resources, const Files& files)
{
    const QString name = identifier(resources, files);
    QGuiApplication::setDesktopFileName(name);
    // On X11, windows of one class belong together.
    QGuiApplication::setApplicationName(name);
}

} // namespace corvellane
