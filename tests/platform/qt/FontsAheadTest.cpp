#include "platform/qt/FontsAhead.h"

#include "tests/ScratchFolder.h"

#include <memory>

namespace corvellane {
namespace {

/// All that is known of the font for a family, in one line.
std::string matchFor(FcConfig* configuration, const char* family)
{
    using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;
    const Pattern wanted(FcNameParse(reinterpret_cast<const FcChar8*>(family)), FcPatternDestroy);
    FcConfigSubstitute(configuration, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    const Pattern match(FcFontMatch(configuration, wanted.get(), &result), FcPatternDestroy);
    const std::unique_ptr<FcChar8, decltype(&FcStrFree)> words(FcNameUnparse(match.get()), FcStrFree);
    return reinterpret_cast<const char*>(words.get());
}

TEST(FontsAhead, findsTheFontsThatTheLibraryFindsByItself)
{
    {
        const FontsAhead fonts;
    }
    FcConfig* const ahead = FcConfigGetCurrent();
    FcConfig* const own = FcInitLoadConfigAndFonts();
    EXPECT_NE(ahead, own);
    for (const char* const family : {"sans-serif:bold", "serif", "monospace", "Arial", "Calibri:size=9", ":lang=ja"}) {
        EXPECT_EQ(matchFor(ahead, family), matchFor(own, family)) << family;
    }
    FcConfigDestroy(own);
}

TEST(FontsAhead, leavesToTheLibraryWhatIsNotWhole)
{
    FcConfig* const before = FcConfigGetCurrent();
    const ScratchFolder folder;
    folder.write("broken.conf", "<fontconfig><cachedir>/tmp</cachedir><dir>");
    folder.write("empty.conf", "");
    folder.write("no-cache.conf", "<fontconfig><dir>/usr/share/fonts</dir></fontconfig>");
    folder.write("whole.conf", "<fontconfig><cachedir>" + folder.path() + "</cachedir></fontconfig>");
    const auto isTaken = [&](const char* name) {
        setenv("FONTCONFIG_FILE", (folder.path() + "/" + name).c_str(), 1);
        {
            const FontsAhead fonts;
        }
        unsetenv("FONTCONFIG_FILE");
        return FcConfigGetCurrent() != before;
    };
    for (const char* const name : {"missing.conf", "broken.conf", "empty.conf", "no-cache.conf"}) {
        EXPECT_FALSE(isTaken(name)) << name;
    }
    EXPECT_TRUE(isTaken("whole.conf"));
    FcInitReinitialize();
}

} // namespace
} // namespace corvellane
