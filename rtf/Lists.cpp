#include "rtf/Lists.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>
#include <utility>

namespace corvellane::rtf {
namespace {

/// Numbers of lists that paragraphs describe themselves lie above those of the tables.
constexpr std::uint16_t firstNumbering = 0x8000;
/// Where there are so many lists, no numbering of paragraphs' own is added to them.
constexpr std::size_t mostNumberings = 512;
constexpr std::int32_t mostRoman = 3999;
constexpr std::int32_t mostLetters = 26 * 8;

std::string roman(std::int32_t number)
{
    static constexpr auto digits = std::to_array<std::pair<std::int32_t, std::string_view>>({
        {1000, "m"},
        {900, "cm"},
        {500, "d"},
        {400, "cd"},
        {100, "c"},
        {90, "xc"},
        {50, "l"},
        {40, "xl"},
        {10, "x"},
        {9, "ix"},
        {5, "v"},
        {4, "iv"},
        {1, "i"},
    });
    std::string text;
    for (const auto& [value, digit] : digits) {
        for (; number >= value; number -= value) {
            text += digit;
        }
    }
    return text;
}

/// After z comes aa, then bb.
std::string letters(std::int32_t number)
{
    std::string text;
    text.append(static_cast<std::size_t>((number - 1) / 26) + 1, static_cast<char>('a' + ((number - 1) % 26)));
    return text;
}

std::string inCapitals(std::string text)
{
    std::ranges::transform(text, text.begin(), [](char letter) { return static_cast<char>(letter - 'a' + 'A'); });
    return text;
}

std::string ordinal(std::int32_t number)
{
    static constexpr std::array<const char*, 4> endings{"th", "st", "nd", "rd"};
    const auto last = static_cast<std::size_t>(number % 10);
    const bool isTeen = number % 100 / 10 == 1;
    return std::to_string(number) + (isTeen || last >= endings.size() ? endings[0] : endings.at(last));
}

bool isCounted(std::int32_t kind)
{
    return kind != ListLevel::bullet && kind != ListLevel::none;
}

} // namespace

std::string numberText(std::int32_t number, std::int32_t kind)
{
    const bool isRoman = number > 0 && number <= mostRoman;
    const bool isLetter = number > 0 && number <= mostLetters;
    if (kind == ListLevel::upperRoman && isRoman) {
        return inCapitals(roman(number));
    }
    if (kind == ListLevel::lowerRoman && isRoman) {
        return roman(number);
    }
    if (kind == ListLevel::upperLetter && isLetter) {
        return inCapitals(letters(number));
    }
    if (kind == ListLevel::lowerLetter && isLetter) {
        return letters(number);
    }
    if (kind == ListLevel::ordinal && number > 0) {
        return ordinal(number);
    }
    const bool isPadded = kind == ListLevel::padded && number >= 0 && number < 10;
    std::string text(isPadded ? 1 : 0, '0');
    text += std::to_string(number);
    return text;
}

void Lists::beginList()
{
    isOverride_ = false;
    if (lists_.size() <= mostLists) {
        lists_.emplace_back();
    } else {
        lists_.back() = {};
    }
}

void Lists::beginOverride()
{
    isOverride_ = true;
    overrideId_ = 0;
    overrideLevel_ = -1;
    starts_.clear();
}

/// No more ids are kept than there are lists.
void Lists::setId(std::int32_t id)
{
    if (isOverride_) {
        overrideId_ = id;
    } else if (lists_.size() <= mostLists && placesOfIds_.size() < lists_.size()) {
        placesOfIds_.try_emplace(id, lists_.size() - 1);
    }
}

void Lists::setNumber(std::int32_t number)
{
    const auto place = placesOfIds_.find(overrideId_);
    if (isOverride_ && place != placesOfIds_.end() && number > 0 && number < mostLists) {
        uses_[static_cast<std::uint16_t>(number)] = {.list = place->second, .starts = std::move(starts_)};
        starts_.clear();
    }
}

void Lists::beginLevel()
{
    level_ = {};
}

void Lists::setStart(std::int32_t start)
{
    level_.start = start;
    if (isOverride_ && overrideLevel_ >= 0 && overrideLevel_ < mostLevels) {
        starts_.resize(static_cast<std::size_t>(overrideLevel_) + 1, std::numeric_limits<std::int32_t>::min());
        starts_.back() = start;
    }
}

/// The text begins with its own length, and ends with what some writers put behind it. What stands in it for numbers
/// that no item of the level ever has is dropped, so that all of it shows.
void Lists::endLevel()
{
    if (isOverride_ || lists_.empty() || lists_.back().levels.size() == mostLevels) {
        return;
    }
    std::vector<ListLevel>& levels = lists_.back().levels;
    std::string& text = levels.emplace_back(std::exchange(level_, {})).text;
    const auto continues = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80; };
    text.erase(text.begin(), std::find_if_not(text.begin() + (text.empty() ? 0 : 1), text.end(), continues));
    if (text.ends_with(';')) {
        text.pop_back();
    }
    std::erase_if(text, [&](char byte) {
        const auto place = static_cast<unsigned char>(byte);
        return place < mostLevels && (place >= levels.size() || !isCounted(levels[place].kind));
    });
}

void Lists::beginNumbering()
{
    level_ = {.follow = 0, .text = {}};
    numberingLevel = 0;
    before.clear();
    after.clear();
}

/// Equal descriptions are one list.
std::uint16_t Lists::endNumbering()
{
    level_.text = isCounted(level_.kind) ? before + '\0' + after : before + after;
    if (level_.kind == ListLevel::none && level_.text.empty()) {
        return 0;
    }
    const Numbering numbering{numberingLevel, level_.kind, level_.start, level_.text};
    const auto known = numberings_.find(numbering);
    if (known != numberings_.end()) {
        return known->second;
    }
    if (lists_.size() >= mostNumberings) {
        return 0;
    }
    const auto number = static_cast<std::uint16_t>(firstNumbering + lists_.size());
    uses_.try_emplace(number, Use{.list = lists_.size(), .starts = {}});
    lists_.push_back({.levels = {std::move(level_)}, .numbers = {}, .numberingLevel = numberingLevel});
    return numberings_.emplace(numbering, number).first->second;
}

const Lists::Use* Lists::useOf(std::uint16_t number) const
{
    const auto found = uses_.find(number);
    return found == uses_.end() ? nullptr : &found->second;
}

const ListLevel* Lists::levelOf(const ParagraphFormat& paragraph) const
{
    const Use* const use = paragraph.list != 0 ? useOf(paragraph.list) : nullptr;
    if (use == nullptr || lists_[use->list].levels.size() <= paragraph.listLevel) {
        return nullptr;
    }
    return &lists_[use->list].levels[paragraph.listLevel];
}

/// Numbering of the paragraphs' own goes on where the last paragraph was of the same, or of one within it.
bool Lists::continues(const List& list, std::uint16_t number, std::uint8_t depth) const
{
    if (list.numbers.size() <= depth) {
        return false;
    }
    if (!list.numberingLevel || previous_ == number) {
        return true;
    }
    const Use* const previous = previous_ >= firstNumbering ? useOf(previous_) : nullptr;
    return previous != nullptr && lists_[previous->list].numberingLevel > list.numberingLevel;
}

void Lists::count(List& list, Use& use, std::uint8_t depth)
{
    const bool startsAnew = !std::exchange(use.isBegun, true) && !use.starts.empty();
    if (startsAnew) {
        list.numbers.clear();
    }
    const auto startOf = [&](std::size_t level) {
        const bool isSet = level < use.starts.size() && use.starts[level] != std::numeric_limits<std::int32_t>::min();
        return isSet ? use.starts[level] : list.levels[level].start;
    };
    if (list.numbers.size() > depth) {
        list.numbers.resize(depth + std::size_t{1});
        list.numbers.back() = static_cast<std::int32_t>(static_cast<std::uint32_t>(list.numbers.back()) + 1U);
        return;
    }
    while (list.numbers.size() <= depth) {
        list.numbers.push_back(startOf(list.numbers.size()));
    }
}

/// The text before an item of the level, with the numbers that the list has come to.
std::string Lists::textOf(const ListLevel& level, const List& list)
{
    std::string text;
    for (const char byte : level.text) {
        const auto place = static_cast<unsigned char>(byte);
        if (place >= mostLevels) {
            text += byte;
        } else {
            text += numberText(list.numbers[place], level.isLegal ? ListLevel::decimal : list.levels[place].kind);
        }
    }
    return text;
}

ListMarker Lists::nextMarker(const ParagraphFormat& item)
{
    const ListLevel* const level = levelOf(item);
    if (level == nullptr) {
        return {};
    }
    Use& use = uses_[item.list];
    List& list = lists_[use.list];
    if (list.numberingLevel && !continues(list, item.list, item.listLevel)) {
        list.numbers.clear();
    }
    count(list, use, item.listLevel);
    ListMarker marker{.text = textOf(*level, list), .font = level->font};
    if (!marker.text.empty() && level->follow < 2) {
        marker.text += level->follow == 0 ? '\t' : ' ';
    }
    return marker;
}

} // namespace corvellane::rtf
