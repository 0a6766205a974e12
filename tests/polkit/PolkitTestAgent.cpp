// polkit-test-agent ANSWER[,ANSWER...] PROGRAM ARGUMENT...: runs a program and answers the password windows that polkit
// asks for on its behalf, as the present user: with the password "password:TEXT", by dismissing it ("dismiss"), by
// letting it wait ("wait"), or with no agent at all ("none"). Each window has an answer of its own, the last one also
// for all that follow. Exits as the program does.

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtDBus/QtDBus>

#include <cstdio>
#include <pwd.h>
#include <unistd.h>

struct Subject {
    QString kind;
    QVariantMap details;
};
Q_DECLARE_METATYPE(Subject)

QDBusArgument& operator<<(QDBusArgument& argument, const Subject& subject)
{
    argument.beginStructure();
    argument << subject.kind << subject.details;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Subject& subject)
{
    argument.beginStructure();
    argument >> subject.kind >> subject.details;
    argument.endStructure();
    return argument;
}

namespace {

constexpr const char* agentPath = "/example/agent";

/// Gives polkit's own helper the password; it tells polkit the outcome itself.
void authenticate(const QString& cookie, const QString& password)
{
    QProcess helper;
    helper.start("/usr/lib/polkit-1/polkit-agent-helper-1", {QString::fromLocal8Bit(getpwuid(getuid())->pw_name)});
    helper.write(cookie.toUtf8() + "\n");
    while (helper.waitForReadyRead(10000)) {
        while (helper.canReadLine()) {
            if (helper.readLine().startsWith("PAM_PROMPT_ECHO_OFF")) {
                helper.write(password.toUtf8() + "\n");
            }
        }
    }
    helper.closeWriteChannel();
    helper.waitForFinished(10000);
}

class Agent : public QDBusVirtualObject {
public:
    explicit Agent(QStringList answers)
        : answers_(std::move(answers))
    {
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        if (message.member() != "BeginAuthentication") {
            return bus.send(message.createReply());
        }
        std::printf("prompt: %s\n", qPrintable(message.arguments().at(1).toString()));
        std::fflush(stdout);
        const QString answer = answers_.size() > 1 ? answers_.takeFirst() : answers_.first();
        if (answer == "wait") {
            return true;
        }
        if (answer == "dismiss") {
            return bus.send(message.createErrorReply("org.freedesktop.PolicyKit1.Error.Cancelled", "dismissed"));
        }
        authenticate(message.arguments().at(4).toString(), answer.section(':', 1));
        return bus.send(message.createReply());
    }

private:
    QStringList answers_;
};

/// When the process started, in the kernel's ticks: the 22nd field of its status.
quint64 startTimeOf(qint64 process)
{
    QFile file(QString("/proc/%1/stat").arg(process));
    file.open(QIODevice::ReadOnly);
    const QString status = QString::fromUtf8(file.readAll());
    return status.mid(status.lastIndexOf(')') + 2).split(' ').at(19).toULongLong();
}

bool registerAgent(QDBusConnection bus, qint64 process)
{
    QDBusMessage call = QDBusMessage::createMethodCall("org.freedesktop.PolicyKit1",
        "/org/freedesktop/PolicyKit1/Authority", "org.freedesktop.PolicyKit1.Authority", "RegisterAuthenticationAgent");
    const Subject subject{"unix-process",
        {{"pid", static_cast<quint32>(process)}, {"start-time", startTimeOf(process)},
            {"uid", static_cast<qint32>(getuid())}}};
    call << QVariant::fromValue(subject) << QString("en_US.UTF-8") << QString(agentPath);
    const QDBusMessage reply = bus.call(call);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        std::fprintf(stderr, "polkit-test-agent: %s\n", qPrintable(reply.errorMessage()));
    }
    return reply.type() != QDBusMessage::ErrorMessage;
}

} // namespace

int main(int count, char** arguments)
{
    const QCoreApplication application(count, arguments);
    qDBusRegisterMetaType<Subject>();
    const QStringList words = QCoreApplication::arguments();
    const QString& answers = words.at(1);
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    // The program keeps its process id, and waits until the agent is there.
    program.start("/bin/sh", QStringList{"-c", "read -r go; exec \"$@\" </dev/null", "sh"} + words.mid(2));
    program.waitForStarted();
    Agent agent(answers.split(','));
    QDBusConnection bus = QDBusConnection::systemBus();
    if (answers != "none") {
        bus.registerVirtualObject(agentPath, &agent);
        if (!registerAgent(bus, program.processId())) {
            return 3;
        }
    }
    std::printf("program: %lld\n", program.processId());
    std::fflush(stdout);
    program.write("\n");
    QObject::connect(&program, &QProcess::finished, &application,
        [](int status, QProcess::ExitStatus) { QCoreApplication::exit(status); });
    return QCoreApplication::exec();
}
