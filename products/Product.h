#pragma once

#include "platform/StandardFolders.h"

#include <mutex>
#include <string>

namespace corvellane {

/// The places that products are installed into, as path texts. The three base folders have no trailing "/" and are
/// empty when the system names none; the four derived folders always end with "/". The system is asked for each base
/// folder at its first reading and never again; any thread may read.
class Product {
public:
    /// The folders must outlive the product.
    explicit Product(const StandardFolders& folders)
        : folders_(folders)
    {
    }

    std::string applications() const { return path(applications_); }
    std::string applicationSupport() const { return path(applicationSupport_); }
    std::string userApplicationSupport() const { return path(userApplicationSupport_); }

    /// The maker's own folder, which receives every installed element.
    std::string appCorvellane() const;
    /// Where the video applications look for plug-ins.
    std::string appSuppCorvellaneVideo() const;
    /// Where the photo applications look for plug-ins.
    std::string appSuppCorvellane() const;
    /// Lightroom's folder of the user.
    std::string userAppSuppLR() const;

private:
    struct BaseFolder {
        SearchDirectory directory;
        SearchDomain domain;
        std::once_flag asked{};
        std::string path{};
    };

    const std::string& path(BaseFolder& base) const;

    const StandardFolders& folders_;
    mutable BaseFolder applications_{SearchDirectory::applications, SearchDomain::local};
    mutable BaseFolder applicationSupport_{SearchDirectory::applicationSupport, SearchDomain::local};
    mutable BaseFolder userApplicationSupport_{SearchDirectory::applicationSupport, SearchDomain::user};
};

} // namespace corvellane
