#pragma once

#include "layout/formulas/FormulaPieces.h"

#include <cstddef>
#include <span>
#include <vector>

namespace orvane::layout {

/// Pieces of lines, and rules, that may be one formula.
struct FormulaCluster {
    std::vector<std::size_t> pieces; ///< ascending
    std::vector<std::size_t> rules;  ///< indices into the page's rules
    Rect ink;
    double size = 0;
};

/// Brings together what stands in one row or is tied by a rule or as an operator's limit. Only clusters with a piece of
/// Math are told.
std::vector<FormulaCluster> formulaClusters(std::span<const FormulaPiece> pieces, std::span<const Rule> rules,
                                            const pdf::PageContent& page, const FormulaParameters::Formulas& limits);

} // namespace orvane::layout
