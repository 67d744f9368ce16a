#pragma once

#include "base/Color.h"
#include "base/Units.h"
#include "document/Format.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane::document {

enum class HorizontalAnchor : std::uint8_t { Page, Margin, Column };
enum class VerticalAnchor : std::uint8_t { Page, Margin, Paragraph };
enum class HorizontalSide : std::uint8_t { Left, Center, Right };
enum class Wrapping : std::uint8_t { Square, TopAndBottom, None, BehindText };

/// Where a floating object stands.
struct Placement {
    HorizontalAnchor horizontalAnchor = HorizontalAnchor::Page;
    VerticalAnchor verticalAnchor = VerticalAnchor::Page;
    Emu x;
    Emu y;
    Wrapping wrapping = Wrapping::Square;
    Emu distanceLeft, distanceRight, distanceTop, distanceBottom;
    int zOrder = 0; ///< ascending towards the reader
    /// The edge or middle of its anchor's width where `x` is, to be said instead of it: some readers count positions
    /// in right-to-left paragraphs from the other side.
    std::optional<HorizontalSide> side;
};

struct ShapeLine {
    Color color;
    Emu width;
    BorderKind kind = BorderKind::Single;
};

struct GradientStop {
    double position = 0; ///< 0 to 1
    Color color;
};

enum class GradientKind : std::uint8_t { Linear, Radial };

/// A fill whose colour changes evenly from stop to stop, within the box of what it fills.
struct Gradient {
    GradientKind kind = GradientKind::Linear;
    /// Of a linear one the way that its colour changes, from the first corner that it meets to the last: degrees
    /// clockwise, 0 runs rightwards. A radial one runs from the middle to the corners.
    double angle = 0;
    std::vector<GradientStop> stops; ///< ascending, at least two: the first at 0, the last at 1
};

/// A drawn outline, in its own box.
struct Shape {
    enum class Verb : std::uint8_t { Move, Line, Curve, Close };
    struct Segment {
        Verb verb = Verb::Move;
        std::array<Emu, 6> xy; ///< Move, Line: first pair; Curve: two controls and the end; from the box's top left
    };
    Emu x, y, width, height; ///< within the drawing
    std::vector<Segment> segments;
    std::optional<ShapeLine> line;
    std::optional<Color> fill;
    std::optional<Gradient> gradient; ///< in place of `fill`, which is its mean then
    double opacity = 1;
};

/// Shapes that belong together.
struct Drawing {
    Emu width;
    Emu height;
    std::vector<Shape> shapes; ///< in paint order
    std::string alternateText;
    bool isPictureAtBest = false; ///< so many upright boxes and lines that word processors bear them as a picture only
};

} // namespace orvane::document
