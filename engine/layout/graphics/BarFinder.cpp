#include "layout/graphics/BarFinder.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// A ground as a bar that stands on its foot, or lies with its foot at the left.
struct Bar {
    Rect box;
    double foot = 0;
    double along = 0; ///< where it begins along the axis
    double breadth = 0;
    double length = 0;
};

enum class BarDirection { Standing, Lying };

Bar barOf(const Rect& box, BarDirection direction) {
    return direction == BarDirection::Standing ? Bar{box, box.bottom, box.left, box.width(), box.height()}
                                               : Bar{box, box.left, box.top, box.height(), box.width()};
}

bool holdsText(const Rect& box, const std::vector<Line>& lines) {
    return std::any_of(lines.begin(), lines.end(), [&](const Line& line) {
        return box.contains(Point{line.box.centerX(), line.box.centerY()});
    });
}

std::ptrdiff_t countLengths(std::vector<Bar>::const_iterator first, std::vector<Bar>::const_iterator last,
                            double sameEdge) {
    std::vector<double> lengths;
    for (auto bar = first; bar != last; ++bar)
        lengths.push_back(bar->length);
    std::sort(lengths.begin(), lengths.end());
    const auto end =
        std::unique(lengths.begin(), lengths.end(), [&](double a, double b) { return std::abs(a - b) <= sameEdge; });
    return end - lengths.begin();
}

/// Appends a box for each run of bars, sorted along their common axis, that stand side by side.
void appendRuns(const std::vector<Bar>& bars, const GraphicsParameters::Bars& limits, std::vector<Rect>& charts) {
    for (auto first = bars.begin(); first != bars.end();) {
        auto last = first + 1;
        while (last != bars.end() && std::abs(first->breadth - last->breadth) <= limits.sameEdge &&
               last->along - (last - 1)->along - first->breadth <= limits.widestGap * first->breadth)
            ++last;
        if (last - first >= limits.fewestBars && countLengths(first, last, limits.sameEdge) >= limits.fewestLengths) {
            Rect box;
            for (auto bar = first; bar != last; ++bar)
                box = box.united(bar->box);
            charts.push_back(box);
        }
        first = last;
    }
}

/// Sorts the bars by their axes.
void appendCharts(std::vector<Bar> bars, const GraphicsParameters::Bars& limits, std::vector<Rect>& charts) {
    std::sort(bars.begin(), bars.end(), [](const Bar& a, const Bar& b) { return a.foot < b.foot; });
    for (auto first = bars.begin(); first != bars.end();) {
        const double reach = first->foot + limits.sameEdge;
        const auto last = std::find_if(first, bars.end(), [&](const Bar& bar) { return bar.foot > reach; });
        std::vector<Bar> onAxis(first, last);
        std::sort(onAxis.begin(), onAxis.end(), [](const Bar& a, const Bar& b) { return a.along < b.along; });
        appendRuns(onAxis, limits, charts);
        first = last;
    }
}

} // namespace

std::vector<Rect> findBars(const PageText& text, const GraphicsParameters::Bars& limits) {
    std::vector<Rect> charts;
    for (const BarDirection direction : {BarDirection::Standing, BarDirection::Lying}) {
        std::vector<Bar> bars;
        for (const Ground& ground : text.grounds)
            if (!ground.isUsed && ground.color != kWhite && !holdsText(ground.box, text.lines))
                bars.push_back(barOf(ground.box, direction));
        appendCharts(std::move(bars), limits, charts);
    }
    return charts;
}

} // namespace orvane::layout
