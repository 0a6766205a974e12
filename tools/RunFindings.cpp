#include "tools/RunFindings.h"

#include "base/PathNames.h"
#include "tools/PrintableText.h"

namespace corvellane {

void RunFindings::addMissing(const std::string& path)
{
    if (told_.insert(path).second) {
        findings_.push_back({"missing", element_, "lacks the folder " + inElement(path) + ", which the script needs"});
    }
}

void RunFindings::addBlocked(const std::string& path)
{
    findings_.push_back({"blocked", element_, "has something else at " + inElement(path) + ", which the script makes"});
}

void RunFindings::addRewritten(const std::string& origin)
{
    findings_.push_back({"rewritten", origin, "is written anew by the installation"});
}

void RunFindings::addAssumed(const std::string& folder)
{
    if (told_.insert(folder).second) {
        findings_.push_back({"assumed", folder + "/",
            "is not created by the script when these products are installed together; it must be there already"});
    }
}

void RunFindings::addOverwritten(const std::string& earlier, const std::string& path)
{
    Clash& clash = clashes_[{earlier, element_}];
    clash.first = clash.count++ == 0 ? path : clash.first;
}

void RunFindings::addRemoved(const std::string& earlier, const std::string& path)
{
    findings_.push_back({"removed", earlier,
        "loses " + quotedPrintable(path) + " again when " + quotedPrintable(element_)
            + " is installed, which supersedes it"});
}

void RunFindings::addRefused(const std::string& refusal)
{
    findings_.push_back({"refused", element_, "is refused by what carries commands out: " + refusal});
}

Findings RunFindings::finish()
{
    for (const auto& [elements, clash] : clashes_) {
        const std::string more = clash.count > 1 ? " and " + std::to_string(clash.count - 1) + " more" : "";
        findings_.push_back({"overwritten", elements.second,
            "is installed over what " + quotedPrintable(elements.first)
                + " has installed: " + quotedPrintable(clash.first) + more});
    }
    return std::move(findings_);
}

std::string RunFindings::inElement(const std::string& path) const
{
    const std::string installed = application_ + std::string(lastPathComponent(element_)) + "/";
    return quotedPrintable(path.starts_with(installed) ? path.substr(installed.size()) : path);
}

} // namespace corvellane
