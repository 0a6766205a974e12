#pragma once

#include "tools/Finding.h"

#include <map>
#include <set>
#include <string>
#include <utility>

namespace corvellane {

/// What is found while an installation runs, element after element, in the words of their maker: a path in an installed
/// element is told as it is called in the element, and what one cause brings about several times is told once.
class RunFindings {
public:
    /// The folder that elements are installed into, with "/" at its end.
    explicit RunFindings(std::string application)
        : application_(std::move(application))
    {
    }

    /// The maker's element whose commands run now; empty before the first.
    const std::string& element() const { return element_; }
    void begin(const std::string& element) { element_ = element; }

    /// There is no folder where a command needs one.
    void addMissing(const std::string& path);

    /// Something stands where a command makes a folder or a file.
    void addBlocked(const std::string& path);

    /// The maker's file is replaced by a text.
    void addRewritten(const std::string& origin);

    /// A folder is needed that others are expected to have made.
    void addAssumed(const std::string& folder);

    /// What stands at the path for an earlier element is replaced.
    void addOverwritten(const std::string& earlier, const std::string& path);

    /// What stands at the path for an earlier element is removed.
    void addRemoved(const std::string& earlier, const std::string& path);

    /// A command is none of an installation.
    void addRefused(const std::string& refusal);

    Findings finish();

private:
    struct Clash {
        std::string first;
        int count = 0;
    };

    std::string inElement(const std::string& path) const;

    std::string application_;
    std::string element_;
    /// By the elements, the earlier one first.
    std::map<std::pair<std::string, std::string>, Clash> clashes_;
    /// The folders that are missing or assumed.
    std::set<std::string> told_;
    Findings findings_;
};

} // namespace corvellane
