#include "layout/page/ColumnGutter.h"

#include "layout/page/EmptyStrips.h"
#include "layout/page/SideTexts.h"

#include <algorithm>

namespace orvane::layout {
namespace {

double medianFontSize(std::span<const Line> lines) {
    std::vector<double> sizes;
    for (const Line& line : lines)
        sizes.push_back(line.fontSize);
    std::nth_element(sizes.begin(), sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2), sizes.end());
    return sizes[sizes.size() / 2];
}

struct Side {
    int rows = 0;
    double top = 0;
    double bottom = 0;
    double extent = 0;   ///< of its text, across
    double inkWidth = 0; ///< sum of its pieces' widths
    double lastMiddle = -1e9;

    void add(const GutterPiece& piece, double outermost, double sameRow) {
        const bool isNewRow = piece.box.centerY() > lastMiddle + sameRow * piece.fontSize;
        if (rows == 0) {
            top = piece.box.top;
            extent = outermost;
        }
        extent = std::max(extent, outermost);
        if (isNewRow) {
            ++rows;
            lastMiddle = piece.box.centerY();
        }
        inkWidth += piece.box.width();
        bottom = std::max(bottom, piece.box.bottom);
    }
    /// How much of the column its lines cover: prose fills most of it, labels and values do not.
    double fill() const { return rows > 0 && extent > 0 ? inkWidth / (extent * rows) : 0; }
    bool isWide(double fontSize, const PageParameters::Regions& parameters) const {
        return extent >= parameters.minimumColumn * fontSize;
    }
    bool isFilled(const PageParameters::Regions& parameters) const { return fill() >= parameters.minimumFill; }
};

/// Cuts the strip to where both sides have text, and counts it. False when it parts no columns.
bool weighGutter(ColumnGutter& gutter, std::span<const GutterPiece> pieces, double fontSize,
                 const PageParameters::Regions& parameters) {
    Side left;
    Side right;
    SideTexts texts;
    for (const GutterPiece& piece : pieces) {
        if (piece.isWall || piece.box.centerY() <= gutter.top || piece.box.centerY() >= gutter.bottom)
            continue;
        if (piece.box.right <= gutter.left + 0.01) {
            left.add(piece, gutter.left - piece.box.left, parameters.sameRow);
            texts.left.push_back(piece);
        } else if (piece.box.left >= gutter.right - 0.01) {
            right.add(piece, piece.box.right - gutter.right, parameters.sameRow);
            texts.right.push_back(piece);
        }
    }
    gutter.rows = std::min(left.rows, right.rows);
    if (gutter.rows == 0)
        return false;
    gutter.top = std::max(left.top, right.top);
    gutter.bottom = std::min(left.bottom, right.bottom);
    const bool isNarrow = gutter.right - gutter.left < parameters.wideGutter * fontSize;
    const int least = isNarrow ? parameters.minimumRowsNarrow : parameters.minimumRows;
    if (gutter.rows < least || gutter.bottom <= gutter.top || !left.isWide(fontSize, parameters) ||
        !right.isWide(fontSize, parameters) || areLabels(texts) || areComments(texts) ||
        areRowsApart(texts, parameters) || areNamesInMargin(texts, left.extent, right.extent, parameters))
        return false;
    const bool areColumns =
        (left.isFilled(parameters) && right.isFilled(parameters)) || areLists(gutter, texts, fontSize, parameters);
    if (!areColumns) {
        if (!areOutOfStep(gutter, texts, fontSize, parameters))
            return false;
        leaveLevelEnds(gutter, texts, parameters);
    }
    return !takeTurns(gutter, texts);
}

} // namespace

std::optional<ColumnGutter> findColumnGutter(std::span<const Line> lines, std::span<const Rect> walls,
                                             const PageParameters::Regions& parameters) {
    if (static_cast<int>(lines.size()) < 2)
        return std::nullopt;
    const double fontSize = medianFontSize(lines);
    const double narrowest = parameters.narrowGutter * fontSize;
    const std::vector<GutterPiece> pieces = cutAtGutterGaps(lines, walls, narrowest);
    Rect area;
    for (const GutterPiece& piece : pieces)
        area = area.united(piece.box);
    std::optional<ColumnGutter> best;
    for (const Rect& strip : findEmptyStrips(pieces, area, narrowest, parameters.maximumStrips)) {
        if (strip.left <= area.left || strip.right >= area.right)
            continue;
        if (strip.height() < parameters.minimumRows * fontSize)
            continue;
        ColumnGutter gutter{strip.left, strip.right, strip.top, strip.bottom};
        if (weighGutter(gutter, pieces, fontSize, parameters) && (!best || gutter.rows > best->rows))
            best = gutter;
    }
    if (best)
        best->fontSize = fontSize;
    return best;
}

} // namespace orvane::layout
