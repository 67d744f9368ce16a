#include "layout/page/GutterReach.h"

#include "layout/page/GutterSides.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace orvane::layout {
namespace {

/// Lines about one middle.
struct CentredRows {
    int count = 0;
    double middle = 0;
    double leftmost = 0; ///< of their starts
    double rightmost = 0;

    /// False for a line about another middle, which is not added.
    bool add(const Line& line, double tolerance) {
        if (count == 0)
            middle = line.box.centerX(), leftmost = rightmost = line.box.left;
        if (std::abs(line.box.centerX() - middle) > tolerance)
            return false;
        ++count;
        leftmost = std::min(leftmost, line.box.left);
        rightmost = std::max(rightmost, line.box.left);
        return true;
    }
    /// Lines of one length that start below each other are no proof.
    bool areHead(int fewest, double tolerance) const { return count >= fewest && rightmost - leftmost > tolerance; }
};

/// Narrows the gutter to where the line on its left leaves it.
void keepClear(ColumnGutter& gutter, const Line& line, const GutterSides& sides) {
    if (sides.sideOf(line) == GutterSide::Left)
        gutter.left = std::max(gutter.left, line.box.right);
}

/// Follows the lines beyond the gutter's end as long as they belong to its columns. `gapTo` tells how far a line lies
/// beyond that end, `take` moves the end over it.
template<typename Iterator, typename Beyond, typename GapTo, typename Take>
void extend(Iterator first, Iterator end, const GutterSides& sides, const PageParameters::Regions& parameters,
            Beyond isBeyond, GapTo gapTo, Take take) {
    for (auto line = first; line != end; ++line) {
        if (!isBeyond(*line))
            continue;
        const GutterSide side = sides.sideOf(*line);
        if (side == GutterSide::Across)
            return;
        const auto next = std::next(line);
        // A heading between paragraphs fills no column, what stands at it does.
        const bool isOfColumn =
            sides.isFilledBy(*line) || (next != end && sides.sideOf(*next) == side && sides.isFilledBy(*next));
        const double step = isOfColumn ? parameters.paragraphStep : parameters.columnStep;
        if (gapTo(*line) > step * line->fontSize)
            return;
        take(*line);
    }
}

} // namespace

void extendOverNeighbours(ColumnGutter& gutter, std::span<const Line> lines,
                          const PageParameters::Regions& parameters) {
    const ColumnGutter found = gutter;
    const GutterSides sides(found, lines, parameters);
    extend(
        lines.begin(), lines.end(), sides, parameters,
        [&](const Line& line) { return line.box.centerY() > gutter.bottom; },
        [&](const Line& line) { return line.box.top - gutter.bottom; },
        [&](const Line& line) {
            gutter.bottom = std::max(gutter.bottom, line.box.bottom);
            keepClear(gutter, line, sides);
        });
    extend(
        lines.rbegin(), lines.rend(), sides, parameters,
        [&](const Line& line) { return line.box.centerY() < gutter.top; },
        [&](const Line& line) { return gutter.top - line.box.bottom; },
        [&](const Line& line) {
            gutter.top = std::min(gutter.top, line.box.top);
            keepClear(gutter, line, sides);
        });
}

std::optional<double> findEndOfHeads(const ColumnGutter& gutter, std::span<const Line> lines,
                                     const PageParameters::Regions& parameters) {
    const GutterSides sides(gutter, lines, parameters);
    CentredRows left, right;
    double bottom = gutter.top;
    for (const Line& line : lines) {
        if (line.box.centerY() < gutter.top)
            continue;
        if (line.box.centerY() > gutter.bottom)
            return std::nullopt;
        const GutterSide side = sides.sideOf(line);
        const double tolerance = parameters.sameMiddle * line.fontSize;
        CentredRows& rows = side == GutterSide::Left ? left : right;
        if (side == GutterSide::Across || sides.isFlush(line, tolerance) || !rows.add(line, tolerance)) {
            const bool isSetOff = line.box.top - bottom >= parameters.sliceBlank * line.fontSize;
            return isSetOff && left.areHead(parameters.rowsOfHead, tolerance) &&
                           right.areHead(parameters.rowsOfHead, tolerance)
                       ? std::optional((bottom + line.box.top) / 2)
                       : std::nullopt;
        }
        bottom = std::max(bottom, line.box.bottom);
    }
    return std::nullopt;
}

} // namespace orvane::layout
