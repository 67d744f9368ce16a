#include "layout/graphics/GradientMaker.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace orvane::layout {
namespace {

using document::Gradient;
using document::GradientKind;
using document::GradientStop;

std::uint8_t mixed(std::uint8_t from, std::uint8_t to, double share) {
    return static_cast<std::uint8_t>(std::lround(from + (to - from) * share));
}

Color mixed(Color from, Color to, double share) {
    return {mixed(from.red, to.red, share), mixed(from.green, to.green, share), mixed(from.blue, to.blue, share)};
}

Color colorAt(const std::vector<GradientStop>& stops, double position) {
    const auto behind =
        std::find_if(stops.begin(), stops.end(), [&](const GradientStop& stop) { return stop.position >= position; });
    if (behind == stops.begin())
        return stops.front().color;
    if (behind == stops.end())
        return stops.back().color;
    const GradientStop& before = *(behind - 1);
    const double length = behind->position - before.position;
    return length > 0 ? mixed(before.color, behind->color, (position - before.position) / length) : behind->color;
}

/// Cuts the stops, which may lie beyond the shape, to 0 and 1.
std::vector<GradientStop> cutToShape(const std::vector<GradientStop>& stops) {
    std::vector<GradientStop> cut{{0, colorAt(stops, 0)}};
    for (const GradientStop& stop : stops)
        if (stop.position > 0 && stop.position < 1)
            cut.push_back(stop);
    cut.push_back({1, colorAt(stops, 1)});
    return cut;
}

std::optional<Gradient> linearIn(const Rect& box, const pdf::Gradient& source,
                                 const GraphicsParameters::Gradients& limits) {
    const Point axis{source.to.x - source.from.x, source.to.y - source.from.y};
    const double square = axis.x * axis.x + axis.y * axis.y;
    if (!(square > 0))
        return std::nullopt;
    // Where along the axis the shape's corners lie.
    double first = std::numeric_limits<double>::infinity(), last = -first;
    for (const Point& corner : {Point{box.left, box.top}, Point{box.right, box.top}, Point{box.left, box.bottom},
                                Point{box.right, box.bottom}}) {
        const double along = ((corner.x - source.from.x) * axis.x + (corner.y - source.from.y) * axis.y) / square;
        first = std::min(first, along);
        last = std::max(last, along);
    }
    const bool isBare =
        (first < -limits.bareShare && !source.extendsBefore) || (last > 1 + limits.bareShare && !source.extendsAfter);
    if (isBare || !(last > first))
        return std::nullopt;
    std::vector<GradientStop> stops;
    for (const pdf::GradientStop& stop : source.stops)
        stops.push_back({(stop.position - first) / (last - first), stop.color});
    constexpr double kFullTurn = 360;
    const double angle = std::atan2(axis.y, axis.x) * 180 / std::numbers::pi;
    return Gradient{GradientKind::Linear, angle < 0 ? angle + kFullTurn : angle, cutToShape(stops)};
}

double distance(Point a, Point b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

/// How far the outline comes from the middle.
double reachOf(const pdf::Path& path, Point middle) {
    double reach = 0;
    for (const pdf::PathSegment& segment : path.segments)
        if (segment.verb != pdf::PathVerb::Close)
            reach = std::max(reach, distance(segment.to, middle));
    return reach;
}

std::optional<Gradient> radialIn(const Rect& box, const pdf::Path& path, const pdf::Gradient& source,
                                 const GraphicsParameters::Gradients& limits) {
    const bool runsInwards = source.fromRadius > source.toRadius;
    const double inner = std::min(source.fromRadius, source.toRadius);
    const double outer = std::max(source.fromRadius, source.toRadius);
    const Point middle{box.centerX(), box.centerY()};
    const double apart = limits.sameMiddle * outer;
    const bool isSquare =
        std::min(box.width(), box.height()) >= limits.squareness * std::max(box.width(), box.height());
    if (!isSquare || distance(source.from, source.to) > apart || distance(source.from, middle) > apart)
        return std::nullopt;
    const bool extendsInwards = runsInwards ? source.extendsAfter : source.extendsBefore;
    const bool extendsOutwards = runsInwards ? source.extendsBefore : source.extendsAfter;
    const bool isBare = (inner > limits.bareShare * outer && !extendsInwards) ||
                        (reachOf(path, middle) > (1 + limits.bareShare) * outer && !extendsOutwards);
    const double corner = distance(middle, {box.left, box.top});
    if (isBare || !(outer > inner) || !(corner > 0))
        return std::nullopt;
    std::vector<GradientStop> stops;
    for (const pdf::GradientStop& stop : source.stops)
        stops.push_back(
            {(source.fromRadius + (source.toRadius - source.fromRadius) * stop.position) / corner, stop.color});
    if (runsInwards)
        std::reverse(stops.begin(), stops.end());
    return Gradient{GradientKind::Radial, 0, cutToShape(stops)};
}

} // namespace

std::optional<Gradient> gradientIn(const Rect& box, const pdf::Path& path,
                                   const GraphicsParameters::Gradients& limits) {
    if (!path.fill || !path.fill->gradient || path.isSimplified || box.isEmpty())
        return std::nullopt;
    const pdf::Gradient& source = *path.fill->gradient;
    if (source.stops.size() < 2 || source.stops.size() > limits.mostStops)
        return std::nullopt;
    return source.kind == pdf::GradientKind::Axial ? linearIn(box, source, limits)
                                                   : radialIn(box, path, source, limits);
}

} // namespace orvane::layout
