#pragma once

#include "base/Snapshot.h"
#include "rtf/AttributedText.h"
#include "view/Action.h"
#include "view/Metrics.h"

#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace corvellane::view {

/// The colours by their names; the host knows their tones.
enum class Tint { black, white, blue, gray, green, red, label, secondaryLabel, separator, windowBackground };

enum class Axis { horizontal, vertical };

/// Where what is smaller than its place stands in it; on the first line, in the middle of what the row is high when
/// every text has one line.
enum class Placement { leading, centre, firstLine };

/// The system's font at a size in points, at the desktop's standard text size; the host follows a larger one.
struct Font {
    double size = 13;
    bool bold = false;
    bool operator==(const Font&) const = default;
};

constexpr Font standardFont{13, false};
constexpr Font thirdTitleFont{15, false};

/// Draws nothing and takes no room; keeps the place of an element that comes and goes.
struct Nothing {
    bool operator==(const Nothing&) const = default;
};

/// Children one after the other; `across` places those that are narrower than the stack.
struct Stack {
    Axis axis = Axis::vertical;
    int spacing = standardSpacing;
    Placement across = Placement::centre;
    bool operator==(const Stack&) const = default;
};

/// Children in front of one another, the last one in front, centred or from the top-left corner. While a modal one is
/// shown, nothing behind it can be used.
struct Layers {
    Placement children = Placement::centre;
    bool modal = false;
    bool operator==(const Layers&) const = default;
};

/// Empty room along the stack that holds it.
struct Gap {
    int minimum = standardGap;
    int maximum = unbounded;
    bool operator==(const Gap&) const = default;
};

/// A filled area; takes every click and does nothing with it.
struct Fill {
    Tint tint = Tint::gray;
    double opacity = 1;
    bool operator==(const Fill&) const = default;
};

/// How those who do not see a text learn that it is new in the window: it is spoken, or takes the keyboard focus as
/// well.
enum class Announcement { none, spoken, focused };

/// Plain text, UTF-8. Wraps where it is offered less than its natural width.
struct Text {
    std::string text;
    /// Whether `text` is a key of the table of translated texts; otherwise it is shown as it stands.
    bool localizable = true;
    Font font = standardFont;
    Tint tint = Tint::label;
    Placement lines = Placement::leading;
    Announcement announcement = Announcement::none;
    /// A key of the table of translated texts; what else there is to say to those who do not see the window.
    std::string remark;
    bool operator==(const Text&) const = default;
};

/// A symbol image by its name; square, `size` points wide.
struct Symbol {
    std::string name;
    Tint tint = Tint::label;
    int size = 14;
    bool operator==(const Symbol&) const = default;
};

/// A single-colour image of the program's resources by its base name, stretched to its frame.
struct Image {
    std::string name;
    Tint tint = Tint::black;
    /// Words that stand in its place where there is no such image or it cannot be drawn; shown as they stand.
    std::string alternative;
    bool operator==(const Image&) const = default;
};

struct Button {
    enum class Style { push, emphasised, link };

    /// A key of the table of translated texts.
    std::string label;
    Action<void()> action;
    bool enabled = true;
    Style style = Style::push;
    /// The name of a symbol image in front of the label; empty for none.
    std::string symbol;
    bool operator==(const Button&) const = default;
};

/// A scrolling list of files or folders by their paths, a row each in the order of the paths: a symbol and the path's
/// last component, shown as it stands.
struct List {
    /// What the list is called for those who do not see it; shown as it stands.
    std::string name;
    Snapshot<std::vector<std::string>> paths;
    /// Whether each row is ticked; empty in a list whose rows cannot be.
    std::vector<bool> ticks;
    /// The symbol of the rows that are not ticked, and of those that are.
    Symbol plain;
    Symbol ticked;
    Font font = standardFont;
    /// Called with a path when its row is clicked; none in a list whose rows do not react.
    Action<void(const std::string&)> toggle;
    bool operator==(const List&) const = default;
};

/// Formatted text, read-only. Keeps the text it was first shown with for as long as it stays.
struct RichText {
    std::string name;
    Snapshot<rtf::AttributedText> text;
    bool operator==(const RichText&) const = default;
};

/// Unformatted text at its natural size that scrolls both ways; centred where it is smaller than the area.
struct LogArea {
    std::string name;
    /// UTF-8, or any bytes.
    Snapshot<std::string> text;
    bool operator==(const LogArea&) const = default;
};

/// Draws nothing. Ticks on the main thread, first one period after it has appeared, until `tick` gives false.
struct Timer {
    double seconds = 1;
    Action<bool()> tick;
    bool operator==(const Timer&) const = default;
};

using Element
    = std::variant<Nothing, Stack, Layers, Gap, Fill, Text, Symbol, Image, Button, List, RichText, LogArea, Timer>;

struct Padding {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const Padding&) const = default;
};

constexpr Padding onAllSides{standardPadding, standardPadding, standardPadding, standardPadding};
constexpr Padding onLeftAndRight{standardPadding, 0, standardPadding, 0};
constexpr Padding aboveAndBelow{0, standardPadding, 0, standardPadding};
constexpr Padding onTop{0, standardPadding, 0, 0};
constexpr Padding below{0, 0, 0, standardPadding};

/// Limits of a size in points. An absent one is that of the content. What the content cannot do without wins over
/// every limit, so nothing is ever cut off.
struct Frame {
    std::optional<int> minimumWidth;
    std::optional<int> maximumWidth;
    std::optional<int> minimumHeight;
    std::optional<int> maximumHeight;
    bool operator==(const Frame&) const = default;
};

/// What is drawn behind the content, over the frame.
struct Backdrop {
    std::optional<Tint> fill;
    int cornerRadius = 0;
    /// The colour of a line one point wide along the inside of the edges.
    std::optional<Tint> border;
    bool operator==(const Backdrop&) const = default;
};

/// A node of the tree that says what the window shows: an element, inside its frame, on its backdrop, inside its
/// padding. Built anew at every redraw and compared with the one before.
struct View {
    Element element;
    std::vector<View> children;
    Frame frame;
    Backdrop backdrop;
    Padding padding;
    /// Stacks offer spare length to the highest priority first.
    double priority = 0;
    /// Where it differs from that of the view at the same place before, the old one goes and a new one is made.
    std::string identity;

    bool operator==(const View&) const = default;

    View withFrame(Frame wanted) &&
    {
        frame = wanted;
        return std::move(*this);
    }
    View withSize(int width, int height) && { return std::move(*this).withFrame({width, width, height, height}); }
    View withPadding(Padding wanted) &&
    {
        padding = wanted;
        return std::move(*this);
    }
    View withBackdrop(Backdrop wanted) &&
    {
        backdrop = wanted;
        return std::move(*this);
    }
    View withPriority(double wanted) &&
    {
        priority = wanted;
        return std::move(*this);
    }
    View withIdentity(std::string wanted) &&
    {
        identity = std::move(wanted);
        return std::move(*this);
    }
};

} // namespace corvellane::view
