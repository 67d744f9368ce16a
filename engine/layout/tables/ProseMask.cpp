#include "layout/tables/ProseMask.h"

#include "layout/support/DisjointSets.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace orvane::layout {
namespace {

/// Whether `below` may be the next line of the text that `above` belongs to.
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

bool isRunningText(const std::vector<TextPiece>& pieces, const std::vector<std::size_t>& lines,
                   const TableParameters::Tables& parameters) {
    if (static_cast<int>(lines.size()) < parameters.proseLines - 1)
        return false;
    double words = 0;
    double widest = 0;
    for (const std::size_t i : lines) {
        words += static_cast<double>(pieces[i].wordCount());
        widest = std::max(widest, pieces[i].box.width());
    }
    const auto full = std::count_if(lines.begin(), lines.end(), [&](std::size_t i) {
        return pieces[i].box.width() > parameters.proseFill * widest;
    });
    const auto count = static_cast<double>(lines.size());
    return words > parameters.proseWords * count && static_cast<double>(full) > parameters.proseFullShare * count &&
           widest > parameters.proseWidth * pieces[lines.front()].fontSize;
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

std::vector<char> markProse(const std::vector<TextPiece>& pieces, const TableParameters::Tables& parameters) {
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
            if (followsOn(above, below, parameters)) {
                texts.unite(order[i], order[j]);
                break;
            }
        }
    }
    std::vector<char> isProse(pieces.size(), 0);
    const std::vector<std::vector<std::size_t>> groups = texts.groups();
    for (const std::vector<std::size_t>& lines : groups)
        if (isRunningText(pieces, lines, parameters) && !isTextOfCell(pieces, lines, groups, parameters))
            for (const std::size_t i : lines)
                isProse[i] = 1;
    return isProse;
}

} // namespace orvane::layout
