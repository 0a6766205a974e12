#pragma once

#include "base/WorkerThread.h"

#include <exception>
#include <functional>
#include <semaphore>

namespace corvellane::pack {

/// Work that another thread does in its order, while more of it comes.
class Lane {
public:
    /// Returns at once, unless so much is waiting that it would fill the memory.
    void add(std::function<void()> work);
    /// Returns when all of it has been done; throws what a piece of it has thrown, after which nothing more was done.
    void wait();

private:
    static constexpr std::ptrdiff_t most = 64;

    std::exception_ptr failure_;
    std::counting_semaphore<most> room_{most};
    // Goes first: what it still does needs the others.
    WorkerThread worker_;
};

} // namespace corvellane::pack
