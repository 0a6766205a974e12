#pragma once

class QString;
class QTextDocumentFragment;

namespace corvellane::view {

/// The words of a part of an agreement: a line for each paragraph and for each row of a table, whose cells are parted
/// by tabs and stand in the order in which they are read.
QString plainTextOf(const QTextDocumentFragment& part);

} // namespace corvellane::view
