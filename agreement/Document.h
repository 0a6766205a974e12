#pragma once

#include "base/Expected.h"
#include "base/Observable.h"
#include "base/Signal.h"
#include "base/Snapshot.h"
#include "rtf/AttributedText.h"

#include <string>

namespace corvellane {

class Console;
class Files;
class Resources;

/// Reads the rich-text file at that path; what it takes is at most four times the file's size. A failure's message is
/// one line with the file's own name in it. Any thread.
Expected<rtf::AttributedText> readAgreement(const Files& files, const std::string& path);

/// The licence agreement that the installer shows. Main thread; the platform's services outlive it.
class Document {
public:
    Document(const Resources& resources, const Files& files, Console& console);

    /// Fills `data` from the resource `file`.rtf. Where there is none, or it cannot be read, one line on the console
    /// says so and `data` stays as it is.
    void load(const std::string& file);

    /// Emitted before every write of `data`.
    Signal objectWillChange;
    Observable<Snapshot<rtf::AttributedText>> data{objectWillChange, {}};

private:
    const Resources& resources_;
    const Files& files_;
    Console& console_;
};

} // namespace corvellane
