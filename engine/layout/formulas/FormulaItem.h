#pragma once

#include "base/Geometry.h"
#include "document/Document.h"
#include "layout/formulas/FormulaAtom.h"
#include "layout/formulas/FormulaParameters.h"

#include <string>
#include <vector>

namespace orvane::layout {

/// How an item's line is known.
enum class FormulaLine : std::uint8_t {
    Baseline, ///< its letters stand on it
    Axis,     ///< it stands about the axis of its line, as fractions, sums and large brackets do
};

/// A part of a formula with its place, on the way to its structure.
struct FormulaItem {
    Rect ink;
    double baseline = 0;
    double size = 0;
    FormulaLine line = FormulaLine::Baseline;
    std::u32string sign; ///< of a part that is Text as it was painted; empty for what was put together
    document::FormulaPart part;
};

/// The atoms as items, letters of upright words and digits of numbers joined.
std::vector<FormulaItem> formulaItems(std::vector<FormulaAtom> atoms, const FormulaParameters::FormulaGrammar& grammar);

document::FormulaPart formulaText(std::u32string_view text, document::FormulaShape shape);

/// A part of `kind` with parts of its own.
document::FormulaPart formulaPart(document::FormulaKind kind, std::vector<document::FormulaPart> parts);

} // namespace orvane::layout
