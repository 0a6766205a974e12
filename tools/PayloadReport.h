#pragma once

#include "install/ElementKind.h"
#include "platform/Files.h"
#include "products/ProductSelection.h"
#include "tools/Finding.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace corvellane {

struct ElementReport {
    std::string path;
    ElementKind kind = ElementKind::photo;
    /// The host's folder that gets its links.
    std::string target;
    /// Of elements for Lightroom.
    std::optional<LightroomGeneration> generation;
    /// The names of the bundles that it removes; of video elements.
    std::vector<std::string> supersedes;
    std::uintmax_t files = 0;
    /// Of its files, in bytes.
    std::uintmax_t size = 0;
};

struct ProductReport {
    std::string path;
    std::vector<ElementReport> elements;
};

/// What installing a selection would do.
struct PayloadReport {
    /// In display order, elements in the order they are installed in.
    std::vector<ProductReport> products;
    /// The gravest first, and those alike by their paths.
    Findings findings;
};

/// The bytes that are free where a folder is or will be; absent when nobody can tell.
using RoomAt = std::function<std::optional<std::uintmax_t>(const std::string& folder)>;

/// What this machine has.
std::optional<std::uintmax_t> roomAt(const std::string& folder);

/// Reads the whole payload of the ticked products, carries the script for them out on a model of it and of the host
/// folders, and changes nothing.
PayloadReport reportPayload(const Files& files, const std::string& productsFolder, const ProductSelection& selection,
    const HostPaths& hosts, const RoomAt& room = &roomAt);

} // namespace corvellane
