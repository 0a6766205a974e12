#include "platform/qt/Display.h"

#include "platform/qt/FontsAhead.h"

#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
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

/// A variable of the environment has this value while it stands. Programs that are started from here get their own.
class Variable {
public:
    Variable(const char* name, const char* value)
        : name_(name)
        , before_(qgetenv(name))
    {
        qputenv(name_, value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

    ~Variable()
    {
        if (before_.isNull()) {
            qunsetenv(name_);
        } else {
            qputenv(name_, before_);
        }
    }

private:
    const char* name_;
    QByteArray before_;
};

/// While it stands, displays are tried one after the other, and it is told only when none is left.
class Attempt {
public:
    Attempt(int count, char** arguments)
    {
        program = QFileInfo(QString::fromLocal8Bit(count > 0 ? arguments[0] : "")).fileName();
        reason.clear();
        if (!isChosen(count, arguments)) {
            displays_.emplace(choice, bothInTheirOrder());
        }
        others = qInstallMessageHandler(hear);
    }
    Attempt(const Attempt&) = delete;
    Attempt& operator=(const Attempt&) = delete;

    ~Attempt() { qInstallMessageHandler(others); }

private:
    // Where Qt cannot read the name of the program's folder, it has none, and does not find its packed parts.
    static const char* problem()
    {
        return QCoreApplication::applicationDirPath().isEmpty() ? "the folder that it lies in must have a name in UTF-8"
                                                                : "there is no display to open a window on";
    }

    static void hear(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        if (type == QtFatalMsg) {
            std::fprintf(stderr, "%s: %s (%s)\n", qPrintable(program), problem(),
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
    std::optional<Variable> displays_;
};

} // namespace

QApplication applicationOnDisplay(int& count, char** arguments)
{
    const Attempt attempt(count, arguments);
    // Nothing in the window takes what is typed, so that none has to be found and connected to.
    const Variable inputMethod("QT_IM_MODULE", "none");
    const FontsAhead fonts;
    return {count, arguments};
}

} // namespace corvellane
