#include "tests/tour/Tour.h"

#include "tools/Rehearsal.h"

#include <QApplication>
#include <QClipboard>
#include <QListView>

#include <filesystem>
#include <fstream>

namespace corvellane {
namespace {

const std::string success = "You have been successfully installed selected products.";
const std::string failure = "The installation was not completed successfully.";
const std::string agreementQuestion
    = "To continue using the software you must agree to the terms of the software license agreement.";
const std::string permissionQuestion = "To make changes with Installer please allow Finder access from Settings";
const std::string confirmation = "Click \"Install\" button to complete the installation.";

/// A point on a row's symbol, and one to the right of every name.
constexpr int onSymbol = 17;
constexpr int besideName = 420;

bool isTicked(const WindowUser& user, int row)
{
    const QListView* const list = user.list();
    return list != nullptr && list->model()->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
}

int rowCount(const WindowUser& user)
{
    return user.list() == nullptr ? 0 : user.list()->model()->rowCount();
}

} // namespace

Tour::Visit::Visit(Tour& tour, const std::string& name)
    : wizard(systemFor(tour.folders_, name), tour.folders_.translations)
    , user(wizard.window())
{
    wizard.window().show();
    wizard.window().activateWindow();
    tour.expect(WindowUser::wait([&] { return wizard.window().isActiveWindow(); }), "the window has the focus");
}

DesktopSystem Tour::Visit::systemFor(const Folders& folders, const std::string& name)
{
    const std::shared_ptr<Visit> self(std::shared_ptr<void>(), this);
    DesktopSystem system;
    makeRehearsal(system, folders.products, folders.into + "/" + name);
    system.application = self;
    system.workspace = self;
    system.fileManager = self;
    return system;
}

std::vector<std::string> Tour::run()
{
    std::filesystem::create_directories(folders_.pictures);
    visitToSuccess();
    visitToFailure();
    return faults_;
}

void Tour::visitToSuccess()
{
    Visit visit(*this, "success");
    const HostPaths hosts = visit.wizard.settings().hostPaths();
    std::filesystem::create_directories(hosts.video);
    std::filesystem::create_directories(hosts.photo);
    expect(visit.user.reads("Welcome to the Corvellane Plugin Installer"), "the introduction is shown first");
    expect(!visit.user.canPress("Go Back"), "there is nothing before the introduction");
    picture(visit, "introduction");
    seeAgreement(visit);
    seeProducts(visit);
    click(visit, "Next");
    expect(visit.user.reads(confirmation), "the installation is to be confirmed");
    picture(visit, "confirmation-alert");
    click(visit, "Cancel");
    seePermission(visit);
    expect(WindowUser::wait([&] { return visit.user.reads(success); }), "the granted permission installs");
    expect(std::filesystem::is_directory(hosts.application), "the maker's folder is installed");
    picture(visit, "success");
    click(visit, "Close");
    expect(visit.ended, "closing ends the program");
}

void Tour::seeAgreement(Visit& visit)
{
    visit.user.press(Qt::Key_Space);
    expect(visit.user.reads("Software License Agreement"), "the space bar presses the button with the focus");
    picture(visit, "agreement");
    click(visit, "Next");
    expect(visit.user.reads(agreementQuestion), "the agreement is asked for");
    picture(visit, "agreement-alert");
    visit.user.clickThrough("Go Back");
    for (int times = 0; times < 4; ++times) {
        visit.user.press(Qt::Key_Tab);
        expect(
            visit.user.reads(agreementQuestion) && !visit.user.canPress("Next"), "nothing behind an alert is in use");
    }
    click(visit, "Read License");
    expect(!visit.user.reads(agreementQuestion), "the agreement can be read");
    click(visit, "Next");
    click(visit, "Agree");
    expect(visit.user.reads("Select Products to install"), "agreeing leads to the products");
}

void Tour::seeProducts(Visit& visit)
{
    const int rows = rowCount(visit.user);
    expect(rows > 0 && isTicked(visit.user, 0), "the products are listed and ticked");
    picture(visit, "products");
    for (int row = 0; row < rows; ++row) {
        visit.user.clickRow(row, onSymbol);
        expect(!isTicked(visit.user, row), "a click on a symbol unticks its row");
    }
    visit.user.clickRow(0, besideName);
    expect(!isTicked(visit.user, 0), "a click beside the name does nothing");
    expect(!visit.user.canPress("Next"), "nothing to install, no way on");
    picture(visit, "products-none");
    visit.user.press(Qt::Key_Space);
    expect(visit.user.canPress("Next"), "the space bar ticks a product");
    click(visit, "Select All");
    expect(isTicked(visit.user, rows - 1), "all are ticked at once");
    click(visit, "Next");
    expect(rowCount(visit.user) == rows, "all will be installed");
    picture(visit, "selected-products");
}

void Tour::seePermission(Visit& visit)
{
    visit.wizard.settings().checkAccess();
    expect(WindowUser::wait([&] { return visit.user.reads(permissionQuestion); }), "the permission is asked for");
    picture(visit, "permission-alert");
    click(visit, "Open settings");
    expect(visit.openedUrl.ends_with("Privacy_Automation"), "the settings are opened");
    visit.allowed = true;
}

void Tour::visitToFailure()
{
    const std::string host = folders_.into + "/failure";
    std::filesystem::create_directories(host);
    std::ofstream(host + "/Applications") << "a file where a folder should be\n";
    Visit visit(*this, "failure");
    for (const char* const label : {"Next", "Next", "Agree", "Next", "Next", "Install"}) {
        click(visit, label);
    }
    expect(WindowUser::wait([&] { return visit.user.reads(failure); }), "the failure is told");
    picture(visit, "failure");
    seeLog(visit);
    click(visit, "Close");
    expect(visit.ended, "closing ends the program");
}

void Tour::seeLog(Visit& visit)
{
    visit.user.press(Qt::Key_Tab);
    visit.user.press(Qt::Key_Space);
    expect(visit.user.canPress("Copy to Clipboard"), "the details open by the keyboard");
    picture(visit, "log-details");
    click(visit, "Copy to Clipboard");
    expect(QApplication::clipboard()->text().toStdString() == *visit.wizard.settings().logDetailsStr,
        "the whole log is copied");
    click(visit, "Close");
    expect(!visit.user.canPress("Copy to Clipboard"), "the details close");
}

void Tour::expect(bool holds, const std::string& what)
{
    if (!holds) {
        faults_.push_back(what);
    }
}

void Tour::click(Visit& visit, const std::string& label)
{
    expect(visit.user.click(label), "there is a button \"" + label + "\" to click on");
}

void Tour::picture(Visit& visit, const std::string& name)
{
    const QString number = QStringLiteral("%1").arg(++pictures_, 2, 10, QLatin1Char('0'));
    const std::string file = folders_.pictures + "/" + number.toStdString() + "-" + name + ".png";
    expect(visit.wizard.window().grab().save(QString::fromStdString(file)), "the picture " + file + " is saved");
}

} // namespace corvellane
