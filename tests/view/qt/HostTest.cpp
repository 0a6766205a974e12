#include "base/PathNames.h"
#include "tests/view/qt/WindowWorld.h"
#include "view/qt/Appearance.h"
#include "view/qt/NameLines.h"
#include "view/qt/Pictures.h"

#include <QAccessible>
#include <QBuffer>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>

namespace corvellane::view {
namespace {

/// Counts what reaches the widgets whose events it filters.
struct Touches : QObject {
    bool eventFilter(QObject*, QEvent*) override
    {
        ++count;
        return false;
    }
    int count = 0;
};

TEST_F(WindowWorld, touchesNothingWhereNothingDiffers)
{
    for (const Page page : {Page::intro, Page::license, Page::products}) {
        goTo(page);
        QTest::qWait(50);
        const QList<QWidget*> before = window().findChildren<QWidget*>();
        Touches touches;
        for (QWidget* const each : before) {
            each->installEventFilter(&touches);
        }
        settings().accessType.set(FinderAccess::unknown);
        settle();
        EXPECT_EQ(touches.count, 0) << nameOf(page);
        EXPECT_EQ(window().findChildren<QWidget*>(), before) << nameOf(page);
    }
}

TEST_F(WindowWorld, keepsWidgetsAndFocusOverRedraws)
{
    QWidget* const next = named("Next");
    next->setFocus();
    goTo(Page::license);
    EXPECT_EQ(named("Next"), next);
    EXPECT_EQ(QApplication::focusWidget(), next);
    QWidget* const goBack = named("Go Back");
    ASSERT_TRUE(goBack->isEnabled());
    goTo(Page::intro);
    EXPECT_EQ(named("Go Back"), goBack);
    EXPECT_FALSE(goBack->isEnabled());
    goTo(Page::products);
    const QPointer<QListView> products = user().list();
    goTo(Page::install);
    EXPECT_NE(user().list(), nullptr);
    EXPECT_EQ(products, nullptr) << "a page's content does not outlive it";
}

TEST_F(WindowWorld, keepsTheFocusAndWhereItGoesBackToWhenAllIsMadeAnew)
{
    goTo(Page::install);
    named("Go Back")->setFocus();
    show(settings().showPermanentlyAlert, true);
    named("Install")->setFocus();
    scene->window().rebuild();
    settle();
    EXPECT_EQ(QApplication::focusWidget(), named("Install"));
    show(settings().showPermanentlyAlert, false);
    EXPECT_EQ(QApplication::focusWidget(), named("Go Back"));
}

TEST_F(WindowWorld, leavesTheFocusOnWhatCanBeUsedWhereTheNextPageHasNoProducts)
{
    settings().products.set({});
    goTo(Page::license);
    named("Next")->setFocus();
    show(settings().showLicenseAlert, true);
    settings().currentPage.set(Page::products);
    show(settings().showLicenseAlert, false);
    EXPECT_FALSE(named("Next")->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), named("Go Back"));
}

TEST_F(WindowWorld, redrawsOnceForAnyNumberOfChanges)
{
    settings().currentPage.set(Page::products);
    settings().currentPage.set(Page::license);
    EXPECT_TRUE(user().reads("Welcome to the Corvellane Plugin Installer")) << "never inside the signal";
    settle();
    EXPECT_TRUE(user().reads("Software License Agreement"));
}

TEST_F(WindowWorld, togglesARowWhereItIs)
{
    goTo(Page::products);
    QListView* const list = user().list();
    list->verticalScrollBar()->setValue(200);
    const QModelIndex row = list->indexAt(QPoint(30, list->viewport()->height() / 2));
    const QPoint onName = list->viewport()->mapTo(&window(), QPoint(60, list->visualRect(row).center().y()));
    const QSignalSpy told(list->model(), &QAbstractItemModel::dataChanged);
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, onName);
    settle();
    EXPECT_EQ(row.data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_EQ(user().list(), list);
    EXPECT_EQ(list->verticalScrollBar()->value(), 200);
    ASSERT_EQ(told.size(), 1) << "no more than the row that has changed";
    EXPECT_EQ(told[0][0].toModelIndex(), row);
    QTest::mouseDClick(window().windowHandle(), Qt::LeftButton, {}, onName);
    settle();
    EXPECT_EQ(row.data(Qt::CheckStateRole).toInt(), Qt::Unchecked) << "two quick clicks are two";
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(list)->child(0)->state().checkable);
}

TEST_F(WindowWorld, ticksByTheSpaceBarUnlessANameIsTyped)
{
    goTo(Page::products);
    QListView* const list = user().list();
    list->setFocus();
    const auto ticksOff = [&] {
        settle();
        return settings().products.get().locations()->size() - settings().products.get().ticked().size();
    };
    QTest::keyClicks(list, QStringLiteral("Product 12"));
    EXPECT_EQ(list->currentIndex().data().toString(), QStringLiteral("Product 120"));
    EXPECT_EQ(ticksOff(), 0U);
    QTest::qWait(QApplication::keyboardInputInterval() + 1);
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_EQ(ticksOff(), 1U);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
    QApplication::sendEvent(list, &held);
    EXPECT_EQ(ticksOff(), 1U) << "one press, however long";
}

TEST_F(WindowWorld, tellsNamesApartThatShareBeginningAndEnd)
{
    const QFont font = fontOf({14, false});
    const QString one = QStringLiteral("Velvetgrain for the first of many hosts, with its presets, Photo");
    const QString other = QString(one).replace(QStringLiteral("first"), QStringLiteral("third"));
    const int width = QFontMetrics(font).horizontalAdvance(one) * 2 / 3;
    EXPECT_EQ(linesOf(one, font, 10 * width).text, one);
    EXPECT_TRUE(linesOf(one, font, width).isWhole);
    EXPECT_EQ(linesOf(one, font, width).text.count('\n'), 1);
    EXPECT_NE(linesOf(one, font, width).text, linesOf(other, font, width).text);
    EXPECT_EQ(linesOf(QStringLiteral("a\nb"), font, width).text, QStringLiteral("a\nb"));
    for (const QString& longer : {one + one + one, one + "\n" + one, QString(300, 'w')}) {
        const NameLines lines = linesOf(longer, font, width);
        EXPECT_FALSE(lines.isWhole);
        EXPECT_EQ(lines.text.count('\n'), 1);
        EXPECT_LE(QFontMetrics(font).size(0, lines.text).width(), width);
        QString whole = allLinesOf(longer, font, width);
        EXPECT_LE(QFontMetrics(font).size(0, whole).width(), width) << "where all of it is told";
        EXPECT_EQ(whole.remove(QRegularExpression("\\s")), QString(longer).remove(QRegularExpression("\\s")));
    }
}

TEST_F(WindowWorld, makesRoomForTheSecondLineOfAName)
{
    platform.addProduct("A product with a name that is longer than a line of a window of the usual size, Photo", {});
    open(platform.services());
    goTo(Page::products);
    QListView* const list = user().list();
    const int usual = list->visualRect(list->model()->index(1, 0)).height();
    EXPECT_GT(list->visualRect(list->model()->index(0, 0)).height(), usual * 3 / 2);
    window().resize(2000, window().height());
    settle();
    EXPECT_EQ(list->visualRect(list->model()->index(0, 0)).height(), usual);
}

bool isOfTheLogo(const std::string& line)
{
    return line.find("Logo") != std::string::npos;
}

TEST_F(WindowWorld, namesTheProductWhereThereIsNoLogo)
{
    platform.files.contents = {{"/a\xff/Logo.svg", "<svg"}, {"/a\xff/Logo.png", "<svg"}};
    const std::pair<std::string, std::string> lines[] = {
        {"", "The file “Logo.svg” is missing."},
        {"/a\xff/Logo.svg", "The file “Logo.svg” is no picture."},
        {"/a\xff/Logo.png", "The file “Logo.png” is no picture."},
        {"/Logo.png", "no file /Logo.png"},
    };
    for (const auto& [path, why] : lines) {
        platform.console.lines.clear();
        platform.resources.files = {{std::string(lastPathComponent(path)), path}};
        open(platform.services());
        window().grab();
        window().grab();
        EXPECT_NE(named("Corvellane Plugin Installer"), nullptr);
        EXPECT_EQ(std::ranges::count_if(platform.console.lines, isOfTheLogo), 1);
        EXPECT_EQ(std::ranges::count(platform.console.lines, why + " The product’s name stands in its place."), 1)
            << why;
    }
}

TEST_F(WindowWorld, showsALogoOfPixelsInTheColourOfText)
{
    QImage logo(360, 80, QImage::Format_ARGB32);
    logo.fill(Qt::transparent);
    QPainter(&logo).fillRect(0, 0, 180, 80, Qt::red);
    QBuffer file;
    ASSERT_TRUE(logo.save(&file, "PNG"));
    const QImage shown = tintedPicture(file.data(), Qt::blue, QSize(180, 40)).toImage();
    EXPECT_EQ(shown.pixelColor(80, 20), QColor(Qt::blue));
    EXPECT_EQ(shown.pixelColor(100, 20).alpha(), 0);
    platform.files.contents = {{"/a\xff/Logo.png", file.data().toStdString()}};
    platform.resources.files = {{"Logo.png", "/a\xff/Logo.png"}};
    platform.console.lines.clear();
    open(platform.services());
    window().grab();
    EXPECT_EQ(std::ranges::count_if(platform.console.lines, isOfTheLogo), 0);
}

TEST_F(WindowWorld, followsTheReadingOrderWithTheTabKey)
{
    goTo(Page::license);
    goTo(Page::products);
    user().list()->setFocus();
    for (const char* const name : {"Select Products to install", "Select All", "Go Back", "Next"}) {
        EXPECT_EQ(heardName(*QApplication::focusWidget()), name);
        QTest::keyClick(window().windowHandle(), Qt::Key_Tab);
    }
}

TEST_F(WindowWorld, pressesTheFocusedButtonWithReturnAndEnterOnce)
{
    const auto press = [&](Qt::Key key, bool held) {
        QKeyEvent event(QEvent::KeyPress, key, key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier, {}, held);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
        settle();
    };
    named("Next")->setFocus();
    press(Qt::Key_Return, false);
    EXPECT_EQ(settings().currentPage.get(), Page::license);
    press(Qt::Key_Return, true);
    EXPECT_FALSE(settings().showLicenseAlert.get()) << "a key that is held";
    press(Qt::Key_Enter, false);
    ASSERT_TRUE(settings().showLicenseAlert.get());
    EXPECT_EQ(QApplication::focusWidget(), named("Read License"));
    press(Qt::Key_Return, true);
    EXPECT_TRUE(settings().showLicenseAlert.get());
    press(Qt::Key_Return, false);
    EXPECT_FALSE(settings().showLicenseAlert.get());
    goTo(Page::products);
    user().list()->setFocus();
    press(Qt::Key_Return, false);
    EXPECT_EQ(settings().currentPage.get(), Page::products) << "there is no default button";
}

TEST_F(WindowWorld, takesAPressAtTheMomentOfTheReleaseForAKeyThatIsHeld)
{
    const auto send = [&](QEvent::Type type, Qt::Key key, quint64 moment) {
        QKeyEvent event(type, key, Qt::NoModifier);
        event.setTimestamp(moment);
        QApplication::sendEvent(window().windowHandle(), &event);
        settle();
    };
    named("Next")->setFocus();
    send(QEvent::KeyPress, Qt::Key_Return, 1000);
    EXPECT_EQ(settings().currentPage.get(), Page::license);
    for (quint64 moment = 1500; moment < 1700; moment += 40) {
        send(QEvent::KeyRelease, Qt::Key_Return, moment);
        send(QEvent::KeyPress, Qt::Key_Return, moment);
    }
    EXPECT_FALSE(settings().showLicenseAlert.get());
    send(QEvent::KeyRelease, Qt::Key_Return, 1710);
    send(QEvent::KeyPress, Qt::Key_Return, 1711);
    EXPECT_TRUE(settings().showLicenseAlert.get()) << "a key that is pressed again";
}

TEST_F(WindowWorld, showsNamesAndLogsAsTheyStand)
{
    settings().products.set(ProductSelection({"/p/<b>Bold & Co"}));
    goTo(Page::products);
    EXPECT_EQ(user().list()->model()->index(0, 0).data(), "<b>Bold & Co");
    settings().logDetailsStr = std::string("<b>not bold</b>\n<img src=\"/etc/passwd\"> & more");
    goTo(Page::summary);
    show(settings().showLogDetailsWindow, true);
    QWidget* const log = named<QAbstractScrollArea>("Details");
    EXPECT_EQ(log->size(), QSize(500, 300));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(log)->textInterface()->text(0, 15), "<b>not bold</b>");
    QTest::keyClick(log, Qt::Key_A, Qt::ControlModifier);
    int begin = -1;
    int end = -1;
    QAccessible::queryAccessibleInterface(log)->textInterface()->selection(0, &begin, &end);
    EXPECT_EQ(std::pair(begin, end), std::pair(0, static_cast<int>(settings().logDetailsStr->size())));
}

TEST_F(WindowWorld, probesWhileThePermissionIsAskedFor)
{
    goTo(Page::install);
    show(settings().showFinderAlert, true);
    platform.scripts.answerText("0");
    EXPECT_TRUE(QTest::qWaitFor([&] { return platform.scripts.sources.size() == 1; }, 3000));
    show(settings().showFinderAlert, false);
    QTest::qWait(1200);
    EXPECT_EQ(platform.scripts.sources.size(), 1U) << "the timer ends with the alert";
}

} // namespace
} // namespace corvellane::view
