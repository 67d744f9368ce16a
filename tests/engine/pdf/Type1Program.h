#pragma once

#include <string>
#include <utility>
#include <vector>

namespace orvane::tests {

/// Corners of closed polygons, in thousandths of the em.
using Polygon = std::vector<std::pair<int, int>>;

/// One glyph: its PostScript name and its polygons.
struct Type1Glyph {
    std::string name;
    std::vector<Polygon> polygons;
};

/// The bytes of a Type 1 font program of these glyphs. Source: Adobe Type 1 Font Format, chapters 2, 6 and 7.
std::string type1Program(const std::vector<Type1Glyph>& glyphs);

} // namespace orvane::tests
