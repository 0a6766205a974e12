#pragma once

#include "view/View.h"
#include "view/qt/Slot.h"

#include <QLayout>

#include <memory>
#include <variant>
#include <vector>

namespace corvellane::view {

/// Lays out the children of one view: a stack by the rules of `distribute`, or layers, which all have the same room.
class ViewLayout : public QLayout {
public:
    using Arrangement = std::variant<Stack, Layers>;

    explicit ViewLayout(QWidget* parent);
    ~ViewLayout() override;

    /// The children's widgets belong to the layout's parent.
    void arrange(Arrangement arrangement, std::vector<Slot> slotsOfChildren);

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
