#pragma once

#include "layout/page/PageLayout.h"
#include "layout/tables/TableParameters.h"

namespace orvane::layout {

/// How many of the first rows are the table's head: set apart from the rest by bold text, a ground or the rule below.
int countHeaderRows(const TableDraft& table, const TableParameters::Tables& parameters);

} // namespace orvane::layout
