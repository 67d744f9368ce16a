#include "pdf/ShadingGradient.h"

#include "pdf/PageSpace.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <GfxState.h>

namespace orvane::pdf {
namespace {

constexpr std::size_t kSamples = 65; ///< along the axis; finer changes are not seen
constexpr int kSameColor = 8;        ///< of 255; colours that differ by less look alike within a change

Color colorAt(GfxUnivariateShading& shading, double position) {
    const double from = shading.getDomain0(), to = shading.getDomain1();
    GfxColor color = {};
    shading.getColor(from + (to - from) * position, &color);
    GfxRGB rgb;
    shading.getColorSpace()->getRGB(&color, &rgb);
    return toColor(rgb);
}

std::uint8_t mixed(std::uint8_t from, std::uint8_t to, double share) {
    return static_cast<std::uint8_t>(std::lround(from + (to - from) * share));
}

/// How far the sample is from where a straight change between the other two would lead.
int differenceFrom(const GradientStop& sample, const GradientStop& from, const GradientStop& to) {
    const double share = (sample.position - from.position) / (to.position - from.position);
    const auto difference = [&](std::uint8_t Color::*channel) {
        return std::abs(sample.color.*channel - mixed(from.color.*channel, to.color.*channel, share));
    };
    return std::max({difference(&Color::red), difference(&Color::green), difference(&Color::blue)});
}

/// Appends the samples behind `from`, up to `to`, that no straight change between those around them explains.
void appendStops(const std::vector<GradientStop>& samples, std::size_t from, std::size_t to,
                 std::vector<GradientStop>& stops) {
    std::size_t farthest = from;
    int difference = kSameColor;
    for (std::size_t i = from + 1; i < to; ++i)
        if (const int here = differenceFrom(samples[i], samples[from], samples[to]); here > difference) {
            farthest = i;
            difference = here;
        }
    if (farthest > from) {
        appendStops(samples, from, farthest, stops);
        appendStops(samples, farthest, to, stops);
    } else {
        stops.push_back(samples[to]);
    }
}

std::vector<GradientStop> stopsOf(GfxUnivariateShading& shading) {
    std::vector<GradientStop> samples;
    for (std::size_t i = 0; i < kSamples; ++i) {
        const double position = static_cast<double>(i) / (kSamples - 1);
        samples.push_back({position, colorAt(shading, position)});
    }
    std::vector<GradientStop> stops{samples.front()};
    appendStops(samples, 0, kSamples - 1, stops);
    return stops;
}

/// The gradient without its geometry; null where something else shows beside it.
std::shared_ptr<Gradient> colorsOf(GfxUnivariateShading& shading, GradientKind kind) {
    const bool extendsBoth = shading.getExtend0() && shading.getExtend1();
    if (shading.getHasBackground() && !extendsBoth)
        return nullptr;
    auto gradient = std::make_shared<Gradient>();
    gradient->kind = kind;
    gradient->extendsBefore = shading.getExtend0();
    gradient->extendsAfter = shading.getExtend1();
    gradient->stops = stopsOf(shading);
    return gradient;
}

} // namespace

std::shared_ptr<const Gradient> gradientOf(GfxAxialShading& shading, const Matrix& toPage) {
    Point from, to;
    shading.getCoords(&from.x, &from.y, &to.x, &to.y);
    // A skewed page space turns the lines of one colour, to which the axis has to stay upright.
    const Point across{-(to.y - from.y), to.x - from.x};
    const Point start = toPage.apply(from), end = toPage.apply(to);
    const Point along{toPage.a * across.x + toPage.c * across.y, toPage.b * across.x + toPage.d * across.y};
    const double length = std::hypot(along.x, along.y);
    if (!(length > 0) || !std::isfinite(length))
        return nullptr;
    const Point normal{-along.y / length, along.x / length};
    const double reach = (end.x - start.x) * normal.x + (end.y - start.y) * normal.y;
    std::shared_ptr<Gradient> gradient = colorsOf(shading, GradientKind::Axial);
    if (!gradient)
        return nullptr;
    gradient->from = start;
    gradient->to = {start.x + reach * normal.x, start.y + reach * normal.y};
    return gradient;
}

std::shared_ptr<const Gradient> gradientOf(GfxRadialShading& shading, const Matrix& toPage) {
    constexpr double kRound = 0.01; // of the scale; rounder than anybody sees
    const double across = std::hypot(toPage.a, toPage.b), upright = std::hypot(toPage.c, toPage.d);
    const bool isRightAngle = std::abs(toPage.a * toPage.c + toPage.b * toPage.d) <= kRound * across * upright;
    if (!isRightAngle || std::abs(across - upright) > kRound * across)
        return nullptr;
    std::shared_ptr<Gradient> gradient = colorsOf(shading, GradientKind::Radial);
    if (!gradient)
        return nullptr;
    Point from, to;
    shading.getCoords(&from.x, &from.y, &gradient->fromRadius, &to.x, &to.y, &gradient->toRadius);
    gradient->from = toPage.apply(from);
    gradient->to = toPage.apply(to);
    gradient->fromRadius *= across;
    gradient->toRadius *= across;
    return gradient;
}

} // namespace orvane::pdf
