#pragma once

#include "layout/formulas/FormulaParameters.h"
#include "layout/text/GlyphFilter.h"
#include "layout/text/PageText.h"

#include <cstddef>
#include <vector>

namespace orvane::layout {

/// What a piece of a line is to the formulas of its page.
enum class FormulaPieceKind : std::uint8_t {
    Math,   ///< signs of formulas, with hardly a word of a language
    Loose,  ///< letters, digits and signs that may belong to a formula beside them
    Words,  ///< a few words, such as stand within formulas
    Number, ///< "(3)"
    Prose,  ///< running text
};

/// A part of a line without wide gaps in it.
struct FormulaPiece {
    Line line;
    std::size_t source = 0; ///< index into PageText::lines
    FormulaPieceKind kind = FormulaPieceKind::Prose;
    Rect ink;
    double size = 0;
    bool hasTallSign = false;
    bool hasRelation = false;
    bool hasOperator = false;        ///< a sum, an integral, a root
    std::size_t mathSigns = 0;       ///< that texts do not have
    std::vector<std::size_t> glyphs; ///< indices into pdf::PageContent::glyphs
};

/// Whether a word is one of a language rather than of a formula.
bool isTextWord(const Word& word, const std::vector<pdf::Font>& fonts);

/// Whether a word is the label of a list's item: "b)", "4.".
bool isLabelWord(const Word& word);

/// Cuts the level lines of a page into pieces and tells their kinds. Empty for a page without any sign of a formula.
std::vector<FormulaPiece> formulaPieces(const pdf::PageContent& page, const GlyphSelection& selection,
                                        const PageText& text, const FormulaParameters::Formulas& limits);

} // namespace orvane::layout
