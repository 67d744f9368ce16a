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
};

struct ShapeLine {
    Color color;
    Emu width;
    BorderKind kind = BorderKind::Single;
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
    double opacity = 1;
};

/// Shapes that belong together.
struct Drawing {
    Emu width;
    Emu height;
    std::vector<Shape> shapes; ///< in paint order
    std::string alternateText;
};

} // namespace orvane::document
