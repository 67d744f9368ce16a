#include "layout/formulas/FormulaItem.h"

#include "base/Utf8.h"
#include "layout/text/Characters.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

namespace orvane::layout {
namespace {

bool isNumberSign(const std::u32string& text) {
    return text.size() == 1 && isDigit(text[0]);
}

bool isUprightLetter(const FormulaItem& item) {
    return item.part.shape != document::FormulaShape::Italic && item.part.shape != document::FormulaShape::BoldItalic &&
           !item.sign.empty() && isLetter(item.sign.back());
}

bool isNumber(const FormulaItem& item) {
    return !item.sign.empty() && isDigit(item.sign.back());
}

/// Whether the atom goes on with the word or the number.
bool goesOn(const FormulaItem& item, const FormulaAtom& atom, const FormulaParameters::FormulaGrammar& grammar) {
    const double gap = atom.ink.left - item.ink.right;
    const bool isBeside = std::abs(atom.baseline - item.baseline) < grammar.sameBaseline * item.size / 2 &&
                          std::abs(atom.size - item.size) < grammar.sameBaseline * item.size &&
                          gap < grammar.letterGap * item.size && gap > -grammar.deepestOverlap * item.size;
    if (!isBeside || atom.shape != item.part.shape)
        return false;
    if (isNumberSign(atom.text))
        return isNumber(item) || (item.sign.size() > 1 && item.sign.back() == U'.' && isDigit(item.sign[0]));
    if (atom.text == U".")
        return isNumber(item);
    return isUprightLetter(item) && std::all_of(atom.text.begin(), atom.text.end(), isLetter);
}

FormulaItem itemOf(FormulaAtom atom) {
    FormulaItem item;
    item.ink = atom.ink;
    item.baseline = atom.baseline;
    item.size = atom.size;
    item.part = formulaText(atom.text, atom.shape);
    item.sign = std::move(atom.text);
    return item;
}

/// Arrows that fonts put together from two signs.
struct ComposedArrow {
    std::u32string_view first;
    std::u32string_view second;
    std::u32string_view whole;
};
constexpr std::array kArrows{
    ComposedArrow{U"\u21A6", U"\u2192", U"\u21A6"}, ComposedArrow{U"\u2212", U"\u2192", U"\u27F6"},
    ComposedArrow{U"\u2190", U"\u2212", U"\u27F5"}, ComposedArrow{U"\u2190", U"\u2192", U"\u27F7"},
    ComposedArrow{U"=", U"\u21D2", U"\u27F9"},      ComposedArrow{U"\u21D0", U"=", U"\u27F8"},
    ComposedArrow{U"\u21D0", U"\u21D2", U"\u27FA"},
};

/// Whether the atom is the second half of an arrow that the item begins; it is one then.
bool completesArrow(FormulaItem& item, const FormulaAtom& atom, const FormulaParameters::FormulaGrammar& grammar) {
    if (atom.ink.left - item.ink.right > grammar.letterGap * item.size || atom.baseline != item.baseline)
        return false;
    const auto arrow = std::find_if(kArrows.begin(), kArrows.end(), [&](const ComposedArrow& composed) {
        return composed.first == item.sign && composed.second == atom.text;
    });
    if (arrow == kArrows.end())
        return false;
    item.ink = item.ink.united(atom.ink);
    item.sign = arrow->whole;
    item.part.text = utf8FromUtf32(item.sign);
    return true;
}

/// A full stop behind a number is that of the sentence, unless digits follow.
void partStop(FormulaItem& item, std::vector<FormulaItem>& items) {
    if (item.sign.size() < 2 || item.sign.back() != U'.')
        return;
    FormulaItem stop = item;
    item.sign.pop_back();
    item.part.text.pop_back();
    const double width = item.ink.width() / (2.0 * static_cast<double>(item.sign.size()) + 1);
    item.ink.right -= width;
    stop.ink.left = item.ink.right;
    stop.sign.assign(1, U'.');
    stop.part.text.assign(1, '.');
    items.push_back(std::move(stop));
}

} // namespace

std::vector<FormulaItem> formulaItems(std::vector<FormulaAtom> atoms,
                                      const FormulaParameters::FormulaGrammar& grammar) {
    std::stable_sort(atoms.begin(), atoms.end(),
                     [](const FormulaAtom& a, const FormulaAtom& b) { return a.ink.left < b.ink.left; });
    std::vector<FormulaItem> items;
    for (FormulaAtom& atom : atoms) {
        if (!items.empty() && completesArrow(items.back(), atom, grammar))
            continue;
        // Scripts and limits may stand between the letters of a word as seen from left to right.
        const auto word = std::find_if(items.rbegin(), items.rend(),
                                       [&](const FormulaItem& item) { return goesOn(item, atom, grammar); });
        if (word == items.rend()) {
            items.push_back(itemOf(std::move(atom)));
            continue;
        }
        word->ink = word->ink.united(atom.ink);
        word->sign += atom.text;
        word->part.text += utf8FromUtf32(atom.text);
    }
    std::vector<FormulaItem> stops;
    for (FormulaItem& item : items)
        partStop(item, stops);
    items.insert(items.end(), stops.begin(), stops.end());
    return items;
}

document::FormulaPart formulaText(std::u32string_view text, document::FormulaShape shape) {
    document::FormulaPart part;
    part.kind = document::FormulaKind::Text;
    part.text = utf8FromUtf32(text);
    part.shape = shape;
    return part;
}

document::FormulaPart formulaPart(document::FormulaKind kind, std::vector<document::FormulaPart> parts) {
    document::FormulaPart part;
    part.kind = kind;
    part.parts = std::move(parts);
    return part;
}

} // namespace orvane::layout
