#include "tests/view/qt/WindowWorld.h"
#include "view/qt/Appearance.h"
#include "view/qt/LogView.h"
#include "view/qt/Panel.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include <algorithm>

namespace corvellane::view {
namespace {

/// The card in sight: the largest thing around its buttons that is narrower than the window.
QRect cardOf(const QWidget& window)
{
    const QWidget* card = window.findChildren<QPushButton*>().last();
    while (card->parentWidget()->width() < window.width()) {
        card = card->parentWidget();
    }
    return {card->mapTo(&window, QPoint()), card->size()};
}

/// Every text and button in sight, with the window's area that its parent leaves it, has the room it needs.
void expectNothingCutOff(const QWidget& window, const std::string& where)
{
    for (const QLabel* const label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->text().isEmpty()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << where << label->text().toStdString();
            EXPECT_TRUE(window.rect().contains(QRect(label->mapTo(&window, QPoint()), label->size())))
                << where << label->text().toStdString();
        }
    }
    for (const QPushButton* const button : window.findChildren<QPushButton*>()) {
        if (button->isVisible()) {
            EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(button->text())) << where;
            EXPECT_TRUE(window.rect().contains(QRect(button->mapTo(&window, QPoint()), button->size()))) << where;
        }
    }
}

TEST_F(WindowWorld, opensAtItsLeastSize)
{
    EXPECT_EQ(window().size(), QSize(648, 405));
    EXPECT_EQ(window().minimumSize(), QSize(648, 405));
    EXPECT_EQ(window().windowTitle(), "Corvellane Plugin Installer");
}

TEST_F(WindowWorld, sharesTheHeightOutAtEverySize)
{
    goTo(Page::products);
    for (const QSize size : {QSize(648, 405), QSize(1296, 810)}) {
        window().resize(size);
        settle();
        const QWidget* const list = user().list();
        const QRect panel(list->parentWidget()->mapTo(&window(), QPoint()), list->parentWidget()->size());
        EXPECT_EQ(panel.left(), 195);
        EXPECT_EQ(panel.right() + 1, size.width() - 20);
        QLabel* title = nullptr;
        for (QLabel* const label : window().findChildren<QLabel*>()) {
            title = label->text() == "Select Products to install" ? label : title;
        }
        const int above = title->mapTo(&window(), QPoint()).y() - standardSpacing;
        const int rowTop = named("Next")->mapTo(&window(), QPoint()).y() - standardPadding;
        const int under = rowTop - panel.bottom() - 1 - 2 * standardSpacing;
        EXPECT_NEAR(above, panel.height(), 1);
        EXPECT_NEAR(under, panel.height(), 1);
        EXPECT_EQ(list->geometry(), list->parentWidget()->rect().adjusted(1, 1, -1, -1)) << "inside the border";
    }
}

TEST_F(WindowWorld, givesCardsTheWindowUpToTheirSize)
{
    goTo(Page::license);
    show(settings().showLicenseAlert, true);
    EXPECT_EQ(cardOf(window()), QRect(74, 113, 500, 180));
    settings().agreeWithTerms.set(true);
    goTo(Page::install);
    show(settings().showPermanentlyAlert, true);
    EXPECT_EQ(cardOf(window()), QRect(184, 148, 280, 110));
    show(settings().showPermanentlyAlert, false);
    show(settings().showFinderAlert, true);
    EXPECT_EQ(cardOf(window()).size(), QSize(500, 150));
    settings().logDetailsStr = std::string("message");
    goTo(Page::summary);
    show(settings().showLogDetailsWindow, true);
    EXPECT_EQ(cardOf(window()).width(), 500);
    EXPECT_LE(cardOf(window()).height(), 400);
    EXPECT_EQ(window().size(), QSize(648, 405)) << "as small as before, under the tallest card";
    expectNothingCutOff(window(), "log");
}

TEST_F(WindowWorld, cutsNothingOffInLargeLetters)
{
    const QFont usual = QApplication::font();
    for (const int pixels : {12, 23, 30}) {
        QFont font = usual;
        font.setPixelSize(pixels);
        QApplication::setFont(font);
        for (const Page page : allPages) {
            goTo(page);
            expectNothingCutOff(window(), std::to_string(pixels) + " " + std::string(nameOf(page)) + " ");
        }
        goTo(Page::license);
        show(settings().showLicenseAlert, true);
        expectNothingCutOff(window(), std::to_string(pixels) + " alert ");
        show(settings().showLicenseAlert, false);
    }
    QApplication::setFont(usual);
}

TEST(LogText, findsThePiecesInSight)
{
    const LogText text("first\r\nsecond\n\n" + std::string(1500, 'x') + "\nlast", fontOf(standardFont));
    EXPECT_EQ(text.lineCount(), 5U);
    ASSERT_EQ(text.piecesBetween(1, 0, 100).size(), 1U);
    EXPECT_EQ(text.charactersOf(text.piecesBetween(1, 0, 100)[0]), "second");
    EXPECT_TRUE(text.piecesBetween(2, 0, 100).empty());
    EXPECT_EQ(text.piecesBetween(3, 0, text.width()).size(), 3U);
    EXPECT_EQ(text.piecesBetween(3, text.width() - 5, text.width()).size(), 1U);
    EXPECT_NEAR(text.width(), QFontMetricsF(text.font()).horizontalAdvance(QString(1500, 'x')), 1500 / 512.0 + 1);
}

TEST_F(WindowWorld, opensLongLogsAndScrollsThem)
{
    std::string text = std::string(1'000'000, 'm') + "\n";
    for (int line = 0; line < 200'000; ++line) {
        text += "cp: cannot stat a file of line " + std::to_string(line) + "\n";
    }
    settings().logDetailsStr = text;
    goTo(Page::summary);
    show(settings().showLogDetailsWindow, true);
    auto* const log = named<QAbstractScrollArea>("Details");
    ASSERT_NE(log, nullptr);
    EXPECT_EQ(log->verticalScrollBar()->value(), 0);
    EXPECT_GT(log->verticalScrollBar()->maximum(), 200'000 * 10);
    EXPECT_GT(log->horizontalScrollBar()->maximum(), 1'000'000 * 5);
    QTest::keyClick(window().windowHandle(), Qt::Key_End);
    EXPECT_EQ(log->verticalScrollBar()->value(), log->verticalScrollBar()->maximum());
    log->horizontalScrollBar()->setValue(log->horizontalScrollBar()->maximum());
    settle();
    settings().logDetailsStr = std::string("short");
    show(settings().showLogDetailsWindow, true);
    EXPECT_EQ(log->verticalScrollBar()->maximum(), 0);
}

} // namespace
} // namespace corvellane::view
