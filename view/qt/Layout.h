#pragma once

#include "view/StackLayout.h"
#include "view/View.h"

#include <QLayout>
#include <QRect>

#include <memory>
#include <variant>
#include <vector>

class QWidget;

namespace corvellane::view {

/// A widget that knows which sizes it can take, in device-independent pixels.
class Measurable {
public:
    virtual ~Measurable() = default;
    virtual Extent widthExtent() const = 0;
    /// At a width within its own extent.
    virtual Extent heightExtent(int width) const = 0;
};

/// A widget that is no Measurable takes every size.
Extent widthExtentOf(const QWidget& widget);
Extent heightExtentOf(const QWidget& widget, int width);

/// A child's place in its parent's layout: its widget, or the gap it stands for, with frame and padding around it.
struct Slot {
    /// Absent for a gap.
    QWidget* widget = nullptr;
    Gap gap;
    Frame frame;
    Padding padding;
    double priority = 0;

    bool operator==(const Slot&) const = default;

    /// With the padding.
    Extent widthExtent() const;
    Extent heightExtent(int width) const;

    /// Gives the widget its share of `cell`, without the padding; what it cannot fill is left at the sides.
    void place(const QRect& cell, Placement horizontally, Placement vertically) const;

private:
    int innerWidth(int width) const;
};

/// Lays out the children of one view: a stack by the rules of `distribute`, or layers, which all have the same room.
class ViewLayout : public QLayout {
public:
    using Arrangement = std::variant<Stack, Layers>;

    explicit ViewLayout(QWidget* parent);
    ~ViewLayout() override;

    /// The children's widgets belong to the layout's parent.
    void arrange(std::vector<Slot> slotsOfChildren);
    void setArrangement(const Arrangement& arrangement);

    Extent widthExtent() const;
    Extent heightExtent(int width) const;

    /// Lays out everything below this at the present size, where it has been invalidated.
    void layOut();

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;
    void invalidate() override;

private:
    const Stack* stack() const { return std::get_if<Stack>(&arrangement_); }
    int spacingOf(const Stack& stack) const;
    Extent extentOf(const Slot& slot, Axis axis, int width) const;
    Extent extent(Axis axis, int width) const;
    std::vector<int> lengths(const Stack& stack, const QRect& area) const;
    void placeStack(const Stack& stack, const QRect& area) const;

    Arrangement arrangement_;
    std::vector<Slot> slots_;
    std::vector<std::unique_ptr<QLayoutItem>> items_;
    bool valid_ = false;
};

} // namespace corvellane::view
