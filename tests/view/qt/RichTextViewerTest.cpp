#include "view/qt/RichTextViewer.h"

#include "rtf/Reader.h"
#include "tests/UrlOpener.h"

#include <QClipboard>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>

#include <gtest/gtest.h>

namespace corvellane::view {
namespace {

rtf::AttributedText longAgreement()
{
    std::string body
        = R"({\rtf1{\colortbl;;\red255;}{\field{\*\fldinst HYPERLINK "https://x.example/"}{\fldrslt link to the shop}}\par )";
    for (int count = 0; count < 40; ++count) {
        body += R"(A sentence of an agreement that is wider than the viewer is when it is narrow.\par )";
    }
    return rtf::read(body + R"({\cf2\uldb twice}\par )" + std::string(300, 'w') + R"(\par})").value();
}

class RichTextViewer : public testing::Test {
protected:
    RichTextViewer()
    {
        window_.resize(300, 200);
        viewer_->resize(window_.size());
        window_.show();
        QApplication::processEvents();
    }

    QWidget window_;
    QTextEdit* viewer_ = static_cast<QTextEdit*>(makeRichTextViewer(longAgreement(), &window_));
};

TEST_F(RichTextViewer, wrapsAtItsOwnWidthAlsoAfterAResize)
{
    const QScrollBar& vertical = *viewer_->verticalScrollBar();
    EXPECT_TRUE(vertical.isVisible());
    EXPECT_EQ(vertical.value(), 0);
    const double narrow = viewer_->document()->size().height();
    viewer_->resize(600, 200);
    QApplication::processEvents();
    EXPECT_LT(viewer_->document()->size().height(), narrow);
    EXPECT_LE(viewer_->document()->idealWidth(), viewer_->viewport()->width());
    EXPECT_EQ(viewer_->horizontalScrollBar()->maximum(), 0);
}

TEST_F(RichTextViewer, isReadAndCopiedButNotChanged)
{
    const QString before = viewer_->toPlainText();
    viewer_->setFocus();
    QTest::keyClicks(viewer_, QStringLiteral("typed"));
    QTest::keyClick(viewer_, Qt::Key_Delete);
    QTest::keyClick(viewer_, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(viewer_, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(viewer_->toPlainText(), before);
    QTest::keyClick(viewer_, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(viewer_, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().left(16), QStringLiteral("link to the shop"));
    EXPECT_EQ(QGuiApplication::clipboard()->text().size(), before.size());
}

TEST(RichTextCopy, isInTheOrderOfReading)
{
    const std::vector<std::pair<const char*, const char*>> rows{
        {R"(a\par\par b\line c\~d)", "a\n\nb\nc d"},
        {R"(a\par\trowd\cellx900\cellx1800\intbl b\cell c\cell\row\intbl d\par e\cell\cell\row\pard f)",
            "a\nb\tc\nd\ne\t\nf"},
        {R"(\trowd\rtlrow\cellx900\cellx1800\intbl a\cell b\cell\row)", "a\tb"},
        {R"(\trowd\clmgf\cellx900\clmrg\cellx1800\intbl a\cell\cell\row\pard\par b)", "a\n\nb"},
        {R"(a\par\box\brdrs b\par c\par\pard\par\par d)", "a\nb\nc\n\n\nd"},
    };
    for (const auto& [body, expected] : rows) {
        const std::unique_ptr<QTextEdit> viewer(static_cast<QTextEdit*>(
            makeRichTextViewer(rtf::read("{\\rtf1 " + std::string(body) + "}").value(), nullptr)));
        viewer->selectAll();
        viewer->copy();
        EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), expected) << body;
    }
}

TEST_F(RichTextViewer, scrollsByKeyInsideAFrameThatTellsOfTheFocus)
{
    const auto corner = [this] { return viewer_->viewport()->grab().toImage().pixelColor(0, 100); };
    window_.activateWindow();
    viewer_->clearFocus();
    EXPECT_EQ(corner(), QColor(Qt::white));
    viewer_->setFocus();
    QApplication::processEvents();
    EXPECT_NE(corner(), QColor(Qt::white));
    const QScrollBar& vertical = *viewer_->verticalScrollBar();
    QTest::keyClick(viewer_, Qt::Key_Down);
    EXPECT_EQ(vertical.value(), vertical.singleStep());
    QTest::keyClick(viewer_, Qt::Key_PageDown);
    EXPECT_EQ(vertical.value(), viewer_->viewport()->height()) << "a page, but for one step";
    QTest::keyClick(viewer_, Qt::Key_End);
    EXPECT_EQ(vertical.value(), vertical.maximum());
    QTest::keyClick(viewer_, Qt::Key_Home);
    EXPECT_EQ(vertical.value(), 0);
    QTest::keyClick(viewer_, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(viewer_->textCursor().selectedText(), QStringLiteral("l"));
}

TEST_F(RichTextViewer, paintsBothLinesOfAnUnderlineWhereTheyAreScrolledTo)
{
    const auto reddestRows = [this] {
        const QImage picture = viewer_->viewport()->grab().toImage();
        std::vector<int> rows;
        for (int y = 0; y < picture.height(); ++y) {
            int red = 0;
            for (int x = 0; x < picture.width(); ++x) {
                red += picture.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
            }
            if (red > 15) {
                rows.push_back(y);
            }
        }
        return rows;
    };
    EXPECT_TRUE(reddestRows().empty());
    viewer_->verticalScrollBar()->setValue(viewer_->verticalScrollBar()->maximum());
    const std::vector<int> rows = reddestRows();
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_NEAR(rows[1] - rows[0], 2, 1);
}

TEST_F(RichTextViewer, opensNoLinkWhateverIsPressed)
{
    const UrlOpener browser(QStringLiteral("https"));
    viewer_->setFocus();
    const QPoint link = viewer_->cursorRect().center() + QPoint(20, 0);
    ASSERT_EQ(viewer_->anchorAt(link), QStringLiteral("https://x.example/"));
    QTest::mouseClick(viewer_->viewport(), Qt::LeftButton, Qt::NoModifier, link);
    QTest::mouseClick(viewer_->viewport(), Qt::LeftButton, Qt::ControlModifier, link);
    QTest::keyClick(viewer_, Qt::Key_Return);
    EXPECT_EQ(browser.opened, QStringList());
    EXPECT_FALSE(viewer_->textCursor().hasSelection()) << "nothing stays marked";
}

TEST_F(RichTextViewer, isDarkOnWhiteOnADarkDesktop)
{
    QApplication::setPalette(QPalette(Qt::darkGray, Qt::black));
    QApplication::processEvents();
    const QImage picture = viewer_->grab().toImage();
    QApplication::setPalette(QPalette());
    EXPECT_EQ(picture.pixelColor(4, 4), QColor(Qt::white));
    EXPECT_EQ(viewer_->palette().color(QPalette::Inactive, QPalette::Text), QColor(Qt::black));
}

} // namespace
} // namespace corvellane::view
