#include "layout/formulas/FormulaMaker.h"

#include "layout/formulas/FormulaAtom.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <utility>

namespace orvane::layout {

std::optional<ParsedFormula> readFormula(const FormulaSources& sources, const pdf::PageContent& page,
                                         const std::vector<Rule>& rules,
                                         const FormulaParameters::FormulaGrammar& grammar) {
    const auto atoms = formulaAtoms(page, sources.glyphs);
    if (!atoms || atoms->empty())
        return std::nullopt;
    std::vector<FormulaBar> bars;
    for (const std::size_t rule : sources.rules)
        bars.push_back({rules[rule].from, rules[rule].to, rules[rule].position});
    return parseFormula(*atoms, bars, grammar);
}

Word formulaWord(std::size_t index, const Rect& box, double baseline, Look look) {
    Span span;
    span.text = kFormulaCharacter;
    span.look.font = look.font;
    span.look.color = look.color;
    span.look.size = look.size;
    span.look.formula = static_cast<int>(index);
    span.box = box;
    span.baseline = baseline;
    Word word;
    word.box = box;
    word.spans.push_back(std::move(span));
    return word;
}

std::string textFromLeft(std::vector<const Line*> lines) {
    std::stable_sort(lines.begin(), lines.end(),
                     [](const Line* a, const Line* b) { return a->box.left < b->box.left; });
    std::string text;
    for (const Line* line : lines) {
        if (!text.empty())
            text += ' ';
        text += textOf(*line);
    }
    return text;
}

} // namespace orvane::layout
