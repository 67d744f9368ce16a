#include "layout/tables/RowStripes.h"

#include <algorithm>
#include <map>

namespace orvane::layout {
namespace {

Rect textOf(const AlignedRows& aligned, const RowGroup& group) {
    Rect box;
    for (std::size_t i = group.first; i < group.end; ++i)
        box = box.united(aligned.rows[i].box);
    return box;
}

} // namespace

RowStripes::RowStripes(const PageText& page, const TableParameters::Tables& parameters)
    : m_page(page)
    , m_parameters(parameters)
    , m_index(parameters.stripeStep) {
    std::map<std::pair<long, long>, std::vector<Rect>> sets;
    for (const Ground& ground : page.grounds)
        if (!ground.isUsed)
            sets[{std::lround(ground.box.left), std::lround(ground.box.right)}].push_back(ground.box);
    std::size_t set = 0;
    for (const auto& [ends, boxes] : sets) {
        ++set;
        if (boxes.size() < parameters.fewestStripes)
            continue;
        for (const Rect& box : boxes) {
            m_index.add(box, m_stripes.size());
            m_stripes.push_back({box, set});
        }
    }
}

/// The stripe that holds the text; null when there is none, or more than one of them lie there.
const RowStripes::Stripe* RowStripes::stripeBehind(const Rect& text) const {
    const double slack = m_parameters.filledSnap;
    const Stripe* found = nullptr;
    int count = 0;
    m_index.visit({text.left + slack, text.centerY(), text.right - slack, text.centerY()}, [&](std::size_t i) {
        const Rect& box = m_stripes[i].box;
        if (box.left > text.left + slack || box.right < text.right - slack)
            return;
        found = &m_stripes[i];
        ++count;
    });
    return count == 1 ? found : nullptr;
}

/// The stripes behind at least two of the rows; nothing when there are none, or two rows stand on one of them.
std::optional<std::size_t> RowStripes::setBehind(std::span<const PieceRow> rows) const {
    std::map<std::size_t, std::size_t> count;
    const Stripe* last = nullptr;
    for (const PieceRow& row : rows) {
        const Stripe* stripe = stripeBehind(row.box);
        if (stripe && stripe != last)
            ++count[stripe->set];
        last = stripe;
    }
    const auto most =
        std::max_element(count.begin(), count.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
    return most != count.end() && most->second >= m_parameters.fewestStripes ? std::optional(most->first)
                                                                             : std::nullopt;
}

bool RowStripes::goOnTo(std::span<const PieceRow> rows) const {
    const Stripe* stripe = stripeBehind(rows.back().box);
    return stripe && setBehind(rows.first(rows.size() - 1)) == stripe->set;
}

void RowStripes::snap(TableGrid& grid, const AlignedRows& aligned) const {
    const std::optional<std::size_t> set = setBehind(aligned.rows);
    if (!set || grid.rowEdges.size() != aligned.groups.size() + 1)
        return;
    std::vector<Rect> texts;
    for (const RowGroup& group : aligned.groups)
        texts.push_back(textOf(aligned, group));
    Rect ends;
    for (std::size_t row = 0; row < texts.size(); ++row) {
        const Stripe* stripe = stripeBehind(texts[row]);
        if (!stripe || stripe->set != *set)
            continue;
        ends = stripe->box;
        // An edge stays between the texts above and below it.
        if (row == 0 || stripe->box.top >= texts[row - 1].centerY())
            grid.rowEdges[row] = stripe->box.top;
        if (row + 1 == texts.size() || stripe->box.bottom <= texts[row + 1].centerY())
            grid.rowEdges[row + 1] = stripe->box.bottom;
    }
    if (ends.left > m_parameters.filledSnap && ends.left < grid.columnEdges[1])
        grid.columnEdges.front() = ends.left;
    if (ends.right < m_page.width - m_parameters.filledSnap &&
        ends.right > grid.columnEdges[grid.columnEdges.size() - 2])
        grid.columnEdges.back() = ends.right;
}

} // namespace orvane::layout
