// tour --into FOLDER --pictures FOLDER PRODUCTS: goes through the wizard without a person, installing below a scratch
// folder, and saves pictures of what it sees. Exits with 1 where something is not as it should be.

#include "platform/posix/ProcessSetup.h"
#include "tests/tour/Tour.h"
#include "tools/CommandLine.h"
#include "tools/FolderTree.h"

#include <QApplication>

#include <cstdio>

namespace {

void darkenDesktop()
{
    QPalette dark(QColor(40, 40, 44), QColor(30, 30, 32));
    dark.setColor(QPalette::Base, QColor(20, 20, 22));
    QApplication::setPalette(dark);
}

void enlargeText(int percent)
{
    QFont larger = QApplication::font();
    larger.setPixelSize(15 * percent / 100);
    QApplication::setFont(larger);
}

} // namespace

int main(int count, char** arguments)
{
    using namespace corvellane;
    setUpProcess();
    const QApplication platform(count, arguments);
    CLI::App program("The wizard, visited without a person.", "tour");
    Tour::Folders folders;
    int textPercent = 100;
    program.add_option("PRODUCTS", folders.products)->required()->transform(asPath(program));
    program.add_option("--into", folders.into, "Install below this folder")->required()->transform(asPath(program));
    program.add_option("--pictures", folders.pictures, "Save them there")->required()->transform(asPath(program));
    program.add_option("--translations", folders.translations, "Take texts from there")->transform(asPath(program));
    program.add_flag_function("--dark-desktop", [](auto) { darkenDesktop(); }, "Begin with a dark scheme");
    program.add_option("--text-size", textPercent, "Begin with text of so many percent");
    if (const auto ending = readArguments(program, count, arguments)) {
        return *ending;
    }
    if (textPercent != 100) {
        enlargeText(textPercent);
    }
    view::ViewHost::prepareApplication();
    const std::vector<std::string> faults = Tour(folders).run();
    for (const std::string& line : describeTree(folders.into, folders.into)) {
        std::puts(line.c_str());
    }
    for (const std::string& fault : faults) {
        std::fprintf(stderr, "tour: not so: %s\n", fault.c_str());
    }
    return faults.empty() ? 0 : 1;
}
