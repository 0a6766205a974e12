#pragma once

#include <functional>
#include <mutex>
#include <string>

namespace corvellane {

class StandardFolders;

/// A text that is worked out at its first reading, once, whichever threads read it.
class LazyText {
public:
    explicit LazyText(std::function<std::string()> compute)
        : compute_(std::move(compute))
    {
    }

    const std::string& get() const
    {
        std::call_once(computed_, [this] { text_ = compute_(); });
        return text_;
    }

private:
    std::function<std::string()> compute_;
    mutable std::once_flag computed_;
    mutable std::string text_;
};

/// The places that products are installed into, as path texts. The three base folders have no trailing "/" and are
/// empty when the system names none; the four derived folders always end with "/". Each is asked for at most once;
/// any thread may read.
class Product {
public:
    /// The folders must outlive the product.
    explicit Product(const StandardFolders& folders);
    Product(const Product&) = delete;
    Product& operator=(const Product&) = delete;

    const std::string& applications() const { return applications_.get(); }
    const std::string& applicationSupport() const { return applicationSupport_.get(); }
    const std::string& userApplicationSupport() const { return userApplicationSupport_.get(); }

    /// The maker's own folder, which receives every installed element.
    const std::string& appCorvellane() const { return appCorvellane_.get(); }
    /// Where the video applications look for plug-ins.
    const std::string& appSuppCorvellaneVideo() const { return appSuppCorvellaneVideo_.get(); }
    /// Where the photo applications look for plug-ins.
    const std::string& appSuppCorvellane() const { return appSuppCorvellane_.get(); }
    /// Lightroom's folder of the user.
    const std::string& userAppSuppLR() const { return userAppSuppLR_.get(); }

private:
    LazyText applications_;
    LazyText applicationSupport_;
    LazyText userApplicationSupport_;
    LazyText appCorvellane_;
    LazyText appSuppCorvellaneVideo_;
    LazyText appSuppCorvellane_;
    LazyText userAppSuppLR_;
};

} // namespace corvellane
