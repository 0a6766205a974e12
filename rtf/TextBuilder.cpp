#include "rtf/TextBuilder.h"

#include <algorithm>
#include <utility>

namespace corvellane::rtf {
namespace {

constexpr std::uint16_t mostTabs = 64;
constexpr std::uint32_t mostCells = 128;

/// No byte of any code page takes more room in UTF-8.
constexpr std::size_t mostGrowth = 4;

/// No file that is written for its text has more looks than these, or changes them more often.
constexpr std::size_t fewLooks = 4096;

std::size_t mostLooks(std::size_t size)
{
    return fewLooks + (size / 1024);
}

std::size_t mostStretches(std::size_t size)
{
    return fewLooks + (size / 8);
}

std::uint32_t lengthOf(const std::string& text)
{
    return static_cast<std::uint32_t>(text.size());
}

/// Different fonts may be faces of one family, and a face may be bold by itself.
TextAttributes lookOfState(const CharacterState& state, const FontTable& fonts)
{
    const Font& font = fonts.font(state.font);
    TextAttributes look = state.look;
    look.family = font.family;
    look.bold = look.bold || font.bold;
    look.italic = look.italic || font.italic;
    return look;
}

void append(std::vector<Stretch>& to, std::vector<Stretch>& from, std::uint32_t by)
{
    for (const Stretch& stretch : from) {
        to.push_back({stretch.end + by, stretch.index});
    }
}

} // namespace

TextBuilder::TextBuilder(std::size_t size)
    : most_(mostStretches(size))
    , characters_(mostLooks(size))
    , paragraphs_(mostLooks(size))
    , looks_(mostLooks(size))
    , tabs_(mostLooks(size))
    , rowFormats_(mostLooks(size))
    , cellFormats_(mostLooks(size))
{
    body_.text.reserve(size * mostGrowth);
    body_.runs.reserve(most_);
    body_.formats.reserve(most_);
}

std::uint32_t TextBuilder::addLookOf(std::uint32_t character, const FontTable& fonts)
{
    looksOfCharacters_.resize(characters_.values().size());
    const std::uint32_t look = looks_.index(lookOfState(characters_[character], fonts));
    looksOfCharacters_[character] = 1 + look;
    return look;
}

void TextBuilder::replaceEnd(std::size_t from, std::string_view end)
{
    part_->text.resize(from);
    part_->text += end;
    if (!part_->runs.empty() && part_->runs.back().end > from) {
        part_->runs.back().end = static_cast<std::uint32_t>(part_->text.size());
    }
}

void TextBuilder::endRun()
{
    std::vector<Stretch>& runs = part_->runs;
    const std::uint32_t end = lengthOf(part_->text);
    if (end != (runs.empty() ? 0 : runs.back().end)) {
        extend(runs, end, part_->look);
    }
}

/// Up to `end` the text has that index, or goes on as before where it has changed too often.
void TextBuilder::extend(std::vector<Stretch>& stretches, std::uint32_t end, std::uint32_t index) const
{
    if (!stretches.empty() && (stretches.back().index == index || stretches.size() == most_)) {
        stretches.back().end = end;
    } else {
        stretches.push_back({end, index});
    }
}

void TextBuilder::endParagraph(char mark, std::uint32_t character, std::uint32_t paragraph, const FontTable& fonts)
{
    beginRun(character, fonts);
    part_->text += mark;
    part_->paragraphBegin = part_->text.size();
    extend(part_->formats, lengthOf(part_->text), paragraph);
}

void TextBuilder::endRow(const RowFormat& row)
{
    part_->text += mark::row;
    part_->paragraphBegin = part_->text.size();
    part_->formats.back().end = lengthOf(part_->text);
    part_->rows.push_back(rowFormats_.index(row));
}

std::uint32_t TextBuilder::addOtherTab(TabStop stop)
{
    stop.count = stop.previous != 0 ? static_cast<std::uint16_t>(tabs_[stop.previous - 1].count + 1) : std::uint16_t{1};
    if (stop.count > mostTabs) {
        return stop.previous;
    }
    const std::uint32_t added = 1 + tabs_.index(stop);
    nextTabs_[stop.previous] = added;
    nextTabs_.resize(tabs_.values().size() + 1);
    return added;
}

std::uint32_t TextBuilder::addCell(CellFormat cell)
{
    cell.count = cell.previous != 0 ? cellFormats_[cell.previous - 1].count + 1 : 1;
    return cell.count > mostCells ? cell.previous : 1 + cellFormats_.index(cell);
}

std::uint32_t TextBuilder::addLink(std::string target)
{
    links_.push_back(std::move(target));
    return static_cast<std::uint32_t>(links_.size());
}

std::uint32_t TextBuilder::addPicture(Picture picture)
{
    pictures_.push_back(std::move(picture));
    return static_cast<std::uint32_t>(pictures_.size());
}

void TextBuilder::appendNotes()
{
    append(body_.runs, notes_.runs, lengthOf(body_.text));
    append(body_.formats, notes_.formats, lengthOf(body_.text));
    body_.rows.insert(body_.rows.end(), notes_.rows.begin(), notes_.rows.end());
    body_.text += notes_.text;
}

AttributedText TextBuilder::take(FontTable& fonts)
{
    for (const bool ofNotes : {true, false}) {
        writeNotes(ofNotes);
        endRun();
    }
    appendNotes();
    AttributedText result;
    result.text = std::move(body_.text);
    result.runs = std::move(body_.runs);
    result.formatStretches = std::move(body_.formats);
    result.rows = std::move(body_.rows);
    result.attributes = looks_.take();
    result.formats = paragraphs_.take();
    result.tabStops = tabs_.take();
    result.rowFormats = rowFormats_.take();
    result.cellFormats = cellFormats_.take();
    result.links = std::move(links_);
    result.pictures = std::move(pictures_);
    result.families = fonts.takeFamilies();
    return result;
}

} // namespace corvellane::rtf
