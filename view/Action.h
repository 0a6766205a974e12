#pragma once

#include <functional>
#include <utility>

namespace corvellane::view {

/// What a control does: one operation on one thing that outlives the tree. A value: two actions are equal when they
/// would perform the same operation on the same thing. One that was never given an operation is false.
template <typename Signature>
class Action;

template <typename Result, typename... Arguments>
class Action<Result(Arguments...)> {
public:
    Action() = default;

    /// The member function or function `Operation`, called with `receiver` in front of the arguments.
    template <auto Operation, typename Receiver>
    static Action calling(Receiver& receiver)
    {
        Action action;
        action.receiver_ = &receiver;
        action.perform_ = [](void* present, Arguments... arguments) -> Result {
            return std::invoke(Operation, *static_cast<Receiver*>(present), std::forward<Arguments>(arguments)...);
        };
        return action;
    }

    explicit operator bool() const { return perform_ != nullptr; }

    Result operator()(Arguments... arguments) const
    {
        return perform_(receiver_, std::forward<Arguments>(arguments)...);
    }

    bool operator==(const Action&) const = default;

private:
    void* receiver_ = nullptr;
    Result (*perform_)(void*, Arguments...) = nullptr;
};

} // namespace corvellane::view
