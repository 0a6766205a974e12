#pragma once

#include "agreement/AttributedText.h"
#include "base/Observable.h"
#include "base/Signal.h"

#include <string>

namespace corvellane {

class Console;
class Resources;

/// The licence agreement that the installer shows. Main thread; the platform's services outlive it.
class Document {
public:
    Document(const Resources& resources, Console& console);

    /// Fills `data` from the resource `file`.rtf. Where there is none, or it cannot be read, one line on the console
    /// says so and `data` stays as it is.
    void load(const std::string& file);

    /// Emitted before every write of `data`.
    Signal objectWillChange;
    Observable<AttributedText> data{objectWillChange, {}};

private:
    const Resources& resources_;
    Console& console_;
};

} // namespace corvellane
