#pragma once

#include "layout/page/PageLayout.h"

#include <string>

namespace orvane::layout {

/// The paragraph's lines, put together with blanks.
std::string textOf(const ParagraphDraft& paragraph);

/// The page in reading order as readable text, one item a line:
///   page 2, 595 x 842
///   band 72-500: 72-290 310-523
///     column 1
///       justified 72-290 first 12 leading 13.4: "Text of a paragraph" (4 lines, goes on)
///       figure inline 72 100 200 300
/// Tables come as TableDump writes them.
std::string dumpPageLayout(const PageLayout& layout);

} // namespace orvane::layout
