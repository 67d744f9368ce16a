#include "layout/tables/CellAlignment.h"

#include "layout/paragraphs/ListMarker.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane::layout {
namespace {

using document::Alignment;
using document::CellAlignment;

/// The smallest and largest of some values.
struct Range {
    double low = 1e9;
    double high = -1e9;

    void add(double value) {
        low = std::min(low, value);
        high = std::max(high, value);
    }
    double width() const { return high - low; }
};

/// How far the lines of some cells keep the distances to their cells' sides.
struct Edges {
    Range left;
    Range right;
    Range middle; ///< left distance less right distance
    int lines = 0;

    void add(const Edges& other) {
        if (other.lines == 0)
            return;
        for (const auto& [range, added] :
             {std::pair{&left, &other.left}, {&right, &other.right}, {&middle, &other.middle}}) {
            range->add(added->low);
            range->add(added->high);
        }
        lines += other.lines;
    }
    void add(const Rect& line, ColumnSpan room) {
        const double leftGap = line.left - room.left;
        const double rightGap = room.right - line.right;
        left.add(leftGap);
        right.add(rightGap);
        middle.add(leftGap - rightGap);
        ++lines;
    }
};

/// The edge that the lines keep; nothing when they keep none, or when they are all of one width and keep all.
std::optional<Alignment> keptEdge(const Edges& edges, double tolerance) {
    const bool isLeft = edges.left.width() <= tolerance;
    const bool isRight = edges.right.width() <= tolerance;
    const bool isMiddle = edges.middle.width() <= 2 * tolerance;
    if (edges.lines < 2 || (isLeft && isRight))
        return std::nullopt;
    if (isLeft)
        return Alignment::Start;
    if (isRight)
        return Alignment::End;
    if (isMiddle && edges.middle.low >= -2 * tolerance && edges.middle.high <= 2 * tolerance)
        return Alignment::Center;
    return std::nullopt;
}

/// What a cell's own gaps say: text in the middle, or at the right.
Alignment alignmentByGaps(const Edges& edges, double tolerance, const TableParameters::Tables& parameters) {
    const double left = edges.left.low;
    const double right = edges.right.low;
    const double difference = std::max(2 * tolerance, parameters.centerShare * (left + right));
    if (std::abs(left - right) <= difference && left > 2 * tolerance)
        return Alignment::Center;
    // Text that fills its cell was set from the start.
    return left - right > difference ? Alignment::End : Alignment::Start;
}

template<typename Function>
void forParagraphs(CellDraft& cell, const Function& function) {
    for (PageBlock& block : cell.blocks)
        if (auto* paragraph = std::get_if<ParagraphDraft>(&block.value))
            function(*paragraph);
}

Edges edgesOf(CellDraft& cell, ColumnSpan room) {
    Edges edges;
    forParagraphs(cell, [&](const ParagraphDraft& paragraph) {
        for (const Line& line : paragraph.lines)
            edges.add(line.box, room);
    });
    return edges;
}

/// Two items or more that hang at indents of their own.
bool isList(CellDraft& cell, const ParagraphParameters::Markers& markers) {
    int items = 0;
    bool isOnlyItems = true;
    forParagraphs(cell, [&](const ParagraphDraft& paragraph) {
        const auto marker = findListMarker(paragraph.lines.front(), markers);
        isOnlyItems = isOnlyItems && marker && marker->isSeparated;
        ++items;
    });
    return isOnlyItems && items > 1;
}

double fontSizeOf(const TableDraft& table) {
    for (const CellDraft& cell : table.cells)
        for (const PageBlock& block : cell.blocks)
            if (const auto* paragraph = std::get_if<ParagraphDraft>(&block.value))
                return paragraph->lines.front().fontSize;
    return 10;
}

/// What a cell's own lines say about it, and failing that its column, and failing that its gaps.
Alignment chooseAlignment(const Edges& own, const std::optional<Alignment>& ofColumn, double tolerance, int columnSpan,
                          const TableParameters::Tables& parameters) {
    if (const auto kept = keptEdge(own, tolerance))
        return *kept;
    // Where words show the columns, the sides of a head over several of them are known roughly.
    const double clear = tolerance / parameters.edgeTolerance;
    if (columnSpan > 1 && own.left.low > clear && own.right.low > clear)
        return Alignment::Center;
    return ofColumn ? *ofColumn : alignmentByGaps(own, tolerance, parameters);
}

/// Sets an alignment against the cell's sides. Justified text, and text of right-to-left lines, knows better by itself.
void setAlignment(ParagraphDraft& paragraph, Alignment alignment, const Rect& cell) {
    if (paragraph.alignment == Alignment::Justified || paragraph.alignment == alignment ||
        paragraph.lines.front().isRightToLeft)
        return;
    paragraph.alignment = alignment;
    paragraph.indentEnd = 0;
    paragraph.firstLine = 0;
    paragraph.indentStart = alignment == Alignment::Start ? paragraph.box.left - cell.left : 0;
}

/// From where to where the text of a cell reaches, with the pictures and tables above and below it.
struct TextExtent {
    Range upright;
    double fontSize = 0; ///< 0 without text
};

/// The room above and below a text.
struct Margins {
    double above = 0;
    double below = 0;

    bool areEqual(double tolerance) const { return std::abs(above - below) <= tolerance; }
};

TextExtent extentOf(CellDraft& cell) {
    TextExtent extent;
    const auto add = [&](const Rect& box) {
        extent.upright.add(box.top);
        extent.upright.add(box.bottom);
    };
    for (const PageBlock& block : cell.blocks) {
        if (const auto* paragraph = std::get_if<ParagraphDraft>(&block.value)) {
            add(paragraph->box);
            extent.fontSize = std::max(extent.fontSize, paragraph->lines.front().fontSize);
        } else if (const auto* figure = std::get_if<FigureDraft>(&block.value)) {
            add(figure->figure.box);
        } else {
            add(std::get<TableDraft>(block.value).box);
        }
    }
    return extent;
}

/// For each row the tallest text of the cells that stand in it alone; null without any.
std::vector<const TextExtent*> tallestOfRows(const TableDraft& table, const std::vector<TextExtent>& texts) {
    std::vector<const TextExtent*> tallest(table.rowEdges.size());
    for (std::size_t i = 0; i < table.cells.size(); ++i) {
        const TextExtent*& ofRow = tallest[static_cast<std::size_t>(table.cells[i].row)];
        if (table.cells[i].rowSpan == 1 && texts[i].fontSize > 0 &&
            (!ofRow || texts[i].upright.width() > ofRow->upright.width()))
            ofRow = &texts[i];
    }
    return tallest;
}

/// What a text shows about its cell, given the tallest text of its row (or null); nothing without room to move.
std::optional<CellAlignment> shownUpright(const CellDraft& cell, const TextExtent& text, const TextExtent* tallest,
                                          const TableParameters::Tables& parameters) {
    const double least = parameters.uprightRoom * text.fontSize;
    const bool isShorter = tallest && tallest->upright.width() - text.upright.width() >= least;
    const Margins inCell{text.upright.low - cell.box.top, cell.box.bottom - text.upright.high};
    // The tallest text of a row shows where the room in its cells begins, and where it ends unless blank lines follow.
    const Margins inRow =
        isShorter ? Margins{text.upright.low - tallest->upright.low, tallest->upright.high - text.upright.high}
                  : inCell;
    if (text.fontSize == 0 || inRow.above + inRow.below < least)
        return std::nullopt;
    const double tolerance = parameters.uprightTolerance * text.fontSize;
    if (inRow.areEqual(tolerance) || (inRow.above > tolerance && inCell.areEqual(tolerance)))
        return CellAlignment::Center;
    // A text at the foot of its cell has no more room below it than above, and little.
    const bool isAtFoot = inRow.below < inRow.above && inCell.below <= inCell.above + tolerance &&
                          inRow.below <= parameters.footRoom * text.fontSize;
    return isAtFoot ? CellAlignment::Bottom : CellAlignment::Top;
}

/// Where the texts of a column stand that have room to show it.
struct ColumnTexts {
    int centered = 0;
    int others = 0;

    bool areCentered() const { return centered > 1 && others == 0; }
};

} // namespace

void alignAcross(TableDraft& table, const ColumnRooms& rooms, const TableParameters::Tables& parameters,
                 const ParagraphParameters::Markers& markers) {
    const double tolerance = parameters.edgeTolerance * fontSizeOf(table);
    std::vector<Edges> columns(table.columnEdges.size());
    const auto isOfColumn = [&](const CellDraft& cell) { return cell.columnSpan == 1 && cell.row >= table.headerRows; };
    for (CellDraft& cell : table.cells)
        if (isOfColumn(cell))
            columns[static_cast<std::size_t>(cell.column)].add(edgesOf(cell, rooms.roomOf(cell.column, 1)));
    for (CellDraft& cell : table.cells) {
        const ColumnSpan room = rooms.roomOf(cell.column, cell.columnSpan);
        const Edges own = edgesOf(cell, room);
        if (own.lines == 0)
            continue;
        std::optional<Alignment> ofColumn;
        if (isList(cell, markers))
            ofColumn = Alignment::Start;
        else if (isOfColumn(cell))
            ofColumn = keptEdge(columns[static_cast<std::size_t>(cell.column)], tolerance);
        const Alignment alignment = chooseAlignment(own, ofColumn, tolerance, cell.columnSpan, parameters);
        forParagraphs(cell, [&](ParagraphDraft& paragraph) { setAlignment(paragraph, alignment, cell.box); });
    }
}

void alignUpright(TableDraft& table, const TableParameters::Tables& parameters) {
    std::vector<TextExtent> texts;
    for (CellDraft& cell : table.cells)
        texts.push_back(extentOf(cell));
    const std::vector<const TextExtent*> tallest = tallestOfRows(table, texts);
    // The first row may be a head though it does not look like one.
    const auto isOfColumn = [&](const CellDraft& cell) {
        return table.isRuled && cell.columnSpan == 1 && cell.row >= std::max(table.headerRows, 1);
    };
    std::vector<std::optional<CellAlignment>> shown;
    std::vector<ColumnTexts> columns(table.columnEdges.size());
    for (std::size_t i = 0; i < table.cells.size(); ++i) {
        const CellDraft& cell = table.cells[i];
        const TextExtent* other = cell.rowSpan == 1 ? tallest[static_cast<std::size_t>(cell.row)] : nullptr;
        shown.push_back(shownUpright(cell, texts[i], other, parameters));
        if (shown[i] && isOfColumn(cell)) {
            ColumnTexts& column = columns[static_cast<std::size_t>(cell.column)];
            ++(*shown[i] == CellAlignment::Center ? column.centered : column.others);
        }
    }
    for (std::size_t i = 0; i < table.cells.size(); ++i) {
        CellDraft& cell = table.cells[i];
        // The texts of a column stand alike, and those without room are no exception.
        if (!shown[i] && texts[i].fontSize > 0 && isOfColumn(cell) &&
            columns[static_cast<std::size_t>(cell.column)].areCentered())
            shown[i] = CellAlignment::Center;
        cell.alignment = shown[i].value_or(CellAlignment::Top);
    }
}

} // namespace orvane::layout
