#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace corvellane {

/// An observer's hold on its signal: the observer is called for as long as this lives.
using Subscription = std::shared_ptr<const std::function<void()>>;

/// A signal without payload that calls its observers one after the other, in the order of their subscription.
///
/// One thread only. Observers may subscribe and drop subscriptions while they are called; an observer that
/// subscribes during an emission is first called by the next one. An emission allocates nothing.
class Signal {
public:
    [[nodiscard]] Subscription subscribe(std::function<void()> observer)
    {
        if (emissions_ == 0) {
            std::erase_if(observers_, [](const auto& held) { return held.expired(); });
        }
        auto subscription = std::make_shared<const std::function<void()>>(std::move(observer));
        observers_.push_back(subscription);
        return subscription;
    }

    void emit()
    {
        ++emissions_;
        const std::size_t count = observers_.size();
        for (std::size_t index = 0; index < count; ++index) {
            if (const Subscription observer = observers_[index].lock()) {
                (*observer)();
            }
        }
        --emissions_;
    }

private:
    std::vector<std::weak_ptr<const std::function<void()>>> observers_;
    int emissions_ = 0;
};

} // namespace corvellane
