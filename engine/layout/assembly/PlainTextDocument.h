#pragma once

#include "document/Document.h"

namespace orvane::layout {

/// The words of the document in reading order, in one style: a paragraph for each paragraph, with its label where it is
/// of a list, a paragraph for each row of a table, its cells parted by tabulators. Notes follow at the end, after their
/// numbers.
document::Document plainTextDocument(document::Document flowing);

} // namespace orvane::layout
