#pragma once

#include "layout/tables/TableGrid.h"
#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// One word of a page.
struct WordPlace {
    std::size_t line = 0; ///< index into the page's lines
    std::size_t word = 0; ///< index into the line's words
};

/// The words within a grid, each in the one cell that holds its middle.
struct CellText {
    std::vector<std::vector<WordPlace>> wordsOfCell; ///< by index into TableGrid::cells, in the order of the lines
    std::size_t wordCount = 0;
    std::size_t straddlingCount = 0; ///< words that reach well beyond their cell, or into the grid from outside
};

/// Requires: the grid is tiled.
CellText assignWords(const std::vector<Line>& lines, const TableGrid& grid, const TableParameters::Tables& parameters);

/// Moves the words of each cell out of `lines`: what stands in one line of the page and one cell becomes one line;
/// words that belong to no cell stay, the rest of a cut line keeping its place.
std::vector<std::vector<Line>> takeWords(std::vector<Line>& lines, const CellText& text);

} // namespace orvane::layout
