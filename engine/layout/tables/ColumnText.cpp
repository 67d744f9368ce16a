#include "layout/tables/ColumnText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane::layout {
namespace {

double edgeOf(const Rect& box, std::size_t edge) {
    return box.left + 0.5 * static_cast<double>(edge) * box.width();
}

} // namespace

void measure(ColumnText& column) {
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t edge = 0; edge < column.edges.size() && !column.boxes.empty(); ++edge) {
        std::vector<double> values;
        for (const Rect& box : column.boxes)
            values.push_back(edgeOf(box, edge));
        std::sort(values.begin(), values.end());
        column.edges[edge] = values[values.size() / 2];
        double spread = 0;
        for (const double value : values)
            spread += std::abs(value - column.edges[edge]);
        constexpr double kArithmetic = 0.01; // points; of equal edges the first counts
        if (spread < least - kArithmetic) {
            least = spread;
            column.kept = static_cast<KeptEdge>(edge);
        }
    }
}

bool isInTheMiddle(const Rect& head, const std::vector<ColumnText>& columns, const ColumnRange& range,
                   const TableParameters::Tables& parameters) {
    const ColumnText& first = columns[static_cast<std::size_t>(range.first)];
    const ColumnText& last = columns[static_cast<std::size_t>(range.last)];
    if (first.boxes.empty() || last.boxes.empty())
        return false;
    const auto edge = static_cast<std::size_t>(first.kept);
    const double from = first.edges[edge];
    const double to = last.edges[edge];
    const double width = (to - from) / (range.last - range.first);
    const double tolerance = parameters.headCenter * width;
    const double ofCells = (from + to) / 2 + 0.5 * (1.0 - static_cast<double>(edge)) * width;
    const double ofTexts = (first.box.left + last.box.right) / 2;
    return std::abs(ofCells - head.centerX()) <= tolerance || std::abs(ofTexts - head.centerX()) <= tolerance;
}

} // namespace orvane::layout
