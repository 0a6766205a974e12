#include "products/Product.h"

namespace corvellane {

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

const std::string& Product::path(BaseFolder& base) const
{
    std::call_once(base.asked, [&] {
        const auto paths = folders_.searchPaths(base.directory, base.domain);
        base.path = paths.empty() ? "" : paths.front();
    });
    return base.path;
}

} // namespace corvellane
