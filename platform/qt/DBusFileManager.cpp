#include "platform/qt/DBusFileManager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>

namespace corvellane {

namespace {

constexpr int longestWait = 250; // milliseconds

/// Told apart here because a search for a bus that is not there may start a new one.
bool hasSessionBus()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")
        || QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

} // namespace

bool DBusFileManager::acceptsRequests()
{
    if (!hasSessionBus()) {
        return false;
    }
    const QDBusMessage ping = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"), QStringLiteral("org.freedesktop.DBus.Peer"),
        QStringLiteral("Ping"));
    const QDBusMessage answer = QDBusConnection::sessionBus().call(ping, QDBus::Block, longestWait);
    return answer.type() == QDBusMessage::ReplyMessage;
}

} // namespace corvellane
