#pragma once

#include "layout/formulas/FormulaAtom.h"
#include "layout/formulas/FormulaParameters.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// A formula that was understood, and the line it stands on.
struct ParsedFormula {
    document::FormulaPart content;
    double baseline = 0;
    double size = 0;
};

/// Reads from the places of signs and rules how a formula is built. Nothing where any of them is not understood for
/// certain: matrices, signs on top of others, braces below.
std::optional<ParsedFormula> parseFormula(const std::vector<FormulaAtom>& atoms, const std::vector<FormulaBar>& bars,
                                          const FormulaParameters::FormulaGrammar& grammar);

} // namespace orvane::layout
