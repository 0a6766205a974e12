#include "platform/qt/DBusFileManager.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QProcess>

#include <gtest/gtest.h>

#include <thread>

namespace corvellane {
namespace {

const QString service = QStringLiteral("org.freedesktop.FileManager1");

/// Asks as the installer does: from a thread without an event loop.
bool askInBackground()
{
    bool answer = false;
    std::thread([&] { answer = DBusFileManager().acceptsRequests(); }).join();
    return answer;
}

TEST(DBusFileManager, acceptsRequestsWhileOneIsOnTheBus)
{
    EXPECT_FALSE(askInBackground());
    QDBusConnection manager = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("manager"));
    ASSERT_TRUE(manager.registerService(service));
    EXPECT_TRUE(askInBackground());
    ASSERT_TRUE(manager.unregisterService(service));
    EXPECT_FALSE(askInBackground());
}

TEST(DBusFileManager, waitsASecondForOneThatDoesNotAnswer)
{
    QProcess silent;
    silent.start(QStringLiteral("/usr/bin/python3"),
        {QStringLiteral("-c"),
            QStringLiteral("import dbus, time; bus = dbus.SessionBus(); bus.request_name('%1'); time.sleep(9)")
                .arg(service)});
    ASSERT_TRUE(silent.waitForStarted());
    QDBusConnectionInterface* const bus = QDBusConnection::sessionBus().interface();
    while (!bus->isServiceRegistered(service) && silent.state() == QProcess::Running) {
        silent.waitForFinished(20);
    }
    ASSERT_TRUE(bus->isServiceRegistered(service)) << silent.readAllStandardError().toStdString();
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(askInBackground());
    EXPECT_GE(timer.elapsed(), 900);
    EXPECT_LE(timer.elapsed(), 1500);
    silent.kill();
    silent.waitForFinished();
}

TEST(DBusFileManager, refusesAtOnceWithoutABus)
{
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("XDG_RUNTIME_DIR");
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(askInBackground());
    EXPECT_LE(timer.elapsed(), 100);
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

} // namespace
} // namespace corvellane
