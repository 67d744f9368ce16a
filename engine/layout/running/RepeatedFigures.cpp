#include "layout/running/RepeatedFigures.h"

#include "layout/running/EdgeRows.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

namespace orvane::layout {
namespace {

bool isSamePlace(const Rect& a, const Rect& b, double tolerance) {
    return std::abs(a.left - b.left) <= tolerance && std::abs(a.top - b.top) <= tolerance &&
           std::abs(a.right - b.right) <= tolerance && std::abs(a.bottom - b.bottom) <= tolerance;
}

bool looksAlike(const document::Shape& a, const document::Shape& b) {
    const bool haveSameLine = a.line.has_value() == b.line.has_value() &&
                              (!a.line || (a.line->color == b.line->color && a.line->kind == b.line->kind));
    return haveSameLine && a.fill == b.fill &&
           std::equal(a.segments.begin(), a.segments.end(), b.segments.begin(), b.segments.end(),
                      [](const auto& one, const auto& other) { return one.verb == other.verb; });
}

/// Drawings at one place are the same if their shapes are made of the same lines and curves, in the same colours.
bool looksAlike(const Figure& a, const Figure& b) {
    if (a.picture != b.picture || a.drawing.has_value() != b.drawing.has_value())
        return false;
    return !a.drawing || std::equal(a.drawing->shapes.begin(), a.drawing->shapes.end(), b.drawing->shapes.begin(),
                                    b.drawing->shapes.end(),
                                    [](const auto& one, const auto& other) { return looksAlike(one, other); });
}

/// Its middle stands among the lines of the body.
bool isAmong(const Rect& box, const BodyRange& body) {
    return box.centerY() > body.top && box.centerY() < body.bottom;
}

/// Likewise what reaches farther into the page than running heads do.
bool standsInText(const Rect& box, const BodyRange& body, double pageHeight, double reach) {
    const double depth = std::min(box.bottom, pageHeight - box.top);
    return isAmong(box, body) || depth > reach * pageHeight;
}

bool saysSame(const Figure& a, const Figure& b) {
    return std::equal(a.labels.begin(), a.labels.end(), b.labels.begin(), b.labels.end(),
                      [](const Line& one, const Line& other) { return textOf(one) == textOf(other); });
}

class FigureComparer {
public:
    FigureComparer(const std::vector<PageText>& pages, const RunningParameters::RunningHeads& limits)
        : m_pages(pages)
        , m_limits(limits) {}

    bool isOnPage(std::size_t page, const Figure& figure) const {
        return hasAlike(page, figure, [](const Figure&) { return true; });
    }
    bool isOnPageNearby(std::size_t page, const Figure& figure) const {
        return isNearby(page, [&](std::size_t other) { return isOnPage(other, figure); });
    }
    /// A chart that is shown again; the words over a mark that repeats are those of each page.
    bool isNearbyWithItsWords(std::size_t page, const Figure& figure) const {
        return !figure.labels.empty() && isNearby(page, [&](std::size_t nearby) {
            return hasAlike(nearby, figure, [&](const Figure& other) { return saysSame(other, figure); });
        });
    }
    int pagesWith(const Figure& figure) const {
        int count = 0;
        for (std::size_t i = 0; i < m_pages.size() && count < m_limits.surePages; ++i)
            count += isOnPage(i, figure);
        return count;
    }

private:
    template<typename Predicate>
    bool hasAlike(std::size_t page, const Figure& figure, const Predicate& also) const {
        const std::vector<Figure>& figures = m_pages[page].figures;
        return std::any_of(figures.begin(), figures.end(), [&](const Figure& other) {
            return isSamePlace(other.box, figure.box, m_limits.samePosition) && looksAlike(other, figure) &&
                   also(other);
        });
    }
    template<typename Predicate>
    bool isNearby(std::size_t page, const Predicate& holds) const {
        for (std::ptrdiff_t by = -kRunningReach; by <= kRunningReach; ++by) {
            const auto other = static_cast<std::ptrdiff_t>(page) + by;
            if (by != 0 && other >= 0 && other < static_cast<std::ptrdiff_t>(m_pages.size()) &&
                holds(static_cast<std::size_t>(other)))
                return true;
        }
        return false;
    }

    const std::vector<PageText>& m_pages;
    const RunningParameters::RunningHeads& m_limits;
};

} // namespace

std::vector<std::vector<std::size_t>> findRepeatedFigures(const std::vector<PageText>& pages,
                                                          const std::vector<BodyRange>& bodies,
                                                          const RunningParameters::RunningHeads& parameters) {
    const FigureComparer comparer(pages, parameters);
    std::vector<std::vector<std::size_t>> repeated(pages.size());
    for (std::size_t page = 0; page < pages.size(); ++page) {
        for (std::size_t i = 0; i < pages[page].figures.size(); ++i) {
            const Figure& figure = pages[page].figures[i];
            if ((figure.picture.value == 0 && !figure.drawing) || !comparer.isOnPageNearby(page, figure))
                continue;
            const bool isInText = standsInText(figure.box, bodies[page], pages[page].height, parameters.reach);
            if (isInText && comparer.isNearbyWithItsWords(page, figure))
                continue;
            if (!isInText || comparer.pagesWith(figure) >= parameters.surePages)
                repeated[page].push_back(i);
        }
    }
    return repeated;
}

std::vector<Line> takeRepeatedFigures(PageText& page, const std::vector<std::size_t>& repeated, const BodyRange& body,
                                      PageRunningHeads& heads) {
    std::vector<Line> words;
    std::vector<Figure> rest;
    for (std::size_t i = 0; i < page.figures.size(); ++i) {
        Figure& figure = page.figures[i];
        if (std::find(repeated.begin(), repeated.end(), i) == repeated.end()) {
            rest.push_back(std::move(figure));
            continue;
        }
        if (isAmong(figure.box, body)) {
            figure.isBackground = figure.isBackground || !figure.labels.empty();
            std::move(figure.labels.begin(), figure.labels.end(), std::back_inserter(words));
            figure.labels.clear();
            figure.alternateText.clear();
        }
        // What lies behind the whole page is anchored in the header.
        const bool isHeader = figure.isBackground || figure.box.centerY() < page.height / 2;
        std::optional<RunningHead>& head = isHeader ? heads.header : heads.footer;
        if (!head)
            head = emptyHead(page);
        head->key += std::to_string(figure.picture.value) + '\n';
        head->content.figures.push_back(std::move(figure));
    }
    page.figures = std::move(rest);
    return words;
}

} // namespace orvane::layout
