#pragma once

#include "layout/tables/TableGrid.h"
#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

#include <optional>
#include <span>
#include <vector>

namespace orvane::layout {

/// Boxes to fill in that stand beside each other.
struct FieldRow {
    Rect box; ///< around the fields
    std::vector<Rect> fields;
    std::vector<Rect> texts; ///< the words beside the fields
};

/// The cells of a field, as indices into TableGrid::cells.
struct FieldCells {
    int field = -1;
    int label = -1; ///< -1 where nothing stands before the field
};

/// The grid of a form.
struct FormGrid {
    TableGrid grid;
    std::vector<FieldCells> fields;
};

/// Lays the grid of a form, whose rows of fields stand one below the other. Each field is a cell; another is before it,
/// for its label, and one behind the last of a row where text stands there. Between the rows one cell leads across.
/// Nothing when it has far more places than a form. Requires: there are rows.
std::optional<FormGrid> gridOfForm(std::span<const FieldRow> rows, const PageText& page,
                                   const TableParameters::Tables& parameters);

/// Whether y is between two of the rows: beside none of their fields.
bool isBetweenRows(std::span<const FieldRow> rows, double y);

} // namespace orvane::layout
