#pragma once

#include "layout/formulas/FormulaParameters.h"
#include "layout/text/GlyphFilter.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Finds the formulas that stand on lines of their own. Each becomes one line with one character that stands for it,
/// and its number behind a tabulator; its rules are marked as used. Structure is told where it is certain, the others
/// are to be painted. Within text only those become one character that reach over several lines: others are text with
/// scripts. Requires: `text` has lines, rules and figures.
void findFormulas(const pdf::PageContent& page, const GlyphSelection& selection, PageText& text,
                  const FormulaParameters& parameters);

/// Puts the lines back that the formulas were made of: all of them, or only of those without structure.
enum class RestoredFormulas : std::uint8_t { All, Painted };
void restoreFormulaLines(PageText& text, RestoredFormulas which);

/// Whether the line is a formula, perhaps with a number behind it.
bool isFormulaLine(const Line& line);

} // namespace orvane::layout
