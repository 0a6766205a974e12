#pragma once

#include "base/Signal.h"

#include <utility>

namespace corvellane {

/// A value whose every write is announced by a signal, once, before the new value is stored. Equal values are
/// announced too; reading announces nothing. The signal must outlive the observable.
template <typename Value>
class Observable {
public:
    Observable(Signal& willChange, Value initial)
        : willChange_(willChange)
        , value_(std::move(initial))
    {
    }

    const Value& get() const { return value_; }

    void set(Value value)
    {
        willChange_.emit();
        value_ = std::move(value);
    }

    /// Changes the value in place: `change` is called with a reference to it, after one announcement.
    template <typename Change>
    void modify(Change change)
    {
        willChange_.emit();
        change(value_);
    }

private:
    Signal& willChange_;
    Value value_;
};

} // namespace corvellane
