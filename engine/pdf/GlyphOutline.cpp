#include "pdf/GlyphOutline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include FT_OUTLINE_H

namespace orvane::pdf {
namespace {

constexpr int kCurveParts = 8; ///< straight pieces that a curve is cut into

/// Collects an outline as straight pieces.
struct Tracer {
    std::vector<OutlinePiece> pieces;
    double unit = 1; ///< em of a font unit
    double x = 0, y = 0;

    void lineTo(double toX, double toY) {
        pieces.push_back({x, y, toX, toY});
        x = toX;
        y = toY;
    }
};

Tracer& tracer(void* user) {
    return *static_cast<Tracer*>(user);
}
int moveTo(const FT_Vector* to, void* user) {
    Tracer& trace = tracer(user);
    trace.x = static_cast<double>(to->x) * trace.unit;
    trace.y = static_cast<double>(to->y) * trace.unit;
    return 0;
}
int lineTo(const FT_Vector* to, void* user) {
    Tracer& trace = tracer(user);
    trace.lineTo(static_cast<double>(to->x) * trace.unit, static_cast<double>(to->y) * trace.unit);
    return 0;
}
int cubicTo(const FT_Vector* one, const FT_Vector* two, const FT_Vector* to, void* user) {
    Tracer& trace = tracer(user);
    const double x0 = trace.x, y0 = trace.y;
    const auto along = [](double a, double b, double c, double d, double t) {
        const double u = 1 - t;
        return u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * c + t * t * t * d;
    };
    const auto em = [&](FT_Pos value) { return static_cast<double>(value) * trace.unit; };
    for (int i = 1; i <= kCurveParts; ++i) {
        const double t = static_cast<double>(i) / kCurveParts;
        trace.lineTo(along(x0, em(one->x), em(two->x), em(to->x), t), along(y0, em(one->y), em(two->y), em(to->y), t));
    }
    return 0;
}
int conicTo(const FT_Vector* one, const FT_Vector* to, void* user) {
    Tracer& trace = tracer(user);
    // Source: a quadratic curve as a cubic one has its inner points two thirds of the way to the quadratic's.
    const auto inner = [&](double from, FT_Pos control) {
        return static_cast<FT_Pos>((from / trace.unit + 2.0 * static_cast<double>(control)) / 3);
    };
    const FT_Vector first{inner(trace.x, one->x), inner(trace.y, one->y)};
    const FT_Vector second{(to->x + 2 * one->x) / 3, (to->y + 2 * one->y) / 3};
    return cubicTo(&first, &second, to, user);
}

} // namespace

std::vector<OutlinePiece> outlineOf(FT_Face face, FT_UInt glyph) {
    if (FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE | FT_LOAD_IGNORE_TRANSFORM) != 0 ||
        face->glyph->format != FT_GLYPH_FORMAT_OUTLINE || face->units_per_EM == 0)
        return {};
    Tracer trace;
    trace.unit = 1.0 / face->units_per_EM;
    FT_Outline_Funcs functions{};
    functions.move_to = moveTo;
    functions.line_to = lineTo;
    functions.conic_to = conicTo;
    functions.cubic_to = cubicTo;
    FT_Outline_Decompose(&face->glyph->outline, &functions, &trace);
    return trace.pieces;
}

bool isBullet(const std::vector<OutlinePiece>& outline) {
    constexpr double kLeastDiameter = 0.2; // em; a full stop is smaller, ...
    constexpr double kMostDiameter = 0.5;  // ... and the black circle of the fonts of signs larger
    constexpr double kRoundness = 0.03;    // by which a disk's sides, and its area, may miss those of a circle
    if (outline.empty())
        return false;
    double left = outline[0].x0, right = left, bottom = outline[0].y0, top = bottom, area = 0;
    for (const OutlinePiece& piece : outline) {
        left = std::min(left, piece.x1);
        right = std::max(right, piece.x1);
        bottom = std::min(bottom, piece.y1);
        top = std::max(top, piece.y1);
        area += (piece.x0 * piece.y1 - piece.x1 * piece.y0) / 2;
    }
    const double width = right - left, height = top - bottom;
    const double circle = std::numbers::pi / 4 * width * height;
    return width >= kLeastDiameter && width <= kMostDiameter && std::abs(width - height) <= kRoundness * width &&
           std::abs(std::abs(area) - circle) <= kRoundness * circle;
}

} // namespace orvane::pdf
