#include "layout/CellAlignment.h"

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

    void add(const Rect& line, const Rect& cell) {
        const double leftGap = line.left - cell.left;
        const double rightGap = cell.right - line.right;
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
Alignment alignmentByGaps(const Edges& edges, double tolerance, const LayoutParameters::Tables& parameters) {
    const double left = edges.left.low;
    const double right = edges.right.low;
    const double difference = std::max(2 * tolerance, parameters.centerShare * (left + right));
    if (std::abs(left - right) <= difference && left > 2 * tolerance)
        return Alignment::Center;
    return right < left ? Alignment::End : Alignment::Start;
}

template<typename Function>
void forParagraphs(CellDraft& cell, const Function& function) {
    for (PageBlock& block : cell.blocks)
        if (auto* paragraph = std::get_if<ParagraphDraft>(&block.value))
            function(*paragraph);
}

Edges edgesOf(CellDraft& cell) {
    Edges edges;
    forParagraphs(cell, [&](const ParagraphDraft& paragraph) {
        for (const Line& line : paragraph.lines)
            edges.add(line.box, cell.box);
    });
    return edges;
}

double fontSizeOf(const TableDraft& table) {
    for (const CellDraft& cell : table.cells)
        for (const PageBlock& block : cell.blocks)
            if (const auto* paragraph = std::get_if<ParagraphDraft>(&block.value))
                return paragraph->lines.front().fontSize;
    return 10;
}

/// What a cell's own lines say about it, and failing that its column, and failing that its gaps.
Alignment chooseAlignment(const Edges& own, const std::optional<Alignment>& ofColumn, double tolerance,
                          const LayoutParameters::Tables& parameters) {
    if (const auto kept = keptEdge(own, tolerance))
        return *kept;
    return ofColumn ? *ofColumn : alignmentByGaps(own, tolerance, parameters);
}

} // namespace

void alignAcross(TableDraft& table, const LayoutParameters::Tables& parameters) {
    const double tolerance = parameters.edgeTolerance * fontSizeOf(table);
    std::vector<Edges> columns(table.columnEdges.size());
    const auto isOfColumn = [&](const CellDraft& cell) { return cell.columnSpan == 1 && cell.row >= table.headerRows; };
    for (CellDraft& cell : table.cells) {
        forParagraphs(cell, [&](const ParagraphDraft& paragraph) {
            for (const Line& line : paragraph.lines)
                if (isOfColumn(cell))
                    columns[static_cast<std::size_t>(cell.column)].add(line.box, cell.box);
        });
    }
    for (CellDraft& cell : table.cells) {
        std::optional<Alignment> ofColumn;
        if (isOfColumn(cell))
            ofColumn = keptEdge(columns[static_cast<std::size_t>(cell.column)], tolerance);
        const Edges own = edgesOf(cell);
        const Alignment alignment =
            own.lines > 0 ? chooseAlignment(own, ofColumn, tolerance, parameters) : Alignment::Start;
        forParagraphs(cell, [&](ParagraphDraft& paragraph) { paragraph.alignment = alignment; });
    }
}

void alignUpright(TableDraft& table, const LayoutParameters::Tables& parameters) {
    for (CellDraft& cell : table.cells) {
        Range extent;
        double fontSize = 0;
        forParagraphs(cell, [&](const ParagraphDraft& paragraph) {
            extent.add(paragraph.box.top);
            extent.add(paragraph.box.bottom);
            fontSize = std::max(fontSize, paragraph.lines.front().fontSize);
        });
        if (fontSize == 0)
            continue;
        const double above = extent.low - cell.box.top;
        const double below = cell.box.bottom - extent.high;
        // Without room to move the text shows nothing.
        if (above + below < parameters.uprightRoom * fontSize)
            continue;
        if (std::abs(above - below) <= parameters.uprightTolerance * fontSize)
            cell.alignment = CellAlignment::Center;
        else if (below < above)
            cell.alignment = CellAlignment::Bottom;
    }
}

} // namespace orvane::layout
