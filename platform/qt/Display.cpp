#include "platform/qt/Display.h"

#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace corvellane {
namespace {

constexpr const char* choice = "QT_QPA_PLATFORM";
constexpr int noDisplay = 2;

bool isChosen(int count, char** arguments)
{
    return !qEnvironmentVariableIsEmpty(choice) || std::any_of(arguments, arguments + count, [](const char* argument) {
        return std::string_view(argument) == "-platform" || std::string_view(argument) == "--platform";
    });
}

// On GNOME, windows get the desktop's own frame on X11 only.
const char* bothInTheirOrder()
{
    const bool wayland = qgetenv("XDG_SESSION_TYPE") == "wayland";
    const bool gnome = qgetenv("XDG_CURRENT_DESKTOP").toLower().contains("gnome");
    return wayland && !gnome ? "wayland;xcb" : "xcb;wayland";
}

/// While it stands, displays are tried one after the other, and it is told only when none is left.
class Attempt {
public:
    Attempt(int count, char** arguments)
        : chosen_(isChosen(count, arguments))
    {
        program = QFileInfo(QString::fromLocal8Bit(count > 0 ? arguments[0] : "")).fileName();
        reason.clear();
        if (!chosen_) {
            qputenv(choice, bothInTheirOrder());
        }
        others = qInstallMessageHandler(hear);
    }
    Attempt(const Attempt&) = delete;
    Attempt& operator=(const Attempt&) = delete;

    ~Attempt()
    {
        qInstallMessageHandler(others);
        if (!chosen_) {
            qunsetenv(choice); // is not for programs that are started from here
        }
    }

private:
    static void hear(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        if (type == QtFatalMsg) {
            std::fprintf(stderr, "%s: there is no display to open a window on (%s)\n", qPrintable(program),
                qPrintable(reason.isEmpty() ? message.simplified() : reason));
            std::_Exit(noDisplay);
        }
        const bool ofDisplays
            = context.category == nullptr || std::string_view(context.category).starts_with("qt.qpa.");
        if (!ofDisplays) {
            others(type, context, message);
        } else if (reason.isEmpty()) {
            reason = message.simplified();
        }
    }

    static inline QString program;
    static inline QString reason;
    static inline QtMessageHandler others = nullptr;
    bool chosen_;
};

} // namespace

QApplication applicationOnDisplay(int& count, char** arguments)
{
    const Attempt attempt(count, arguments);
    return {count, arguments};
}

} // namespace corvellane
