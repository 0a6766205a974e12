#pragma once

#include "rtf/AttributedText.h"

class QWidget;

namespace corvellane::view {

/// A read-only view of `text`, which is not needed afterwards: wrapped at the view's own width, scrolled to its top,
/// dark on white whatever the desktop's colours. Text can be selected and copied by mouse and keyboard. Links are
/// shown and their addresses can be copied, but never opened: the program may run with more rights than a web browser
/// should have. Owned by `parent`, who gives it its accessible name. Takes whatever size it is given. Main thread.
QWidget* makeRichTextViewer(const rtf::AttributedText& text, QWidget* parent);

} // namespace corvellane::view
