#include "layout/tables/CellBuilder.h"

#include "base/Utf8.h"
#include "layout/paragraphs/LineMeasures.h"
#include "layout/tables/CellAlignment.h"
#include "layout/tables/CellLook.h"
#include "layout/tables/CellParagraphs.h"
#include "layout/tables/TableHead.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

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

/// Whether a line of the cell stands beside the box, its middle between the upper and the lower edge.
bool hasTextBeside(const CellDraft& cell, const Rect& box) {
    return std::any_of(cell.blocks.begin(), cell.blocks.end(), [&](const PageBlock& block) {
        const auto* paragraph = std::get_if<ParagraphDraft>(&block.value);
        return paragraph && std::any_of(paragraph->lines.begin(), paragraph->lines.end(), [&](const Line& line) {
                   return line.box.centerY() > box.top && line.box.centerY() < box.bottom &&
                          (line.box.right <= box.left || line.box.left >= box.right);
               });
    });
}

/// The cell that holds the middle of the box; null where none does.
CellDraft* cellAround(TableDraft& table, const Rect& box) {
    const auto cell = std::find_if(table.cells.begin(), table.cells.end(),
                                   [&](const CellDraft& other) { return other.box.contains(middleOf(box)); });
    return cell == table.cells.end() ? nullptr : &*cell;
}

/// Puts the block at its place from top to bottom.
template<typename Value>
void addTo(CellDraft& cell, Value value) {
    PageBlock block;
    block.value = std::move(value);
    const double top = topOf(block);
    const auto after = std::find_if(cell.blocks.begin(), cell.blocks.end(),
                                    [&](const PageBlock& other) { return topOf(other) > top; });
    cell.blocks.insert(after, std::move(block));
}

void takeFigures(TableDraft& table, std::vector<Figure>& figures) {
    std::erase_if(figures, [&](const Figure& figure) {
        CellDraft* cell = figure.isBackground ? nullptr : cellAround(table, figure.box);
        if (cell)
            addTo(*cell, FigureDraft{figure, !hasTextBeside(*cell, figure.box)});
        return cell != nullptr;
    });
}

bool hasLetters(const Line& line) {
    return std::any_of(line.words.begin(), line.words.end(), [](const Word& word) {
        const std::u32string text = utf32FromUtf8(textOf(word));
        return std::any_of(text.begin(), text.end(), [](char32_t c) { return isLetter(c); });
    });
}

/// Whether the first column stands at the right. Cells count alike, however long their texts are; numbers say nothing,
/// and units beside them little: a cell with right-to-left text is one of these.
bool isReadFromRight(const std::vector<std::vector<Line>>& linesOfCell, const DocumentContext& context) {
    std::size_t rightToLeft = 0;
    std::size_t leftToRight = 0;
    for (const std::vector<Line>& lines : linesOfCell) {
        const bool isRightToLeft = std::any_of(lines.begin(), lines.end(),
                                               [](const Line& line) { return line.isRightToLeft && hasLetters(line); });
        rightToLeft += isRightToLeft;
        leftToRight += !isRightToLeft && std::any_of(lines.begin(), lines.end(), hasLetters);
    }
    return rightToLeft == leftToRight ? context.isRightToLeft : rightToLeft > leftToRight;
}

CellDraft buildCell(const GridCell& place, const Rect& box, std::vector<Line> lines, const ColumnRooms& rooms,
                    const ParagraphContext& context, const std::unordered_set<std::string>& vocabulary,
                    const LayoutParameters& parameters) {
    CellDraft cell;
    cell.row = place.row;
    cell.column = place.column;
    cell.rowSpan = place.rowSpan;
    cell.columnSpan = place.columnSpan;
    cell.box = box;
    cell.direction = directionOf(lines);
    const ColumnSpan room = rooms.roomOf(place.column, place.columnSpan);
    for (ParagraphDraft& paragraph : buildCellParagraphs(std::move(lines), box, room, context, vocabulary, parameters))
        cell.blocks.emplace_back().value = std::move(paragraph);
    return cell;
}

} // namespace

TableDraft buildTable(PageText& page, const TableGrid& grid, const CellText& text, TableEdges edges,
                      const std::vector<BorderLine>& lines, std::vector<TableDraft> nested,
                      const DocumentContext& context, const LayoutParameters& parameters) {
    const TableParameters::Tables& limits = parameters.tables;
    const ParagraphContext around{context.bodyFontSize, context.bodyLeading, page.fonts};
    TableDraft table;
    table.box = grid.box();
    table.columnEdges = grid.columnEdges;
    table.rowEdges = grid.rowEdges;
    table.isRuled = edges != TableEdges::Aligned;
    std::vector<std::vector<Line>> linesOfCell = takeWords(page.lines, text);
    table.isRightToLeft = isReadFromRight(linesOfCell, context);
    const ColumnRooms rooms(grid, linesOfCell, edges);
    for (std::size_t i = 0; i < grid.cells.size(); ++i)
        table.cells.push_back(buildCell(grid.cells[i], grid.boxOf(grid.cells[i]), std::move(linesOfCell[i]), rooms,
                                        around, context.vocabulary, parameters));
    drawBorders(table, edges, page.rules, lines, limits);
    shadeCells(table, page.grounds, limits);
    table.headerRows = countHeaderRows(table, limits);
    alignAcross(table, rooms, limits, parameters.markers);
    takeFigures(table, page.figures);
    for (TableDraft& inner : nested)
        if (CellDraft* cell = cellAround(table, inner.box))
            addTo(*cell, std::move(inner));
    alignUpright(table, limits);
    return table;
}

} // namespace orvane::layout
