#include "platform/qt/DBusFileManager.h"

#include <QDBusConnection>
#include <QElapsedTimer>
#include <QProcess>

#include <gtest/gtest.h>

#include <thread>

namespace corvellane {
namespace {

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
    QDBusConnection manager = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "manager");
    ASSERT_TRUE(manager.registerService("org.freedesktop.FileManager1"));
    EXPECT_TRUE(askInBackground());
    ASSERT_TRUE(manager.unregisterService("org.freedesktop.FileManager1"));
    EXPECT_FALSE(askInBackground());
}

TEST(DBusFileManager, waitsABriefMomentForOneThatDoesNotAnswerAndNotAtAllWithoutABus)
{
    QProcess silent;
    silent.start("/usr/bin/python3",
        {"-c",
            "import dbus, time; bus = dbus.SessionBus(); bus.request_name('org.freedesktop.FileManager1'); "
            "print('there', flush=True); time.sleep(9)"});
    ASSERT_TRUE(silent.waitForReadyRead()) << silent.readAllStandardError().toStdString();
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(askInBackground());
    EXPECT_GE(timer.elapsed(), 200);
    EXPECT_LE(timer.elapsed(), 700);
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("XDG_RUNTIME_DIR");
    timer.start();
    EXPECT_FALSE(askInBackground());
    EXPECT_LE(timer.elapsed(), 100);
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    silent.kill();
    silent.waitForFinished();
}

} // namespace
} // namespace corvellane
