#pragma once

#include "rtf/AttributedText.h"

#include <QList>
#include <QTextCharFormat>

#include <cstdint>

class QTextCursor;

namespace corvellane::view {

/// Writes the runs of a text, which outlives it, into documents.
class RunWriter {
public:
    explicit RunWriter(const rtf::AttributedText& text);

    /// How text of those attributes looks.
    const QTextCharFormat& formatOf(std::uint32_t attributes) const { return formats_[attributes]; }

    /// Inserts the run's text, or the picture that it is. A picture that cannot be decoded is left out.
    void insert(QTextCursor& cursor, const rtf::Run& run) const;

private:
    const rtf::AttributedText& text_;
    QList<QTextCharFormat> formats_;
};

} // namespace corvellane::view
