#pragma once

#include <string>

namespace corvellane {

class Product;

/// The folders that an installation writes to; each ends with "/".
struct HostPaths {
    /// Receives every element.
    std::string application;
    /// Receives links to the video elements.
    std::string video;
    /// Receives links to the photo elements.
    std::string photo;
    /// Receives the Lightroom elements' presets and a link to their plug-in.
    std::string lightroom;
};

/// Those that the system names.
HostPaths hostPathsOf(const Product& product);

} // namespace corvellane
