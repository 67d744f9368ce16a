#include "layout/page/FacingPages.h"

#include "layout/page/PageMap.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

/// How far the text of a page stands from its sides. Units: points.
struct Margins {
    double left = 0;
    double right = 0;
};

/// The lowest of the values that enough others are near to.
double outermost(std::vector<double> values, const PageParameters::FacingPages& limits) {
    std::sort(values.begin(), values.end());
    const auto enough = static_cast<std::size_t>(std::ceil(limits.edgeShare * static_cast<double>(values.size())));
    std::size_t to = 0;
    for (std::size_t from = 0; from < values.size(); ++from) {
        while (to < values.size() && values[to] <= values[from] + limits.sameEdge)
            ++to;
        if (to - from >= enough)
            return values[from + (to - from) / 2];
    }
    return values.front();
}

/// The outermost edges at which enough lines start and end.
std::optional<Margins> marginsOf(const PageText& page, const PageParameters::FacingPages& limits) {
    std::vector<double> lefts, rights;
    for (const Line& line : page.lines)
        if (line.angle == 0 && !line.isVertical) {
            lefts.push_back(line.box.left);
            rights.push_back(page.width - line.box.right);
        }
    if (lefts.size() < limits.fewestLines)
        return std::nullopt;
    return Margins{outermost(std::move(lefts), limits), outermost(std::move(rights), limits)};
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The margins that the pages of one side share; nothing where too many differ.
std::optional<Margins> sharedMargins(const std::vector<Margins>& pages, const PageParameters::FacingPages& limits) {
    if (pages.size() < limits.fewestPages)
        return std::nullopt;
    std::vector<double> lefts, rights;
    for (const Margins& page : pages) {
        lefts.push_back(page.left);
        rights.push_back(page.right);
    }
    const Margins shared{median(lefts), median(rights)};
    const auto agreeing = std::count_if(pages.begin(), pages.end(), [&](const Margins& page) {
        // Lists start farther in, programs and contents end anywhere.
        return std::abs(page.left - shared.left) <= limits.sameEdge ||
               std::abs(page.right - shared.right) <= limits.sameEdge;
    });
    return static_cast<double>(agreeing) >= limits.agreeing * static_cast<double>(pages.size()) ? std::optional(shared)
                                                                                                : std::nullopt;
}

bool haveOneSize(const std::vector<PageText>& pages, double tolerance) {
    return std::all_of(pages.begin(), pages.end(),
                       [&](const PageText& page) { return std::abs(page.width - pages.front().width) <= tolerance; });
}

} // namespace

bool alignFacingPages(std::vector<PageText>& pages, const PageParameters::FacingPages& limits) {
    if (pages.empty() || !haveOneSize(pages, limits.sameEdge))
        return false;
    std::vector<Margins> sides[2];
    for (std::size_t i = 0; i < pages.size(); ++i)
        if (const auto margins = marginsOf(pages[i], limits))
            sides[i % 2].push_back(*margins);
    const auto first = sharedMargins(sides[0], limits), second = sharedMargins(sides[1], limits);
    if (!first || !second || std::abs(first->left - second->left) < limits.leastShift ||
        std::abs(first->left - second->right) > 2 * limits.sameEdge ||
        std::abs(first->right - second->left) > 2 * limits.sameEdge)
        return false;
    for (std::size_t i = 1; i < pages.size(); i += 2)
        mapPage(pages[i], {1, 0, 0, 1, first->left - second->left, 0});
    return true;
}

} // namespace orvane::layout
