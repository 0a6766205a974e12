#include "pack/Lane.h"

#include <future>
#include <memory>
#include <utility>

namespace corvellane::pack {

void Lane::add(std::function<void()> work)
{
    room_.acquire();
    worker_.submit([this, work = std::move(work)] {
        try {
            if (!failure_) {
                work();
            }
        } catch (...) {
            failure_ = std::current_exception();
        }
        room_.release();
    });
}

void Lane::wait()
{
    const auto done = std::make_shared<std::promise<void>>();
    worker_.submit([done] { done->set_value(); });
    done->get_future().wait();
    if (failure_) {
        std::rethrow_exception(failure_);
    }
}

} // namespace corvellane::pack
