#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Writes m:oMath with the formula's parts, for a place in a line; beside it the formula's picture, which readers take
/// that know no formulas. `base` is how runs look by the paragraph's style.
/// Source: ECMA-376 part 1, 22.1; part 3, 7.5 (alternate content).
void writeFormula(Story& story, const document::Formula& formula, const document::RunProperties& base);

/// The formula that is all of the paragraph, and displayed; null for other paragraphs. One with a number beside it
/// stands in the line.
const document::Formula* loneFormula(const document::Paragraph& paragraph);

/// Writes m:oMathPara: word processors give it the room that displayed formulas have.
void writeLoneFormula(Story& story, const document::Formula& formula, const document::Paragraph& paragraph,
                      const document::RunProperties& base);

} // namespace orvane::write::docx
