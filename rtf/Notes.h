#pragma once

#include "rtf/Lists.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace corvellane::rtf {

/// Counts footnotes and endnotes, and says where the last mark of one stands in the text.
class Notes {
public:
    struct Count {
        /// Of the last note with a number.
        std::int32_t number = 0;
        /// A ListLevel::Kind.
        std::int32_t kind = ListLevel::decimal;
    };

    Count footnotes;
    Count endnotes;

    /// The number for a mark in the text, which stands from `begin` on.
    std::string beginMark(std::size_t begin)
    {
        markBegin_ = begin;
        last_ = &footnotes;
        return text(++footnotes.number);
    }
    void endMark(std::size_t end) { markEnd_ = end; }

    /// The mark that was put last, for a note within it.
    std::string mark() const { return text(last_->number); }

    /// The last mark is that of an endnote; gives the new one.
    std::string moveToEndnotes()
    {
        --footnotes.number;
        last_ = &endnotes;
        return text(++endnotes.number);
    }

    /// Where the last mark stands in the text.
    std::size_t markBegin() const { return markBegin_; }
    std::size_t markEnd() const { return markEnd_; }

private:
    std::string text(std::int32_t number) const { return numberText(number, last_->kind); }

    Count* last_ = &footnotes;
    std::size_t markBegin_ = 0;
    std::size_t markEnd_ = 0;
};

} // namespace corvellane::rtf
