#pragma once

namespace orvane::layout {

/// Whether something that looks like a table is one, and if not, what speaks against it.
enum class TableVerdict {
    Table,
    SinglePlace,     ///< a box around text
    BrokenGrid,      ///< the cells do not tile the grid, or had to be forced to
    StraddlingWords, ///< the words do not keep to the cells or columns
    Empty,           ///< too few cells hold anything
    TooFlat,         ///< the rows are lower than a line of text: a staff, a bar code, a chart's grid
    Drawing,         ///< a drawing runs over several cells: a chart
    PageFrame,       ///< one cell holds most of the page: a frame around it
    TooSmall,        ///< too few rows or columns for what else speaks for a table
    Contents,        ///< a table of contents: titles, leaders, page numbers
    Index,           ///< words in the order of the alphabet, column by column
    List,            ///< labels and the items of a list
    KeyValues,       ///< "Name:" and what belongs to it, parted by tabs
    Prose,           ///< running text in columns
    SideBySide,      ///< lists side by side without a row in common
    Code,            ///< a listing in a typewriter font
    Formula,         ///< lines of a formula within large brackets
    Ragged,          ///< the columns keep no edge
};

/// The verdict's name as it stands in dumps.
const char* toString(TableVerdict verdict);

} // namespace orvane::layout
