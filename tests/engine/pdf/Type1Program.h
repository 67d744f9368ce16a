#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orvane::tests {

/// Corners of closed polygons, in thousandths of the em.
using Polygon = std::vector<std::pair<int, int>>;

/// A disk of four cubic curves, in thousandths of the em.
struct Disk {
    int x = 0;
    int y = 0;
    int radius = 0;
};

/// One glyph: its PostScript name, its polygons and disks.
struct Type1Glyph {
    std::string name;
    std::vector<Polygon> polygons;
    std::vector<Disk> disks{};
};

/// The bytes of a Type 1 font program of these glyphs. Source: Adobe Type 1 Font Format, chapters 2, 6 and 7.
/// `embeddingBits`: what its maker allows; nothing is said of it where it is unset.
std::string type1Program(const std::vector<Type1Glyph>& glyphs, std::optional<int> embeddingBits = std::nullopt);

} // namespace orvane::tests
