#pragma once

#include "helper/RunnerMessages.h"

#include <algorithm>

namespace corvellane::runner {

/// The beginning and the end of a text that may be longer than what is kept, with a line between the two that says how
/// many bytes are missing: `longestText` at most.
class Excerpt {
public:
    void add(std::string_view bytes)
    {
        const auto first = bytes.substr(0, part - beginning_.size());
        beginning_ += first;
        end_ += bytes.substr(first.size());
        if (end_.size() > 2 * part) {
            shorten();
        }
    }

    std::string text() &&
    {
        if (end_.size() > part) {
            shorten();
        }
        if (missing_ > 0) {
            beginning_ += "\n[" + std::to_string(missing_) + " bytes are missing here]\n";
        }
        return std::move(beginning_ += end_);
    }

private:
    static constexpr std::size_t part = longestText / 2 - 64;

    void shorten()
    {
        const std::size_t excess = end_.size() - part;
        end_.erase(0, excess);
        missing_ += excess;
    }

    std::string beginning_;
    std::string end_;
    std::size_t missing_ = 0;
};

} // namespace corvellane::runner
