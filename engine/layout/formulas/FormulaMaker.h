#pragma once

#include "layout/formulas/FormulaClusters.h"
#include "layout/formulas/FormulaParser.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::layout {

/// Where a line has a formula. Source: The Unicode Standard, 23.8 (object replacement character).
inline constexpr const char* kFormulaCharacter = "\uFFFC";

/// What a formula is made of: glyphs of the page, and rules between them.
struct FormulaSources {
    std::vector<std::size_t> glyphs;
    std::vector<std::size_t> rules;
};

/// How the formula is built, where that is certain.
std::optional<ParsedFormula> readFormula(const FormulaSources& sources, const pdf::PageContent& page,
                                         const std::vector<Rule>& rules,
                                         const FormulaParameters::FormulaGrammar& grammar);

/// A word that stands for formula `index` of its page. `look` is that of the text of its size.
Word formulaWord(std::size_t index, const Rect& box, double baseline, Look look);

/// The lines' texts from left to right, parted by blanks; in what order a formula is spoken nobody knows.
std::string textFromLeft(std::vector<const Line*> lines);

} // namespace orvane::layout
