#pragma once

#include <fontconfig/fontconfig.h>

#include <future>
#include <memory>

namespace corvellane {

/// Reads the configuration of the system's fonts on a thread of its own from when it is made, and gives it to all of
/// the program when it goes: the longest single step to a window with text, and one that needs no display. What cannot
/// be read like this is left to whoever shows the first text.
class FontsAhead {
public:
    FontsAhead();
    FontsAhead(const FontsAhead&) = delete;
    FontsAhead& operator=(const FontsAhead&) = delete;
    ~FontsAhead();

private:
    struct Destroy {
        void operator()(FcConfig* configuration) const { FcConfigDestroy(configuration); }
    };
    using Configuration = std::unique_ptr<FcConfig, Destroy>;

    static Configuration read();

    std::future<Configuration> configuration_;
};

} // namespace corvellane
