#pragma once

#include "rtf/AttributedText.h"

#include <QTextImageFormat>

#include <optional>

class QTextDocument;

namespace corvellane::view {

/// Hands the document the picture and gives the format that shows it, no wider than a narrow window; nothing for a
/// picture that cannot be decoded. It is decoded no larger than it is shown on a screen of twice the usual density.
std::optional<QTextImageFormat> addPicture(QTextDocument& document, const rtf::Picture& picture);

} // namespace corvellane::view
