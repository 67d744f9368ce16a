#pragma once

#include "base/Color.h"
#include "base/Geometry.h"
#include "document/Document.h"
#include "layout/text/PageText.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace orvane::layout {

/// A sign of a formula, or a word of it.
struct FormulaAtom {
    Rect ink;
    double baseline = 0;
    double size = 0;
    std::u32string text;
    document::FormulaShape shape = document::FormulaShape::Upright;
    Color color;
};

/// A rule of a formula: of a fraction, of a radical, over letters.
struct FormulaBar {
    double left = 0;
    double right = 0;
    double y = 0;
};

/// What a glyph paints: as its font tells, else by what is usual for its character.
Rect inkOf(const pdf::Glyph& glyph);

/// The glyphs as signs; nothing when there is one of which nobody knows what it says. Requires: upright glyphs.
std::optional<std::vector<FormulaAtom>> formulaAtoms(const pdf::PageContent& page, std::span<const std::size_t> glyphs);

} // namespace orvane::layout
