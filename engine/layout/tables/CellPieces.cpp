#include "layout/tables/CellPieces.h"

namespace orvane::layout {
namespace {

int cellAt(const TableGrid& grid, const std::vector<int>& cover, const Rect& word) {
    const int row = intervalAt(grid.rowEdges, word.centerY());
    const int column = intervalAt(grid.columnEdges, word.centerX());
    return row < 0 || column < 0 ? -1 : cover[static_cast<std::size_t>(row * grid.columns() + column)];
}

} // namespace

std::vector<std::vector<TextPiece>> piecesByCell(const std::vector<Line>& lines, const TableGrid& grid,
                                                 const TableParameters::Tables& parameters) {
    std::vector<std::vector<TextPiece>> pieces(grid.cells.size());
    const std::vector<int> cover = coverOf(grid);
    const Rect box = grid.box();
    for (const TextPiece& piece : cutIntoPieces(lines, parameters)) {
        if (!piece.box.intersects(box))
            continue;
        const Line& line = lines[piece.line];
        for (std::size_t first = piece.firstWord; first < piece.endWord;) {
            const int cell = cellAt(grid, cover, line.words[first].box);
            std::size_t end = first + 1;
            while (end < piece.endWord && cellAt(grid, cover, line.words[end].box) == cell)
                ++end;
            if (cell >= 0)
                pieces[static_cast<std::size_t>(cell)].push_back(pieceOf(line, piece.line, first, end));
            first = end;
        }
    }
    return pieces;
}

} // namespace orvane::layout
