#include "platform/qt/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <gtest/gtest.h>

#include <vector>

namespace corvellane {
namespace {

using namespace std::string_literals;

/// What another program that asks for UTF-8 is given.
std::string onClipboard()
{
    return QGuiApplication::clipboard()->mimeData()->data(QStringLiteral("text/plain")).toStdString();
}

TEST(QtPasteboard, holdsTextByteForByte)
{
    const std::vector<std::string> texts{"cp: /x: No such file\nsecond\r\nthird\rfourth\n", "", "\xEF\xBB\xBFmarked",
        "null \0 inside"s, "<b>&amp;</b> \t \x1B[1m", "e\u0301 and \u00E9, \u65E5\u672C\u8A9E, \U0001F4A3",
        std::string(300'000, 'x')};
    QtPasteboard pasteboard;
    for (const std::string& text : texts) {
        pasteboard.clearContents();
        EXPECT_TRUE(pasteboard.setString(text));
        EXPECT_TRUE(onClipboard() == text) << testing::PrintToString(text.substr(0, 50));
        EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasText());
        EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasHtml());
    }
}

TEST(QtPasteboard, putsAReplacementCharacterForWhatIsNoText)
{
    QtPasteboard pasteboard;
    pasteboard.setString("cp: caf\xE9/\xFF: No such file\n");
    EXPECT_EQ(onClipboard(), "cp: caf\uFFFD/\uFFFD: No such file\n");
}

TEST(QtPasteboard, isEmptyOnceCleared)
{
    QtPasteboard pasteboard;
    pasteboard.setString("old");
    pasteboard.clearContents();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
}

} // namespace
} // namespace corvellane
