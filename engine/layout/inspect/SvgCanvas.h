#pragma once

#include "base/Geometry.h"

#include <string>
#include <string_view>

namespace orvane::layout {

/// Puts boxes, lines and labels down as SVG. Units: points.
class SvgCanvas {
public:
    SvgCanvas(double width, double height);

    /// A frame in `color` (any CSS colour), its inside tinted with it.
    void box(const Rect& box, std::string_view color, double tint = 0.1, double strokeWidth = 0.5);
    void line(Point from, Point to, std::string_view color, double width = 0.5);
    /// Small text on a white ground at the box's top left.
    void label(Point at, std::string_view text, std::string_view color);
    /// The page's own text, stretched to its box.
    void text(const Rect& box, double baseline, double size, double angle, std::string_view text);

    std::string finish() const;

private:
    std::string m_body;
    double m_width;
    double m_height;
};

} // namespace orvane::layout
