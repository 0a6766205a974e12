#pragma once

#include "platform/Pasteboard.h"

namespace corvellane {

/// The desktop's clipboard. A text that is on it when the QApplication is destroyed is handed to the clipboard
/// manager, where one runs (the platform plugin does that by the SAVE_TARGETS protocol of the freedesktop clipboard
/// manager specification; over 16 MB the X server refuses it), and otherwise goes with the program.
class QtPasteboard : public Pasteboard {
public:
    void clearContents() override;

    /// Character for character, a leading byte order mark and zero bytes included; each ill-formed sequence of bytes
    /// becomes U+FFFD, as text on a clipboard has to be text.
    bool setString(const std::string& text) override;
};

} // namespace corvellane
