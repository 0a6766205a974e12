#pragma once

class QAccessibleInterface;

namespace corvellane::view {

class ListView;

/// What assistive technology is told of a list: its rows are check boxes where they can be ticked, and items elsewhere.
/// Screen readers speak of a tick that changes in a check box alone. Owned by who asks.
QAccessibleInterface* makeListAccessibility(ListView& list);

} // namespace corvellane::view
