#pragma once

#include "rtf/AttributedText.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace corvellane::rtf {

/// RTF's colour table. An entry without parts stands for no colour. Of more than 65,536 entries only the first count.
class ColorTable {
public:
    /// Sets a part of the entry that is being written.
    void setPart(std::uint8_t Color::* part, std::int32_t value)
    {
        entry_.*part = static_cast<std::uint8_t>(std::clamp(value, 0, 255));
        entry_.isSet = true;
    }

    void finishEntry()
    {
        if (colors_.size() < mostColors) {
            colors_.push_back(entry_);
        }
        entry_ = {};
    }

    /// None for an index below zero or beyond the table, too.
    Color color(std::int32_t index) const
    {
        const auto place = static_cast<std::size_t>(index);
        return place < colors_.size() ? colors_[place] : Color();
    }

private:
    static constexpr std::size_t mostColors = 65536;

    std::vector<Color> colors_;
    Color entry_;
};

} // namespace corvellane::rtf
