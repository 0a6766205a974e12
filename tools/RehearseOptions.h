#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace corvellane {

constexpr const char* rehearseUsage
    = "usage: rehearse [--script] [--into FOLDER] [--select NAME]... PRODUCTS, or rehearse "
      "--agreement FILE, or rehearse --agreement-text FILE";

/// What the command line asks of a rehearsal.
struct RehearseOptions {
    enum class Subject { products, agreement, agreementText, usage };

    Subject subject = Subject::products;
    /// The file of the two subjects that are an agreement.
    std::string agreement;
    bool script = false;
    /// An absolute path without a trailing "/", with which every host folder begins; empty for the root folder.
    std::optional<std::string> into;
    /// The names of the products to tick; all of them when there is none.
    std::vector<std::string> select;
    /// An absolute path without a trailing "/".
    std::string productsFolder;
};

/// One line that says what is wrong with the command line.
struct UsageError {
    std::string message;
};

/// `arguments` without the program's name. Paths may be relative to the working directory.
std::variant<RehearseOptions, UsageError> parseOptions(const std::vector<std::string>& arguments);

} // namespace corvellane
