#pragma once

#include "rtf/CodePage.h"

#include <map>
#include <memory>

namespace corvellane::rtf {

/// The code pages of a document, each opened when it is first asked for.
class CodePages {
public:
    /// Null for a page that cannot be had.
    CodePage* find(int number)
    {
        const auto [place, isNew] = pages_.try_emplace(number);
        if (isNew) {
            place->second = CodePage::open(number);
        }
        return place->second.get();
    }

    /// The page, or else the second one, or else ASCII.
    CodePage& findOr(int number, int substitute)
    {
        for (const int candidate : {number, substitute}) {
            if (CodePage* const page = find(candidate)) {
                return *page;
            }
        }
        return ascii_;
    }

private:
    std::map<int, std::unique_ptr<CodePage>> pages_;
    CodePage ascii_{
        U" !\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~"};
};

} // namespace corvellane::rtf
