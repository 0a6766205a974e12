#include "platform/qt/FontsAhead.h"

#include <clocale>
#include <utility>

namespace corvellane {
namespace {

/// Numbers are read by the locale's rules, which the application changes meanwhile; in the files they have a point.
class LocaleOfFiles {
public:
    LocaleOfFiles() { uselocale(locale_); }
    LocaleOfFiles(const LocaleOfFiles&) = delete;
    LocaleOfFiles& operator=(const LocaleOfFiles&) = delete;

    ~LocaleOfFiles()
    {
        uselocale(LC_GLOBAL_LOCALE);
        freelocale(locale_);
    }

private:
    locale_t locale_ = newlocale(LC_ALL_MASK, "C", nullptr);
};

bool namesItsCaches(FcConfig* configuration)
{
    FcStrList* const folders = FcConfigGetCacheDirs(configuration);
    const bool isThere = folders != nullptr && FcStrListNext(folders) != nullptr;
    FcStrListDone(folders);
    return isThere;
}

} // namespace

FontsAhead::FontsAhead()
    : configuration_(std::async(read))
{
}

FontsAhead::~FontsAhead()
{
    if (const Configuration configuration = configuration_.get()) {
        FcConfigSetCurrent(configuration.get());
    }
}

/// As FcInit reads it, but for files that no configuration uses: it could list these afterwards, and nobody asks. They
/// are four tenths of its work.
FontsAhead::Configuration FontsAhead::read()
{
    const LocaleOfFiles locale;
    Configuration configuration(FcConfigCreate());
    const bool isWhole = configuration != nullptr
        && FcConfigParseAndLoad(configuration.get(), nullptr, FcTrue) == FcTrue && namesItsCaches(configuration.get())
        && FcConfigBuildFonts(configuration.get()) == FcTrue;
    return isWhole ? std::move(configuration) : nullptr;
}

} // namespace corvellane
