#include "tests/view/qt/WindowWorld.h"
#include "view/qt/LogView.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyleHints>
#include <QTextEdit>

#include <set>

namespace corvellane::view {
namespace {

/// Counts what reaches a window's widgets.
class Touches : public QObject {
public:
    explicit Touches(QWidget& window)
    {
        for (QWidget* const each : window.findChildren<QWidget*>()) {
            each->installEventFilter(this);
        }
    }

    bool eventFilter(QObject*, QEvent*) override
    {
        ++count;
        return false;
    }

    int count = 0;
};

std::set<QWidget*> widgetsOf(const QWidget& window)
{
    const QList<QWidget*> all = window.findChildren<QWidget*>();
    return {all.begin(), all.end()};
}

TEST_F(WindowWorld, touchesNothingWhereNothingDiffers)
{
    for (const Page page : {Page::intro, Page::license, Page::products}) {
        goTo(page);
        QTest::qWait(50);
        const std::set<QWidget*> before = widgetsOf(window());
        const Touches touches(window());
        settings().accessType.set(FinderAccess::unknown);
        settle();
        EXPECT_EQ(touches.count, 0) << nameOf(page);
        EXPECT_EQ(widgetsOf(window()), before) << nameOf(page);
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

TEST_F(WindowWorld, redrawsOnceForAnyNumberOfChanges)
{
    settings().currentPage.set(Page::products);
    settings().currentPage.set(Page::license);
    EXPECT_TRUE(user().reads("Welcome to the Corvellane Plugin Installer")) << "never inside the signal";
    settle();
    EXPECT_TRUE(user().reads("Software License Agreement"));
}

TEST_F(WindowWorld, buildsTheAgreementAnewAtReentry)
{
    goTo(Page::license);
    const QPointer<QTextEdit> viewer = window().findChild<QTextEdit*>();
    ASSERT_NE(viewer, nullptr);
    settings().agreeWithTerms.set(true);
    settle();
    EXPECT_EQ(window().findChild<QTextEdit*>(), viewer);
    goTo(Page::products);
    EXPECT_EQ(viewer, nullptr);
    goTo(Page::license);
    EXPECT_NE(window().findChild<QTextEdit*>(), nullptr);
}

TEST_F(WindowWorld, togglesARowWhereItIs)
{
    goTo(Page::products);
    QListView* const list = user().list();
    ASSERT_NE(list, nullptr);
    list->verticalScrollBar()->setValue(200);
    const QModelIndex row = list->indexAt(QPoint(30, list->viewport()->height() / 2));
    const auto at
        = [&](int x) { return list->viewport()->mapTo(&window(), QPoint(x, list->visualRect(row).center().y())); };
    const auto click = [&](int x) {
        QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 10);
        QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, at(x));
        settle();
        return row.data(Qt::CheckStateRole).toInt();
    };
    EXPECT_EQ(click(18), Qt::Unchecked) << "on the symbol";
    EXPECT_EQ(list->verticalScrollBar()->value(), 200);
    EXPECT_EQ(click(60), Qt::Checked) << "on the name";
    EXPECT_EQ(click(list->width() - 30), Qt::Checked) << "beside the name";
    const QSignalSpy told(list->model(), &QAbstractItemModel::dataChanged);
    QTest::mouseDClick(window().windowHandle(), Qt::LeftButton, {}, at(60));
    settle();
    EXPECT_EQ(row.data(Qt::CheckStateRole).toInt(), Qt::Checked) << "the second of two quick clicks";
    ASSERT_EQ(told.size(), 2) << "no more than the row that has changed";
    EXPECT_EQ(told[1][0].toModelIndex(), row);
    list->setFocus();
    list->setCurrentIndex(row);
    QTest::keyClick(window().windowHandle(), Qt::Key_Space);
    settle();
    EXPECT_EQ(row.data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_EQ(user().list(), list);
}

TEST_F(WindowWorld, tellsAssistiveTechnologyWhatIsTicked)
{
    goTo(Page::products);
    settings().toggleProduct("/Resources/Products/Product 101");
    settle();
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(user().list());
    ASSERT_EQ(list->childCount(), 40);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->text(QAccessible::Name), "Select Products to install");
    EXPECT_EQ(list->child(0)->text(QAccessible::Name), "Product 100");
    EXPECT_TRUE(list->child(0)->state().checkable);
    EXPECT_TRUE(list->child(0)->state().checked);
    EXPECT_FALSE(list->child(1)->state().checked);
}

TEST_F(WindowWorld, keepsEverythingBehindAnAlertOutOfReach)
{
    goTo(Page::license);
    QWidget* const next = named("Next");
    next->setFocus();
    show(settings().showLicenseAlert, true);
    std::set<QString> reached;
    for (int times = 0; times < 8; ++times) {
        reached.insert(focusName());
        QTest::keyClick(window().windowHandle(), Qt::Key_Tab);
    }
    EXPECT_EQ(reached, (std::set<QString>{"Read License", "Disagree", "Agree"}));
    EXPECT_FALSE(next->isEnabled()) << "not by assistive technology either";
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, named("Go Back")->mapTo(&window(), QPoint(5, 5)));
    settle();
    EXPECT_EQ(settings().currentPage.get(), Page::license);
    show(settings().showLicenseAlert, false);
    EXPECT_EQ(QApplication::focusWidget(), next) << "the focus comes back";
    EXPECT_TRUE(next->isEnabled());
}

TEST_F(WindowWorld, followsTheReadingOrderWithTheTabKey)
{
    goTo(Page::license);
    goTo(Page::products);
    QStringList order;
    user().list()->setFocus();
    for (int times = 0; times < 4; ++times) {
        order << focusName();
        QTest::keyClick(window().windowHandle(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, (QStringList{"Select Products to install", "Select All", "Go Back", "Next"}));
}

TEST_F(WindowWorld, readsTheOutcomeOut)
{
    settings().completedWithErrors.set(true);
    goTo(Page::summary);
    const auto* const outcome = dynamic_cast<QLabel*>(QApplication::focusWidget());
    ASSERT_NE(outcome, nullptr);
    EXPECT_EQ(outcome->text(), "The installation was not completed successfully.");
}

TEST_F(WindowWorld, showsNamesAndLogsAsTheyStand)
{
    settings().products.set(ProductSelection({"/p/<b>Bold & Co"}));
    goTo(Page::products);
    EXPECT_EQ(user().list()->model()->index(0, 0).data(), "<b>Bold & Co");
    settings().logDetailsStr = std::string("<b>not bold</b>\n<img src=\"/etc/passwd\"> & more");
    goTo(Page::summary);
    show(settings().showLogDetailsWindow, true);
    auto* const log = named<LogView>("Details");
    ASSERT_NE(log, nullptr);
    EXPECT_EQ(log->size(), QSize(500, 300));
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(log);
    ASSERT_NE(accessible->textInterface(), nullptr);
    EXPECT_EQ(accessible->textInterface()->text(0, 15), "<b>not bold</b>");
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
