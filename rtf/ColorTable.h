#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace corvellane::rtf {

/// RTF's colour table. A colour is 0x01RRGGBB, or 0 for an entry without parts, which stands for none.
class ColorTable {
public:
    /// Sets the part that lies `shift` bits up in the entry that is being written.
    void setPart(std::int32_t part, std::int32_t shift)
    {
        const auto value = static_cast<std::uint32_t>(std::clamp(part, 0, 255));
        entry_
            = (entry_ & ~(0xFFU << static_cast<unsigned>(shift))) | value << static_cast<unsigned>(shift) | 0x01000000U;
    }

    void finishEntry()
    {
        colors_.push_back(entry_);
        entry_ = 0;
    }

    /// None for an index below zero or beyond the table, too.
    std::uint32_t color(std::int32_t index) const
    {
        const auto place = static_cast<std::size_t>(index);
        return place < colors_.size() ? colors_[place] : 0;
    }

private:
    std::vector<std::uint32_t> colors_;
    std::uint32_t entry_ = 0;
};

} // namespace corvellane::rtf
