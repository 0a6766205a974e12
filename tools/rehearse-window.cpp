#include "app/AppDelegate.h"
#include "platform/posix/ProcessSetup.h"
#include "platform/posix/StreamConsole.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/Translations.h"
#include "tools/FolderTree.h"
#include "tools/Tour.h"
#include "tools/WindowRehearsal.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include <cstdio>

namespace corvellane {
namespace {

constexpr int wrongUsage = 2;

struct Options {
    QString products;
    QString into;
    QString tour;
    QString translations;
    bool darkDesktop = false;
    int textPercent = 100;
};

Options readOptions()
{
    QCommandLineParser parser;
    parser.setApplicationDescription("The wizard with its window, installing below a scratch folder.");
    parser.addHelpOption();
    parser.addPositionalArgument("PRODUCTS", "The products folder; the agreement and the logo lie beside it.");
    parser.addOptions({
        {"into", "Install below <folder>, which is made.", "folder"},
        {"tour", "Go through the wizard without a person and save pictures in <folder>.", "folder"},
        {"translations", "Take the translated texts from <folder>.", "folder"},
        {"dark-desktop", "Begin on a desktop with a dark scheme."},
        {"text-size", "Begin on a desktop whose text is at <percent> of the usual size.", "percent", "100"},
    });
    parser.process(*QCoreApplication::instance());
    const auto absolute = [](const QString& path) { return path.isEmpty() ? path : QDir(path).absolutePath(); };
    return {absolute(parser.positionalArguments().value(0)), absolute(parser.value("into")),
        absolute(parser.value("tour")), absolute(parser.value("translations")), parser.isSet("dark-desktop"),
        parser.value("text-size").toInt()};
}

void imitateDesktop(const Options& options)
{
    if (options.darkDesktop) {
        QPalette dark(QColor(40, 40, 44), QColor(30, 30, 32));
        dark.setColor(QPalette::Base, QColor(20, 20, 22));
        QApplication::setPalette(dark);
    }
    if (options.textPercent != 100) {
        QFont larger = QApplication::font();
        larger.setPixelSize(15 * options.textPercent / 100);
        QApplication::setFont(larger);
    }
}

int tour(const Options& options, Console& console)
{
    QDir().mkpath(options.tour);
    Tour tour({options.products.toStdString(), options.into.toStdString(), options.tour.toStdString()}, console);
    const std::vector<std::string> faults = tour.run();
    for (const std::string& fault : faults) {
        std::fprintf(stderr, "rehearse-window: not so: %s\n", fault.c_str());
    }
    for (const std::string& line : describeTree(options.into.toStdString(), options.into.toStdString())) {
        console.print(line);
    }
    return faults.empty() ? 0 : 1;
}

int show(const Options& options, Console& console)
{
    QtApplication application;
    WindowRehearsal rehearsal(options.products.toStdString(), options.into.toStdString(), application, console);
    AppDelegate::applicationDidFinishLaunching(application);
    application.offerMainMenu(rehearsal.window(), [&] { return rehearsal.window().hears(); });
    rehearsal.window().show();
    return QApplication::exec();
}

int rehearse()
{
    const Options options = readOptions();
    if (options.products.isEmpty() || options.into.isEmpty()) {
        std::fputs("rehearse-window: usage: rehearse-window --into FOLDER [--tour FOLDER] PRODUCTS\n", stderr);
        return wrongUsage;
    }
    if (!QDir(options.products).exists()) {
        std::fprintf(stderr, "rehearse-window: %s is no folder\n", qPrintable(options.products));
        return wrongUsage;
    }
    QDir().mkpath(options.into);
    imitateDesktop(options);
    view::ViewHost::prepareApplication();
    const Translations translations(options.translations.toStdString(), QLocale::system());
    StreamConsole console(stdout);
    return options.tour.isEmpty() ? show(options, console) : tour(options, console);
}

} // namespace
} // namespace corvellane

int main(int count, char** arguments)
{
    corvellane::setUpProcess();
    const QApplication platform(count, arguments);
    return corvellane::rehearse();
}
