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

    std::string applications() const;
    std::string applicationSupport() const;
    std::string userApplicationSupport() const;

    /// The maker's own folder, which receives every installed element.
    std::string appCorvellane() const;
    /// Where the video applications look for plug-ins.
    std::string appSuppCorvellaneVideo() const;
    /// Where the photo applications look for plug-ins.
    std::string appSuppCorvellane() const;
    /// Lightroom's folder of the user.
    std::string userAppSuppLR() const;

private:
    struct LookUp {
        std::once_flag once;
        std::string folder;
    };

    std::string firstFolder(LookUp& lookUp, SearchDirectory directory, SearchDomain domain) const;

    const StandardFolders& folders_;
    mutable LookUp applications_;
    mutable LookUp applicationSupport_;
    mutable LookUp userApplicationSupport_;
};

} // namespace corvellane
