#include "layout/running/RunningHeads.h"

#include "layout/running/EdgeRows.h"
#include "layout/running/FirstPageEdges.h"
#include "layout/running/HeadPlaces.h"
#include "layout/running/OnlyPageEdges.h"
#include "layout/running/RepeatedFigures.h"
#include "layout/running/RepeatedRules.h"
#include "layout/text/Line.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace orvane::layout {
namespace {

/// One page with what was found out about its edges.
struct PageEdges {
    EdgeRows top;
    EdgeRows bottom;
    BodyRange body;
    double headerEnd = 0;   ///< y; what stands above belongs to the header
    double footerStart = 0; ///< y; what stands below belongs to the footer
};

/// Which lines of the page belong to a running head.
std::vector<bool> linesTaken(const PageText& page, const EdgeRows& edge) {
    std::vector<bool> isTaken(page.lines.size(), false);
    for (std::size_t i = 0; i < edge.taken; ++i)
        for (const std::size_t line : edge.rows[i].lines)
            isTaken[line] = true;
    return isTaken;
}

Rect boxOfTaken(const EdgeRows& edge) {
    Rect box;
    for (std::size_t i = 0; i < edge.taken; ++i)
        box = box.united(edge.rows[i].box);
    return box;
}

PageEdges measureEdges(const PageText& page, EdgeRows top, EdgeRows bottom) {
    const Rect header = boxOfTaken(top), footer = boxOfTaken(bottom);
    PageEdges edges{std::move(top), std::move(bottom), {page.height, 0}, 0, page.height};
    const std::vector<bool> isHeader = linesTaken(page, edges.top), isFooter = linesTaken(page, edges.bottom);
    for (std::size_t i = 0; i < page.lines.size(); ++i) {
        if (isHeader[i] || isFooter[i])
            continue;
        edges.body.top = std::min(edges.body.top, page.lines[i].box.top);
        edges.body.bottom = std::max(edges.body.bottom, page.lines[i].box.bottom);
    }
    // Rules and pictures halfway to the text belong to the running head.
    if (!header.isEmpty())
        edges.headerEnd = (header.bottom + std::min(edges.body.top, footer.isEmpty() ? page.height : footer.top)) / 2;
    if (!footer.isEmpty())
        edges.footerStart = (footer.top + std::max(edges.body.bottom, header.bottom)) / 2;
    return edges;
}

/// Moves the elements for which `isPart` holds from one vector to the other.
template<typename T, typename Predicate>
void moveParts(std::vector<T>& from, std::vector<T>& to, const Predicate& isPart) {
    std::vector<T> rest;
    for (T& item : from)
        (isPart(item) ? to : rest).push_back(std::move(item));
    from = std::move(rest);
}

/// Moves the rules that the page shares with most others to its heads.
void takeRules(PageText& page, std::size_t index, const std::vector<RepeatedRule>& repeated,
               const RunningParameters::RunningHeads& limits, PageRunningHeads& heads) {
    for (const RepeatedRule& common : repeated) {
        if (!common.pages[index])
            continue;
        std::optional<RunningHead>& head = common.edge == PageEdge::Top ? heads.header : heads.footer;
        if (!head)
            head = emptyHead(page);
        head->rules += '_' + std::to_string(std::lround(common.rule.position)) + '\n';
        moveParts(page.rules, head->content.rules,
                  [&](const Rule& rule) { return isSamePlace(rule, common.rule, limits); });
    }
}

void takeLines(PageText& page, const PageEdges& edges, PageRunningHeads& heads) {
    const std::vector<bool> isHeader = linesTaken(page, edges.top), isFooter = linesTaken(page, edges.bottom);
    std::vector<Line> rest;
    for (std::size_t i = 0; i < page.lines.size(); ++i) {
        std::vector<Line>& target = isHeader[i]   ? heads.header->content.lines
                                    : isFooter[i] ? heads.footer->content.lines
                                                  : rest;
        target.push_back(std::move(page.lines[i]));
    }
    page.lines = std::move(rest);
}

/// Upright extent of the rows that are taken, with as much room around them as the highest of them has height.
BodyRange reachOf(const EdgeRows& edge) {
    Rect rows;
    double highest = 0;
    for (std::size_t i = 0; i < edge.taken; ++i) {
        rows = rows.united(edge.rows[i].box);
        highest = std::max(highest, edge.rows[i].box.height());
    }
    return {rows.top - highest, rows.bottom + highest};
}

/// Whether a picture stands beside the rows or beyond them. One that reaches farther into the page is one of this page,
/// unless it is found on others too.
bool isBesideRows(const Rect& box, const EdgeRows& edge, PageEdge side) {
    const BodyRange reach = reachOf(edge);
    return side == PageEdge::Top ? box.bottom <= reach.bottom : box.top >= reach.top;
}

/// The upright rules that lead over y.
std::vector<Rule> rulesAcross(const PageText& page, double y) {
    std::vector<Rule> across;
    for (const Rule& rule : page.rules)
        if (rule.direction == RuleDirection::Vertical && rule.from < y && rule.to > y)
            across.push_back(rule);
    return across;
}

/// Whether the rule is the side of a box whose other sides are upright rules of the page.
bool closesBox(const Rule& rule, const std::vector<Rule>& sides, PageEdge edge, double slack) {
    const auto meetsSide = [&](double x) {
        return std::any_of(sides.begin(), sides.end(), [&](const Rule& side) {
            const double end = edge == PageEdge::Top ? side.from : side.to;
            return std::abs(side.position - x) <= slack && std::abs(end - rule.position) <= slack;
        });
    };
    return rule.direction == RuleDirection::Horizontal && meetsSide(rule.from) && meetsSide(rule.to);
}

/// Moves what is drawn around the rows, up to `limit`, where the text may begin. Boxes that reach farther are whole.
void takeDrawn(PageText& page, const EdgeRows& edge, PageEdge side, double limit, double slack, PageText& head) {
    const auto isBeyond = [&](double top, double bottom) {
        return side == PageEdge::Top ? bottom <= limit : top >= limit;
    };
    moveParts(page.grounds, head.grounds,
              [&](const Ground& ground) { return isBeyond(ground.box.top, ground.box.bottom); });
    moveParts(page.figures, head.figures, [&](const Figure& figure) {
        return isBeyond(figure.box.top, figure.box.bottom) && isBesideRows(figure.box, edge, side);
    });
    const std::vector<Rule> across = rulesAcross(page, limit);
    moveParts(page.rules, head.rules, [&](const Rule& rule) {
        return rule.direction == RuleDirection::Vertical
                   ? isBeyond(rule.from, rule.to)
                   : isBeyond(rule.position, rule.position) && !closesBox(rule, across, side, slack);
    });
}

/// Where a row stands between the sides of the page.
char sideOf(const RunningRow& row, double pageWidth, double tolerance) {
    const double left = row.box.left, right = pageWidth - row.box.right;
    return std::abs(left - right) <= tolerance ? 'c' : left < right ? 'l' : 'r';
}

/// The row's text with '#' for the numbers that count.
std::string repeatedText(const RunningRow& row) {
    std::string text;
    std::size_t number = 0;
    for (const char c : row.skeleton)
        if (c == '#' && number < row.numbers.size() && row.numbers[number++].isRepeated)
            text += std::to_string(row.numbers[number - 1].value);
        else
            text += c;
    return text;
}

std::string keyOf(const EdgeRows& edge, double pageWidth, const RunningParameters::RunningHeads& limits) {
    std::string key;
    for (std::size_t i = 0; i < edge.taken; ++i) {
        // What stands beside a page number may change from page to page.
        key += edge.matches[i] == RowMatch::Text ? repeatedText(edge.rows[i]) : "~";
        key += sideOf(edge.rows[i], pageWidth, limits.sameSide);
        key += '\n';
    }
    return key;
}

void takeHeads(PageText& page, const PageEdges& edges, const RunningParameters::RunningHeads& limits,
               PageRunningHeads& heads) {
    const auto prepare = [&](const EdgeRows& edge, std::optional<RunningHead>& head) {
        if (edge.taken == 0)
            return;
        if (!head)
            head = emptyHead(page);
        head->key += keyOf(edge, page.width, limits);
    };
    prepare(edges.top, heads.header);
    prepare(edges.bottom, heads.footer);
    takeLines(page, edges, heads);
    if (edges.top.taken > 0)
        takeDrawn(page, edges.top, PageEdge::Top, edges.headerEnd, limits.samePosition, heads.header->content);
    if (edges.bottom.taken > 0)
        takeDrawn(page, edges.bottom, PageEdge::Bottom, edges.footerStart, limits.samePosition, heads.footer->content);
}

/// Whether most pages would hold nothing any more: a document of one numbered line a page, or of forms that are all
/// alike.
bool wouldEatTheText(const std::vector<PageText>& pages, const std::vector<PageEdges>& edges,
                     const RunningParameters::RunningHeads& limits) {
    std::size_t written = 0, emptied = 0;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const std::vector<bool> isHeader = linesTaken(pages[i], edges[i].top),
                                isFooter = linesTaken(pages[i], edges[i].bottom);
        std::size_t left = pages[i].figures.size();
        for (std::size_t line = 0; line < pages[i].lines.size(); ++line)
            left += !isHeader[line] && !isFooter[line];
        written += !pages[i].lines.empty();
        emptied += !pages[i].lines.empty() && left == 0;
    }
    return static_cast<double>(emptied) > limits.bodilessShare * static_cast<double>(written);
}

void takeRepeated(std::vector<EdgeRows>& tops, std::vector<EdgeRows>& bottoms,
                  const std::vector<std::optional<PageNumber>>& numbers, const std::vector<PageText>& pages,
                  const RunningParameters::RunningHeads& limits) {
    for (auto* edges : {&tops, &bottoms}) {
        leaveOtherNumbers(*edges, numbers);
        leaveTextPlaces(*edges, limits);
        takeOwnHeads(*edges, limits);
    }
    takeFirstFoot(bottoms, pages.front(), limits);
    takeFirstHead(tops, pages, limits);
}

} // namespace

RunningHead emptyHead(const PageText& page) {
    RunningHead head;
    head.content.number = page.number;
    head.content.width = page.width;
    head.content.height = page.height;
    head.content.fonts = page.fonts;
    head.content.links = page.links;
    head.content.marks = page.marks;
    return head;
}

std::vector<PageRunningHeads> takeRunningHeads(std::vector<PageText>& pages, const RunningParameters& parameters) {
    std::vector<PageRunningHeads> heads(pages.size());
    if (pages.empty())
        return heads;
    const RunningParameters::RunningHeads& limits = parameters.runningHeads;
    std::vector<EdgeRows> tops = readEdgeRows(pages, PageEdge::Top, limits);
    std::vector<EdgeRows> bottoms = readEdgeRows(pages, PageEdge::Bottom, limits);
    auto numbers = readPageNumbers(tops, bottoms);
    if (pages.size() == 1) {
        numbers[0] = takeOnlyNumber(bottoms[0], PageEdge::Bottom, pages[0], limits);
        if (!numbers[0])
            numbers[0] = takeOnlyNumber(tops[0], PageEdge::Top, pages[0], limits);
        if (bottoms[0].taken == 0)
            takeOnlyFoot(bottoms[0], pages[0], limits);
    } else {
        takeRepeated(tops, bottoms, numbers, pages, limits);
        takeLoneNumbers(bottoms, numbers);
        takeLoneNumbers(tops, numbers);
    }

    std::vector<PageEdges> edges;
    std::vector<BodyRange> bodies;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        edges.push_back(measureEdges(pages[i], tops[i], bottoms[i]));
        bodies.push_back(edges.back().body);
    }
    if (wouldEatTheText(pages, edges, limits))
        return heads;
    const auto figures = findRepeatedFigures(pages, bodies, limits);
    const auto rules = findRepeatedRules(pages, bodies, limits);
    const int pageCount = static_cast<int>(pages.size());
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const PageEdges& edge = edges[i];
        // The rows name lines by their index, so the numbers are cut out before any line moves.
        const auto topFields = cutOutNumbers(pages[i], edge.top, numbers[i], pageCount);
        const auto bottomFields = cutOutNumbers(pages[i], edge.bottom, numbers[i], pageCount);
        std::vector<Line> words = takeRepeatedFigures(pages[i], figures[i], bodies[i], heads[i]);
        takeRules(pages[i], i, rules, limits, heads[i]);
        takeHeads(pages[i], edge, limits, heads[i]);
        addLines(pages[i], std::move(words));
        if (heads[i].header)
            heads[i].header->fields = topFields;
        if (heads[i].footer)
            heads[i].footer->fields = bottomFields;
        heads[i].number = numbers[i];
    }
    return heads;
}

} // namespace orvane::layout
