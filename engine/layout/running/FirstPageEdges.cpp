#include "layout/running/FirstPageEdges.h"

#include "layout/running/HeadPlaces.h"
#include "layout/running/OnlyPageEdges.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane::layout {
namespace {

/// Where so many pages begin their text at one edge that it cannot begin nearer to it.
struct TextPlace {
    double fromEdge = 0;
    double fontSize = 0;
};

std::optional<TextPlace> textPlaceOfOthers(const std::vector<EdgeRows>& edges,
                                           const RunningParameters::RunningHeads& parameters) {
    const RunningRow* first = nullptr;
    for (std::size_t i = 1; i < edges.size(); ++i)
        if (edges[i].taken < edges[i].rows.size()) {
            const RunningRow& row = edges[i].rows[edges[i].taken];
            first = !first || row.fromEdge < first->fromEdge ? &row : first;
        }
    if (!first)
        return std::nullopt;
    const auto alike = std::count_if(edges.begin() + 1, edges.end(), [&](const EdgeRows& edge) {
        return textStart(edge) <= first->fromEdge + parameters.bodyGap * first->fontSize;
    });
    return alike >= parameters.fewestAlike ? std::optional(TextPlace{first->fromEdge, first->fontSize}) : std::nullopt;
}

/// Whether a page but the first has a picture above the text's place: then the picture may have pushed the text down.
bool haveFiguresAbove(const std::vector<PageText>& pages, const TextPlace& text) {
    return std::any_of(pages.begin() + 1, pages.end(), [&](const PageText& page) {
        return std::any_of(page.figures.begin(), page.figures.end(), [&](const Figure& figure) {
            return !figure.isBackground && figure.box.top < text.fromEdge;
        });
    });
}

/// Rules on both sides hold the rows together, as those of a table or of a box.
bool shareFrame(const PageText& page, const RunningRow& outer, const RunningRow& inner) {
    const double upper = std::min(outer.box.centerY(), inner.box.centerY());
    const double lower = std::max(outer.box.centerY(), inner.box.centerY());
    const double left = std::min(outer.box.left, inner.box.left), right = std::max(outer.box.right, inner.box.right);
    bool isOnLeft = false, isOnRight = false;
    for (const Rule& rule : page.rules) {
        if (rule.direction != RuleDirection::Vertical || rule.from > upper || rule.to < lower)
            continue;
        isOnLeft = isOnLeft || rule.position <= left;
        isOnRight = isOnRight || rule.position >= right;
    }
    return isOnLeft && isOnRight;
}

/// How many rows are set off from the text: those that begin before its place, and what shares a frame with them. 0
/// where they run on into the text.
std::size_t countSetOff(const EdgeRows& edge, const PageText& page, const TextPlace& text,
                        const RunningParameters::RunningHeads& limits) {
    for (std::size_t i = 1; i < edge.rows.size(); ++i) {
        const RunningRow& outer = edge.rows[i - 1];
        const RunningRow& inner = edge.rows[i];
        if (inner.fromEdge + limits.samePosition < text.fromEdge || shareFrame(page, outer, inner))
            continue;
        const double gap = limits.ownHeadGap * std::min(outer.fontSize, inner.fontSize);
        return inner.fromEdge - endOf(outer) >= gap ? i : 0;
    }
    return 0;
}

/// A row in letters of a title that no frame holds: the first page's text begins higher than that of the others.
bool hasTitle(const EdgeRows& edge, std::size_t count, const PageText& page, const TextPlace& text,
              const RunningParameters::RunningHeads& limits) {
    for (std::size_t i = 0; i < count; ++i) {
        const bool isFramed = (i > 0 && shareFrame(page, edge.rows[i - 1], edge.rows[i])) ||
                              (i + 1 < count && shareFrame(page, edge.rows[i], edge.rows[i + 1]));
        if (!isFramed && edge.rows[i].fontSize > limits.headingSize * text.fontSize)
            return true;
    }
    return false;
}

/// Takes the foot that only pages which are full to the same height can show. True if it did.
bool takeFootBelowFullPages(std::vector<EdgeRows>& edges, const RunningParameters::RunningHeads& parameters) {
    EdgeRows& first = edges.front();
    std::vector<double> texts;
    for (std::size_t i = 1; i < edges.size(); ++i)
        texts.push_back(textStart(edges[i]));
    for (std::size_t count = 1; count <= std::min(first.rows.size(), parameters.longestFirstFoot); ++count) {
        const RunningRow& last = first.rows[count - 1];
        std::vector<double> starts = texts;
        if (count < first.rows.size())
            starts.push_back(first.rows[count].fromEdge);
        std::sort(starts.begin(), starts.end());
        // Several pages that are full to the same height show where the text ends.
        const auto full =
            std::upper_bound(starts.begin(), starts.end(), starts.front() + parameters.fullPage * last.fontSize) -
            starts.begin();
        if (full < parameters.fewestAlike || starts.front() > parameters.deepestFirstFoot ||
            endOf(last) + parameters.ownFootGap * last.fontSize > starts.front())
            continue;
        takeRows(first, count);
        return true;
    }
    return false;
}

} // namespace

void takeFirstFoot(std::vector<EdgeRows>& edges, const PageText& page,
                   const RunningParameters::RunningHeads& parameters) {
    EdgeRows& first = edges.front();
    if (first.taken > 0 || takeFootBelowFullPages(edges, parameters))
        return;
    EdgeRows alone = first;
    takeOnlyFoot(alone, page, parameters);
    if (alone.taken == 0 || alone.taken == alone.rows.size())
        return;
    const double end = endOf(alone.rows[alone.taken - 1]);
    const RunningRow& above = alone.rows[alone.taken];
    if (shareFrame(page, above, above))
        return; // of a table, which goes on where its author wants it to
    const bool isFull = above.fromEdge - end <= parameters.fullFirstPage * page.height;
    const auto lower =
        std::count_if(edges.begin() + 1, edges.end(), [end](const EdgeRows& other) { return textStart(other) < end; });
    if (isFull && static_cast<double>(lower) < parameters.textShare * static_cast<double>(edges.size()))
        first = std::move(alone);
}

void takeFirstHead(std::vector<EdgeRows>& edges, const std::vector<PageText>& pages,
                   const RunningParameters::RunningHeads& parameters) {
    EdgeRows& first = edges.front();
    const bool hasHeads = std::any_of(edges.begin(), edges.end(), [](const EdgeRows& edge) { return edge.taken > 0; });
    const auto text = textPlaceOfOthers(edges, parameters);
    if (hasHeads || first.rows.empty() || !text || text->fromEdge > parameters.firstReach * pages.front().height ||
        haveFiguresAbove(pages, *text))
        return;
    RunningParameters::RunningHeads more = parameters;
    more.maximumRows = parameters.longestLetterhead;
    first.rows = rowsFromEdge(pages.front(), PageEdge::Top, more);
    first.matches.assign(first.rows.size(), RowMatch::None);
    for (RunningRow& letterhead : first.rows)
        letterhead.numbers.clear(); // of a street, of a day, but not of the page
    const RunningRow& row = first.rows.front();
    if (row.fromEdge + parameters.ownHeadGap * std::min(row.fontSize, text->fontSize) > text->fromEdge)
        return;
    const std::size_t count = countSetOff(first, pages.front(), *text, parameters);
    if (count > 0 && !hasTitle(first, count, pages.front(), *text, parameters))
        takeRows(first, count);
}

} // namespace orvane::layout
