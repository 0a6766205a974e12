#include "platform/qt/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <gtest/gtest.h>

#include <vector>

namespace corvellane {
namespace {

using namespace std::string_literals;

TEST(QtPasteboard, holdsTextByteForByteAndReplacementCharactersForWhatIsNoText)
{
    const std::vector<std::string> texts{"cp: /x: No such file\nsecond\r\nthird\rfourth\n", "", "\xEF\xBB\xBFmarked",
        "null \0 inside"s, "<b>&amp;</b> \t \x1B[1m", "e\u0301 and \u00E9, \u65E5\u672C\u8A9E, \U0001F4A3",
        std::string(300'000, 'x')};
    QtPasteboard pasteboard;
    const auto held = [] { return QGuiApplication::clipboard()->mimeData(); };
    for (const std::string& text : texts) {
        EXPECT_TRUE(pasteboard.setString(text));
        EXPECT_TRUE(held()->data("text/plain").toStdString() == text) << testing::PrintToString(text.substr(0, 50));
        EXPECT_TRUE(held()->hasText());
        EXPECT_FALSE(held()->hasHtml());
    }
    pasteboard.setString("cp: caf\xE9/\xFF: No such file\n");
    EXPECT_EQ(held()->data("text/plain"), "cp: caf\uFFFD/\uFFFD: No such file\n");
    pasteboard.clearContents();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
}

} // namespace
} // namespace corvellane
