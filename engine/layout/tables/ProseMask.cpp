#include "layout/tables/ProseMask.h"

#include "layout/support/DisjointSets.h"
#include "layout/tables/FieldTexts.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace orvane::layout {

bool followsOn(const TextPiece& above, const TextPiece& below, const TableParameters::Tables& parameters) {
    const double size = std::max(above.fontSize, below.fontSize);
    const double pitch = below.baseline - above.baseline;
    if (pitch < parameters.rowSnap * size || pitch > parameters.proseLeading * size)
        return false;
    if (std::abs(above.fontSize - below.fontSize) > parameters.rowSnap * size)
        return false;
    const double shared = overlap(above.box.left, above.box.right, below.box.left, below.box.right);
    const double narrower = std::min(above.box.width(), below.box.width());
    return shared > parameters.proseFill * narrower;
}

namespace {

/// Whether all lines but the last of a paragraph within end where the first word of the next has no room: however
/// ragged, they are one text.
bool isWrapped(const std::vector<TextPiece>& pieces, std::vector<std::size_t> order, const std::vector<Line>& lines,
               const TableParameters::Tables& parameters) {
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return pieces[a].baseline < pieces[b].baseline; });
    Rect column;
    for (const std::size_t i : order)
        column = column.united(pieces[i].box);
    std::size_t ends = 0;
    for (std::size_t i = 1; i < order.size(); ++i)
        ends += hasRoomBehind(pieces[order[i - 1]], pieces[order[i]], column, lines, parameters);
    return ends <= 1;
}

enum class TextKind {
    Other,
    Ragged, ///< running text by its line ends only
    Full,
};

TextKind kindOf(const std::vector<TextPiece>& pieces, const std::vector<std::size_t>& order,
                const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    if (static_cast<int>(order.size()) < parameters.proseLines - 1)
        return TextKind::Other;
    double words = 0;
    double widest = 0;
    for (const std::size_t i : order) {
        words += static_cast<double>(pieces[i].wordCount());
        widest = std::max(widest, pieces[i].box.width());
    }
    const auto full = std::count_if(order.begin(), order.end(), [&](std::size_t i) {
        return pieces[i].box.width() > parameters.proseFill * widest;
    });
    const auto count = static_cast<double>(order.size());
    if (widest <= parameters.proseWidth * pieces[order.front()].fontSize || words <= parameters.proseWords * count)
        return TextKind::Other;
    const auto sentences =
        std::count_if(order.begin(), order.end(), [&](std::size_t i) { return beginsLikeSentence(pieces[i], lines); });
    if (static_cast<double>(sentences) >= parameters.numberedShare * count)
        return TextKind::Other;
    if (static_cast<double>(full) > parameters.proseFullShare * count)
        return TextKind::Full;
    const bool isRagged =
        static_cast<int>(order.size()) > parameters.proseLines && isWrapped(pieces, order, lines, parameters);
    return isRagged ? TextKind::Ragged : TextKind::Other;
}

/// Whether a text of one line stands beside one of the lines: these are what belongs to that label.
bool standsBesideLabel(const std::vector<TextPiece>& pieces, const std::vector<std::size_t>& lines,
                       const std::vector<std::vector<std::size_t>>& texts, const TableParameters::Tables& parameters) {
    return std::any_of(texts.begin(), texts.end(), [&](const std::vector<std::size_t>& other) {
        return other.size() == 1 && std::any_of(lines.begin(), lines.end(), [&](std::size_t i) {
                   return std::abs(pieces[i].baseline - pieces[other.front()].baseline) <=
                          parameters.rowSnap * pieces[i].fontSize;
               });
    });
}

/// Whether a few lines are the text of one cell: shorter texts begin beside them in two other columns at least.
bool isTextOfCell(const std::vector<TextPiece>& pieces, const std::vector<std::size_t>& lines,
                  const std::vector<std::vector<std::size_t>>& texts, const TableParameters::Tables& parameters) {
    if (static_cast<int>(lines.size()) > 2 * parameters.proseLines)
        return false;
    const auto isAbove = [&](std::size_t a, std::size_t b) { return pieces[a].baseline < pieces[b].baseline; };
    const TextPiece& first = pieces[*std::min_element(lines.begin(), lines.end(), isAbove)];
    const auto beside = std::count_if(texts.begin(), texts.end(), [&](const std::vector<std::size_t>& other) {
        const TextPiece& start = pieces[*std::min_element(other.begin(), other.end(), isAbove)];
        return other.size() < lines.size() &&
               std::abs(start.baseline - first.baseline) <= parameters.rowSnap * first.fontSize;
    });
    return beside >= 2;
}

} // namespace

std::vector<char> markProse(const std::vector<TextPiece>& pieces, const std::vector<Line>& lines,
                            const TableParameters::Tables& parameters) {
    std::vector<std::size_t> order(pieces.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return pieces[a].baseline < pieces[b].baseline; });
    DisjointSets texts(pieces.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        const TextPiece& above = pieces[order[i]];
        for (std::size_t j = i + 1; j < order.size(); ++j) {
            const TextPiece& below = pieces[order[j]];
            if (below.baseline - above.baseline > parameters.proseLeading * 2 * above.fontSize)
                break;
            if (!followsOn(above, below, parameters))
                continue;
            // A field begins a text of its own.
            if (!isField(below, lines))
                texts.unite(order[i], order[j]);
            break;
        }
    }
    std::vector<char> isProse(pieces.size(), 0);
    const std::vector<std::vector<std::size_t>> groups = texts.groups();
    for (const std::vector<std::size_t>& text : groups) {
        const TextKind kind = kindOf(pieces, text, lines, parameters);
        if (kind == TextKind::Other || isTextOfCell(pieces, text, groups, parameters) ||
            (kind == TextKind::Ragged && standsBesideLabel(pieces, text, groups, parameters)))
            continue;
        for (const std::size_t i : text)
            isProse[i] = 1;
    }
    return isProse;
}

} // namespace orvane::layout
