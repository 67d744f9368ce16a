#pragma once

#include "layout/page/PageLayout.h"

#include <string>

namespace orvane::layout {

/// The table's structure as text, one line a cell, for tests and for looking into a page:
///   table ruled 2 columns 2 rows 1 head
///     r1 c1-2 "Name and place" center borders tblr shading D9D9D9
/// What is as in most cells (one place, text at the top and start, no shading) is left out.
std::string dumpTable(const TableDraft& table);

} // namespace orvane::layout
