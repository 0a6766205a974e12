#include "products/Product.h"

namespace corvellane {

std::string Product::applications() const
{
    return firstFolder(applications_, SearchDirectory::applications, SearchDomain::local);
}

std::string Product::applicationSupport() const
{
    return firstFolder(applicationSupport_, SearchDirectory::applicationSupport, SearchDomain::local);
}

std::string Product::userApplicationSupport() const
{
    return firstFolder(userApplicationSupport_, SearchDirectory::applicationSupport, SearchDomain::user);
}

std::string Product::appCorvellane() const
{
    return applications() + "/Corvellane/";
}

std::string Product::appSuppCorvellaneVideo() const
{
    return applicationSupport() + "/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/";
}

std::string Product::appSuppCorvellane() const
{
    return applicationSupport() + "/Adobe/Plug-Ins/CC/Corvellane/";
}

std::string Product::userAppSuppLR() const
{
    return userApplicationSupport() + "/Adobe/Lightroom/";
}

std::string Product::firstFolder(LookUp& lookUp, SearchDirectory directory, SearchDomain domain) const
{
    std::call_once(lookUp.once, [&] {
        const auto folders = folders_.searchPaths(directory, domain);
        lookUp.folder = folders.empty() ? "" : folders.front();
    });
    return lookUp.folder;
}

} // namespace corvellane
