#include "layout/CellBuilder.h"

#include "layout/CellAlignment.h"
#include "layout/CellLook.h"
#include "layout/CellParagraphs.h"
#include "layout/TableHead.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace orvane::layout {
namespace {

/// The direction in which most of the lines read.
document::TextDirection directionOf(const std::vector<Line>& lines) {
    std::map<document::TextDirection, std::size_t> words;
    for (const Line& line : lines) {
        const double turn = std::fmod(line.angle + 360, 360);
        const auto direction = turn == 90    ? document::TextDirection::Downwards
                               : turn == 270 ? document::TextDirection::Upwards
                                             : document::TextDirection::Horizontal;
        words[direction] += line.words.size();
    }
    const auto most =
        std::max_element(words.begin(), words.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == words.end() ? document::TextDirection::Horizontal : most->first;
}

double topOf(const PageBlock& block) {
    if (const auto* paragraph = std::get_if<ParagraphDraft>(&block.value))
        return paragraph->box.top;
    if (const auto* table = std::get_if<TableDraft>(&block.value))
        return table->box.top;
    return std::get<FigureDraft>(block.value).figure.box.top;
}

Point middleOf(const Rect& box) {
    return {box.centerX(), box.centerY()};
}

/// Puts a block into the cell that holds its middle, at its place from top to bottom.
bool placeBlock(TableDraft& table, const Rect& box, PageBlock block) {
    for (CellDraft& cell : table.cells) {
        if (!cell.box.contains(middleOf(box)))
            continue;
        const double top = topOf(block);
        const auto after = std::find_if(cell.blocks.begin(), cell.blocks.end(),
                                        [&](const PageBlock& other) { return topOf(other) > top; });
        cell.blocks.insert(after, std::move(block));
        return true;
    }
    return false;
}

void takeFigures(TableDraft& table, std::vector<Figure>& figures) {
    std::erase_if(figures, [&](const Figure& figure) {
        if (figure.isBackground || !table.box.contains(middleOf(figure.box)))
            return false;
        PageBlock block;
        block.value = FigureDraft{figure, true};
        return placeBlock(table, figure.box, std::move(block));
    });
}

std::vector<ColumnSpan> roomBetweenEdges(const TableGrid& grid) {
    std::vector<ColumnSpan> columns;
    for (std::size_t i = 0; i + 1 < grid.columnEdges.size(); ++i)
        columns.push_back({grid.columnEdges[i], grid.columnEdges[i + 1]});
    return columns;
}

/// From the leftmost to the rightmost text of each column.
std::vector<ColumnSpan> roomOfTexts(const TableGrid& grid, const std::vector<std::vector<Line>>& linesOfCell) {
    std::vector<ColumnSpan> columns;
    for (std::size_t i = 0; i + 1 < grid.columnEdges.size(); ++i)
        columns.push_back({grid.columnEdges[i + 1], grid.columnEdges[i]});
    for (std::size_t i = 0; i < grid.cells.size(); ++i) {
        if (grid.cells[i].columnSpan > 1)
            continue;
        ColumnSpan& column = columns[static_cast<std::size_t>(grid.cells[i].column)];
        for (const Line& line : linesOfCell[i]) {
            column.left = std::min(column.left, line.box.left);
            column.right = std::max(column.right, line.box.right);
        }
    }
    return columns;
}

} // namespace

TableDraft buildTable(PageText& page, const TableGrid& grid, const CellText& text, TableEdges edges,
                      const std::vector<BorderLine>& lines, std::vector<TableDraft> nested,
                      const LayoutParameters::Tables& parameters) {
    TableDraft table;
    table.box = grid.box();
    table.columnEdges = grid.columnEdges;
    table.rowEdges = grid.rowEdges;
    table.isRuled = edges != TableEdges::Aligned;
    std::vector<std::vector<Line>> linesOfCell = takeWords(page.lines, text);
    const std::vector<ColumnSpan> columns =
        edges == TableEdges::Ruled ? roomBetweenEdges(grid) : roomOfTexts(grid, linesOfCell);
    for (std::size_t i = 0; i < grid.cells.size(); ++i) {
        const GridCell& place = grid.cells[i];
        CellDraft cell;
        cell.row = place.row;
        cell.column = place.column;
        cell.rowSpan = place.rowSpan;
        cell.columnSpan = place.columnSpan;
        cell.box = grid.boxOf(place);
        cell.direction = directionOf(linesOfCell[i]);
        const ColumnSpan room{columns[static_cast<std::size_t>(place.column)].left,
                              columns[static_cast<std::size_t>(place.column + place.columnSpan - 1)].right};
        for (ParagraphDraft& paragraph : buildCellParagraphs(std::move(linesOfCell[i]), room, parameters))
            cell.blocks.emplace_back().value = std::move(paragraph);
        table.cells.push_back(std::move(cell));
    }
    drawBorders(table, page.rules, lines, parameters);
    shadeCells(table, page.grounds, parameters);
    table.headerRows = countHeaderRows(table, parameters);
    alignAcross(table, parameters);
    alignUpright(table, parameters);
    takeFigures(table, page.figures);
    for (TableDraft& inner : nested) {
        const Rect box = inner.box;
        PageBlock block;
        block.value = std::move(inner);
        placeBlock(table, box, std::move(block));
    }
    return table;
}

} // namespace orvane::layout
