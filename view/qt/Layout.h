#pragma once

#include "view/StackLayout.h"
#include "view/View.h"

#include <QWidget>

#include <optional>
#include <variant>
#include <vector>

namespace corvellane::view {

class Panel;

/// A widget that knows which sizes it can take, in device-independent pixels.
class Measurable {
public:
    virtual ~Measurable() = default;
    virtual Extent widthExtent() const = 0;
    /// At a width within its own extent.
    virtual Extent heightExtent(int width) const = 0;
};

/// What stands in the window for a view.
struct Standing {
    /// Null for views that draw nothing and hold nothing.
    QWidget* widget = nullptr;
    /// The widget's sizes; a widget without them takes every size.
    const Measurable* sizes = nullptr;
    /// The widget of a view that holds others.
    Panel* panel = nullptr;
    bool takesRoom = true;
};

/// A child's place in its parent's layout: its widget, or the gap it stands for, with frame and padding around it.
struct Slot {
    Standing standing;
    Gap gap;
    Frame frame;
    Padding padding;
    double priority = 0;

    /// With the padding.
    Extent widthExtent() const;
    Extent heightExtent(int width) const;

    /// Gives the widget its share of `cell`, without the padding; what it cannot fill is left at the sides. Positions
    /// are those of text from left to right, and mirrored in `whole` for the other direction.
    void place(const QRect& cell, Placement horizontally, Placement vertically, const QRect& whole) const;

private:
    int innerWidth(int width) const;
};

/// The widget of a view that holds others: draws the view's backdrop and lays out the children, a stack by the rules of
/// `distribute`, or layers, which all have the same room; from the side where the text begins.
class Panel : public QWidget, public Measurable {
public:
    using Arrangement = std::variant<Stack, Layers>;

    explicit Panel(QWidget* parent)
        : QWidget(parent)
    {
    }

    /// A modal panel lets no click through to what lies behind it, and is a dialogue to those who do not see it.
    void present(const Arrangement& arrangement, const Backdrop& backdrop, bool modal);
    bool isModal() const { return modal_; }

    /// The children in their order; their widgets belong to this one.
    void arrange(std::vector<Slot> slotsOfChildren);

    /// Lays out everything below this at the present size, where it is not laid out so already.
    void layOut();

    Extent widthExtent() const override;
    Extent heightExtent(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Heights {
        int width = 0;
        Extent extent;
    };

    const Stack* stack() const { return std::get_if<Stack>(&arrangement_); }
    bool isAlong(Axis axis) const { return stack() != nullptr && stack()->axis == axis; }
    void showBackdrop(const Backdrop& backdrop);
    void forgetSizes();
    int spacing() const;
    Extent extentOf(const Slot& slot, Axis axis, int width) const;
    Extent contentExtent(Axis axis, int width) const;
    std::vector<int> lengths(const Stack& stack, const QSize& area) const;
    void placeStack(const Stack& stack, const QRect& area) const;
    QRect firstLine(const Slot& slot, const QRect& cell, const QRect& area) const;

    Arrangement arrangement_;
    std::vector<Slot> slots_;
    Backdrop backdrop_;
    bool modal_ = false;
    /// The area that the children are laid out in; null where they are not.
    QRect laidOut_;
    /// What was last asked for; every panel asks those inside it several times.
    mutable std::optional<Extent> widths_;
    mutable std::optional<Heights> heights_;
};

} // namespace corvellane::view
