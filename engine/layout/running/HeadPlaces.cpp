#include "layout/running/HeadPlaces.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane::layout {
namespace {

constexpr std::ptrdiff_t kFewestAlike = 2; ///< pages whose heads show the place of one that says something else

/// How many of the ascending values lie in the range.
std::ptrdiff_t countBetween(const std::vector<double>& sorted, double from, double to) {
    return std::upper_bound(sorted.begin(), sorted.end(), to) - std::lower_bound(sorted.begin(), sorted.end(), from);
}

/// More than one page, and enough of them against those that have a head.
bool isMany(std::ptrdiff_t pages, std::ptrdiff_t pagesWithHead, double share) {
    return pages > 1 && static_cast<double>(pages) >= share * static_cast<double>(pagesWithHead);
}

bool standsAlike(const RunningRow& a, const RunningRow& b, const RunningParameters::RunningHeads& limits) {
    const double place = limits.samePosition;
    return std::abs(a.fromEdge - b.fromEdge) <= place && std::abs(a.fontSize - b.fontSize) <= limits.sameSize &&
           (std::abs(a.box.left - b.box.left) <= place || std::abs(a.box.right - b.box.right) <= place ||
            std::abs(a.box.centerX() - b.box.centerX()) <= place);
}

/// The row is no part of the text behind it: it stands beside it, or away from it in letters of another size.
bool isSetApart(const RunningRow& row, const RunningRow& next, const RunningParameters::RunningHeads& limits) {
    const bool isBeside = overlap(row.box.left, row.box.right, next.box.left, next.box.right) <= 0;
    const double gap = next.fromEdge - row.fromEdge - row.box.height();
    return isBeside ||
           (gap >= limits.bodyGap * row.fontSize && std::abs(row.fontSize - next.fontSize) > limits.sameSize);
}

} // namespace

double textStart(const EdgeRows& edge) {
    return edge.taken < edge.rows.size() ? edge.rows[edge.taken].fromEdge : std::numeric_limits<double>::infinity();
}

void trimTaken(EdgeRows& edge, std::size_t count) {
    edge.taken = std::min(edge.taken, count);
    while (edge.taken > 0 && edge.matches[edge.taken - 1] == RowMatch::None)
        --edge.taken;
}

void leaveTextPlaces(std::vector<EdgeRows>& edges, const RunningParameters::RunningHeads& parameters) {
    std::vector<double> texts, heads;
    for (const EdgeRows& edge : edges) {
        if (edge.taken < edge.rows.size())
            texts.push_back(textStart(edge));
        for (std::size_t i = 0; i < edge.taken; ++i)
            heads.push_back(edge.rows[i].fromEdge);
    }
    std::sort(texts.begin(), texts.end());
    std::sort(heads.begin(), heads.end());
    for (EdgeRows& edge : edges) {
        while (edge.taken > 0) {
            const RunningRow& inner = edge.rows[edge.taken - 1];
            const double place = inner.fromEdge;
            const auto pagesWithHead =
                countBetween(heads, place - parameters.samePosition, place + parameters.samePosition);
            const double half = inner.box.height() / 2;
            const auto pagesWithText = countBetween(texts, 0, place + half);
            const bool isStartOfText =
                isMany(countBetween(texts, place - half, place + half), pagesWithHead, parameters.textShare);
            if (pagesWithText < pagesWithHead && !isStartOfText)
                break;
            trimTaken(edge, edge.taken - 1);
        }
    }
}

void takeOwnHeads(std::vector<EdgeRows>& edges, const RunningParameters::RunningHeads& parameters) {
    std::vector<const RunningRow*> heads;
    double text = std::numeric_limits<double>::infinity();
    for (const EdgeRows& edge : edges)
        if (edge.taken > 0 && edge.matches[0] == RowMatch::Text) {
            heads.push_back(&edge.rows[0]);
            text = std::min(text, textStart(edge));
        }
    for (EdgeRows& edge : edges) {
        if (edge.taken > 0 || edge.rows.empty())
            continue;
        const RunningRow& row = edge.rows.front();
        const auto alike = std::count_if(heads.begin(), heads.end(),
                                         [&](const RunningRow* head) { return standsAlike(row, *head, parameters); });
        const bool isBeforeText = endOf(row) <= text;
        const bool isApart = edge.rows.size() == 1 || edge.rows[1].fromEdge >= text - parameters.samePosition ||
                             isSetApart(row, edge.rows[1], parameters);
        if (alike < kFewestAlike || !isBeforeText || !isApart)
            continue;
        edge.matches[0] = RowMatch::Text;
        edge.taken = 1;
    }
}

} // namespace orvane::layout
