#include "products/Product.h"

#include "platform/StandardFolders.h"

namespace corvellane {
namespace {

LazyText baseFolder(const StandardFolders& folders, SearchDirectory directory, SearchDomain domain)
{
    return LazyText([&folders, directory, domain] {
        const auto paths = folders.searchPaths(directory, domain);
        return paths.empty() ? std::string() : paths.front();
    });
}

LazyText folderBelow(const LazyText& base, const char* tail)
{
    return LazyText([&base, tail] { return base.get() + tail; });
}

} // namespace

Product::Product(const StandardFolders& folders)
    : applications_(baseFolder(folders, SearchDirectory::applications, SearchDomain::local))
    , applicationSupport_(baseFolder(folders, SearchDirectory::applicationSupport, SearchDomain::local))
    , userApplicationSupport_(baseFolder(folders, SearchDirectory::applicationSupport, SearchDomain::user))
    , appCorvellane_(folderBelow(applications_, "/Corvellane/"))
    , appSuppCorvellaneVideo_(folderBelow(applicationSupport_, "/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/"))
    , appSuppCorvellane_(folderBelow(applicationSupport_, "/Adobe/Plug-Ins/CC/Corvellane/"))
    , userAppSuppLR_(folderBelow(userApplicationSupport_, "/Adobe/Lightroom/"))
{
}

} // namespace corvellane
