#include "layout/tables/CellText.h"

#include "layout/text/LineText.h"

namespace orvane::layout {
namespace {

/// The words of `line` at the ascending indices as a line of their own.
Line partOf(const Line& line, const std::vector<std::size_t>& words) {
    Line part = line;
    part.words.clear();
    for (const std::size_t index : words)
        part.words.push_back(line.words[index]);
    part.words.front().gapBefore = Gap::None;
    part.words.front().leaderBefore = document::TabLeader::None;
    measureAnew(part);
    return part;
}

/// What is left of a line whose words are taken in part: a line for each stretch without a gap.
void appendRemains(const Line& line, const std::vector<char>& isTaken, std::vector<Line>& remaining) {
    std::vector<std::size_t> stretch;
    for (std::size_t i = 0; i <= isTaken.size(); ++i) {
        if (i < isTaken.size() && !isTaken[i]) {
            stretch.push_back(i);
        } else if (!stretch.empty()) {
            remaining.push_back(partOf(line, stretch));
            stretch.clear();
        }
    }
}

bool straddles(const Rect& word, const Rect& cell, double fontSize, const TableParameters::Tables& parameters) {
    const double sideways = parameters.straddle * fontSize;
    // A text's box is taller than its ink, and tight rows cut into it.
    const double upright = word.height() * parameters.straddleHeight;
    return word.left < cell.left - sideways || word.right > cell.right + sideways || word.top < cell.top - upright ||
           word.bottom > cell.bottom + upright;
}

} // namespace

CellText assignWords(const std::vector<Line>& lines, const TableGrid& grid, const TableParameters::Tables& parameters) {
    CellText text;
    text.wordsOfCell.resize(grid.cells.size());
    const std::vector<int> cover = coverOf(grid);
    const Rect box = grid.box();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!lines[i].box.intersects(box))
            continue;
        for (std::size_t j = 0; j < lines[i].words.size(); ++j) {
            const Rect& word = lines[i].words[j].box;
            const int row = intervalAt(grid.rowEdges, word.centerY());
            const int column = intervalAt(grid.columnEdges, word.centerX());
            if (row < 0 || column < 0) {
                const double inside = word.intersected(box).area();
                text.straddlingCount += inside > parameters.straddleShare * word.area();
                continue;
            }
            const int cell = cover[static_cast<std::size_t>(row * grid.columns() + column)];
            text.wordsOfCell[static_cast<std::size_t>(cell)].push_back({i, j});
            ++text.wordCount;
            text.straddlingCount +=
                straddles(word, grid.boxOf(grid.cells[static_cast<std::size_t>(cell)]), lines[i].fontSize, parameters);
        }
    }
    return text;
}

std::vector<std::vector<Line>> takeWords(std::vector<Line>& lines, const CellText& text) {
    std::vector<std::vector<Line>> linesOfCell(text.wordsOfCell.size());
    std::vector<std::vector<char>> isTaken(lines.size());
    for (std::size_t cell = 0; cell < text.wordsOfCell.size(); ++cell) {
        const std::vector<WordPlace>& words = text.wordsOfCell[cell];
        for (auto first = words.begin(); first != words.end();) {
            const Line& line = lines[first->line];
            isTaken[first->line].resize(line.words.size(), 0);
            std::vector<std::size_t> indices;
            for (const std::size_t lineIndex = first->line; first != words.end() && first->line == lineIndex; ++first) {
                indices.push_back(first->word);
                isTaken[lineIndex][first->word] = 1;
            }
            linesOfCell[cell].push_back(partOf(line, indices));
        }
    }
    std::vector<Line> remaining;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (isTaken[i].empty())
            remaining.push_back(std::move(lines[i]));
        else
            appendRemains(lines[i], isTaken[i], remaining);
    }
    lines = std::move(remaining);
    return linesOfCell;
}

} // namespace orvane::layout
