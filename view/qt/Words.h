#pragma once

#include "view/View.h"

#include <QFont>
#include <QString>

namespace corvellane::view {

/// What the table of translated texts has for the key; the key itself where it has nothing.
QString localized(const std::string& key);

/// The system's font at that size; larger where the desktop's text is larger than usual.
QFont fontOf(const Font& font);

} // namespace corvellane::view
