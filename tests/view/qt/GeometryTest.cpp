#include "platform/posix/PosixFiles.h"
#include "platform/qt/Translations.h"
#include "tests/view/qt/WindowWorld.h"
#include "view/qt/Appearance.h"
#include "view/qt/Layout.h"
#include "view/qt/LogView.h"

#include <QClipboard>
#include <QDir>
#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace corvellane::view {
namespace {

/// The card in sight: the largest thing around its buttons that is narrower than the window.
const QWidget& cardIn(const QWidget& window)
{
    const QWidget* card = window.findChildren<QPushButton*>().last();
    while (card->parentWidget()->width() < window.width()) {
        card = card->parentWidget();
    }
    return *card;
}

QRect cardOf(const QWidget& window)
{
    return areaOf(cardIn(window));
}

/// Every text and button of the card in sight keeps some distance from its edges.
void expectClearEdges(const QWidget& window, const std::string& where)
{
    const QWidget& card = cardIn(window);
    const QRect inside = areaOf(card).adjusted(8, 8, -8, -8);
    for (const QWidget* const each : card.findChildren<QWidget*>()) {
        const bool isWords
            = qobject_cast<const QLabel*>(each) != nullptr || qobject_cast<const QPushButton*>(each) != nullptr;
        EXPECT_TRUE(!isWords || !each->isVisible() || inside.contains(areaOf(*each)))
            << where << each->accessibleName().toStdString();
    }
}

/// Every text and button in sight, with the window's area that its parent leaves it, has the room it needs.
void expectNothingCutOff(const QWidget& window, const std::string& where)
{
    const auto expectRoom = [&](const auto& widget, bool isLargeEnough) {
        if (widget.isVisible() && !widget.text().isEmpty()) {
            EXPECT_TRUE(isLargeEnough && window.rect().contains(areaOf(widget)))
                << where << widget.text().toStdString();
        }
    };
    for (const QLabel* const label : window.findChildren<QLabel*>()) {
        expectRoom(*label, label->height() >= label->heightForWidth(label->width()));
    }
    for (const QPushButton* const button : window.findChildren<QPushButton*>()) {
        expectRoom(*button, button->width() >= button->fontMetrics().horizontalAdvance(button->text()));
    }
}

TEST_F(WindowWorld, sharesTheHeightOutAtEverySize)
{
    goTo(Page::products);
    EXPECT_EQ(window().minimumSize(), QSize(648, 405));
    for (const QSize size : {window().minimumSize(), QSize(1296, 810)}) {
        window().resize(size);
        settle();
        const QRect panel = areaOf(*user().list()->parentWidget());
        EXPECT_EQ(areaOf(*user().list()), panel.adjusted(1, 1, -1, -1)) << "inside the border";
        EXPECT_EQ(panel.left(), 195);
        EXPECT_EQ(panel.right() + 1, size.width() - 20);
        const QList<QLabel*> labels = window().findChildren<QLabel*>();
        const auto title = std::ranges::find(labels, "Select Products to install", &QLabel::accessibleName);
        const int rowTop = areaOf(*named("Next")).top() - standardPadding;
        EXPECT_NEAR(areaOf(**title).top() - standardSpacing, panel.height(), 1);
        EXPECT_NEAR(rowTop - panel.bottom() - 1 - 2 * standardSpacing, panel.height(), 1);
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

TEST_F(WindowWorld, opensWithinTheScreenInLargeLetters)
{
    const QFont usual = QApplication::font();
    QFont font = usual;
    font.setPixelSize(30);
    QApplication::setFont(font);
    open(platform.services());
    const QSize left = window().screen()->availableSize() - window().size();
    EXPECT_GT(left.width(), 0) << "for the borders";
    EXPECT_GE(left.height(), 30) << "for the title bar";
    QApplication::setFont(usual);
}

TEST_F(WindowWorld, cutsNothingOffInLargeLetters)
{
    const QFont usual = QApplication::font();
    for (const int pixels : {12, 23, 30}) {
        QFont font = usual;
        font.setPixelSize(pixels);
        QApplication::setFont(font);
        for (const bool asked : {false, true}) {
            show(settings().showLicenseAlert, asked);
            for (const Page page : allPages) {
                goTo(page);
                expectNothingCutOff(window(), std::to_string(pixels) + " " + std::string(nameOf(page)) + " ");
            }
        }
    }
    QApplication::setFont(usual);
}

/// Every page, every alert and the panel, one after the other.
class EverySight : public WindowWorld {
protected:
    void expectNothingCutOffAnywhere(const std::string& where)
    {
        settings().completedWithErrors.set(true);
        for (const Page page : allPages) {
            goTo(page);
            expectNothingCutOff(window(), where);
        }
        for (auto* const flag : {&settings().showLogDetailsWindow, &settings().showFinderAlert,
                 &settings().showPermanentlyAlert, &settings().showLicenseAlert}) {
            settings().currentPage.set(flag == &settings().showLogDetailsWindow ? Page::summary : Page::install);
            show(*flag, true);
            expectNothingCutOff(window(), where);
            expectClearEdges(window(), where);
            flag->set(false);
        }
    }
};

TEST_F(EverySight, hasRoomForEveryLanguage)
{
    const QFont usual = QApplication::font();
    QFont doubled = usual;
    doubled.setPixelSize(30);
    for (const QString& table : QDir(TRANSLATIONS).entryList({"*.qm"})) {
        const QString language = table.section('_', 1).section('.', 0, 0);
        if (language == "hi" && QFontDatabase::families(QFontDatabase::Devanagari).isEmpty()) {
            continue; // without a font its letters do not join, and take other room each time
        }
        const Translations translations(PosixFiles(), TRANSLATIONS, {language});
        settle();
        expectNothingCutOffAnywhere(language.toStdString() + " ");
        EXPECT_EQ(window().size(), QSize(648, 405)) << language.toStdString();
        QApplication::setFont(doubled);
        settle();
        expectNothingCutOffAnywhere(language.toStdString() + ", doubled, ");
        EXPECT_LE(window().width(), 1024) << language.toStdString();
        QApplication::setFont(usual);
        settle();
        window().resize(648, 405);
    }
}

TEST(LogText, findsThePiecesInSight)
{
    const LogText text("1\tfirst\r\nsecond\n\n" + std::string(1500, 'x') + "\nlast", fontOf(standardFont));
    EXPECT_EQ(text.lineCount(), 5U);
    ASSERT_EQ(text.piecesBetween(1, 0, 100).size(), 1U);
    EXPECT_EQ(text.charactersOf(text.piecesBetween(1, 0, 100)[0]), "second");
    EXPECT_EQ(text.leftOf(2), 8 * QFontMetricsF(text.font()).horizontalAdvance(' ')) << "the tab stop";
    EXPECT_EQ(text.piecesBetween(3, 0, text.width()).size(), 3U);
    EXPECT_EQ(text.piecesBetween(3, text.width() - 5, text.width()).size(), 1U);
    EXPECT_NEAR(text.width(), QFontMetricsF(text.font()).horizontalAdvance(QString(1500, 'x')), 1500 / 512.0 + 1);
}

TEST_F(WindowWorld, opensLongLogsAndScrollsThem)
{
    std::string text = std::string(1'000'000, 'm') + "\n";
    for (int line = 0; line < 200'000; ++line) {
        text += "cp: cannot stat a file\n";
    }
    settings().logDetailsStr = text;
    goTo(Page::summary);
    show(settings().showLogDetailsWindow, true);
    auto* const log = named<QAbstractScrollArea>("Details");
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

/// The areas of all that stands for a view, in the order of the tree.
std::vector<QRect> areasIn(const QWidget& window)
{
    std::vector<QRect> areas;
    for (const QWidget* const each : window.findChildren<QWidget*>()) {
        if (dynamic_cast<Panel*>(each->parentWidget()) != nullptr && each->isVisible()) {
            areas.push_back(areaOf(*each));
        }
    }
    return areas;
}

TEST_F(WindowWorld, mirrorsEverythingWhereTextRunsFromRightToLeft)
{
    show(settings().showPermanentlyAlert, true);
    for (const Page page : allPages) {
        goTo(page);
        std::vector<QRect> expected = areasIn(window());
        for (QRect& area : expected) {
            area.moveRight(window().width() - 1 - area.left());
        }
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QTest::qWait(1);
        EXPECT_EQ(areasIn(window()), expected) << nameOf(page);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QTest::qWait(1);
    }
}

TEST_F(WindowWorld, selectsAndCopiesPartsOfALog)
{
    const std::string text = "one\ttwo\n\nthr\xF0\x9F\x98\x80 four\n" + std::string(500, 'x');
    settings().logDetailsStr = text;
    goTo(Page::summary);
    show(settings().showLogDetailsWindow, true);
    auto* const log = dynamic_cast<LogView*>(named<QAbstractScrollArea>("Details"));
    const auto typed = [&](const QKeySequence& keys) {
        QTest::keySequence(log, keys);
        QTest::keySequence(log, QKeySequence::Copy);
        return QApplication::clipboard()->text().toStdString();
    };
    EXPECT_EQ(typed(QKeySequence::SelectAll), text);
    log->select({1, 1});
    EXPECT_EQ(typed(QKeySequence::SelectEndOfLine), "ne\ttwo");
    EXPECT_EQ(typed(QKeySequence::SelectPreviousChar), "ne\ttw");
    log->select({9, 12});
    EXPECT_EQ(typed(QKeySequence::SelectNextChar), "thr\xF0\x9F\x98\x80") << "no half of a character";
    log->select({1, 1});
    typed(QKeySequence::SelectNextLine);
    EXPECT_EQ(typed(QKeySequence::SelectNextLine), "ne\ttwo\n\n");
    const int aboveTheMiddle = 3 * QFontMetrics(log->font()).lineSpacing() / 2;
    const QPoint inOne(standardPadding + 4, log->viewport()->height() / 2 - aboveTheMiddle);
    QTest::mouseDClick(log->viewport(), Qt::LeftButton, {}, inOne);
    EXPECT_EQ(typed({}), "one");
    QTest::mouseClick(log->viewport(), Qt::LeftButton, {}, inOne);
    EXPECT_EQ(typed({}), "one\ttwo");
    QTest::mousePress(log->viewport(), Qt::LeftButton, {}, inOne + QPoint(40, 0));
    QTest::mouseMove(log->viewport(), {log->viewport()->width() + 20, log->viewport()->height()});
    const int scrolled = log->horizontalScrollBar()->value();
    EXPECT_TRUE(WindowUser::wait([&] { return log->horizontalScrollBar()->value() > scrolled; })) << "held outside";
}

} // namespace
} // namespace corvellane::view
