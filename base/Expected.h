#pragma once

#include <tl/expected.hpp>

#include <string>

namespace corvellane {

/// Why something could not be done.
struct Failure {
    /// For a person.
    std::string message;
    /// What programs tell failures apart by: an error number of the system's or of the scripts', or 0.
    int number = 0;
};

/// What was wanted, or why it is not to be had. The one way in which failure travels: nothing throws across folders.
template <typename Value, typename Reason = Failure>
using Expected = tl::expected<Value, Reason>;

/// For returning a failure where an Expected is wanted.
using Unexpected = tl::unexpected<Failure>;

} // namespace corvellane
