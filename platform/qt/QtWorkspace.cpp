#include "platform/qt/QtWorkspace.h"

#include <QDesktopServices>
#include <QUrl>

namespace corvellane {

bool QtWorkspace::openUrl(const std::string& url)
{
    const QUrl address(QString::fromStdString(url));
    return address.isValid() && QDesktopServices::openUrl(address);
}

} // namespace corvellane
