#pragma once

#include "view/qt/Mounted.h"
#include "view/qt/Slot.h"
#include "view/qt/Widgets.h"

#include <memory>

namespace corvellane::view {

/// Makes widgets for views, and changes them to what a new tree says. A view stays the same where the one at its place
/// before was of the same kind and identity: its widget then keeps focus, selection and scroll position.
class Reconciler {
public:
    explicit Reconciler(const Resources& resources)
        : widgets_(resources)
    {
    }

    /// Brings what is mounted to what `view` shows; true when anything at all had to be changed. An empty pointer is
    /// filled.
    bool update(std::unique_ptr<Mounted>& mounted, View view, QWidget* parent);

    /// Where a mounted view stands in its parent's layout.
    static Slot slotOf(const Mounted& mounted);

private:
    std::unique_ptr<Mounted> mount(View view, QWidget* parent);
    bool change(Mounted& mounted, View& view);
    bool updateChildren(Mounted& mounted, std::vector<View> children);
    static void arrange(Mounted& mounted);
    static void retire(Mounted& mounted);

    Widgets widgets_;
};

} // namespace corvellane::view
