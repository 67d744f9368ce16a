#include "layout/formulas/FormulaAtom.h"

#include "layout/formulas/FormulaSigns.h"
#include "layout/text/Characters.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace orvane::layout {
namespace {

using document::FormulaShape;

/// Heights above the baseline, in em, of what most fonts paint.
struct Reach {
    double top = 0;
    double bottom = 0;
};

constexpr Reach kCapital{0.7, 0};
constexpr Reach kSmall{0.47, 0};
constexpr Reach kDescending{0.47, -0.21};
constexpr Reach kFence{0.75, -0.25};
constexpr Reach kOperator{0.55, -0.05};
constexpr Reach kStop{0.12, -0.12};
constexpr Reach kAnything{0.7, -0.2};

Reach reachOf(char32_t c) {
    constexpr std::u32string_view kDescenders = U"gpqyj\u03B2\u03B3\u03B6\u03B7\u03BC\u03BE\u03C1\u03C6\u03C7\u03C8";
    constexpr std::u32string_view kAscenders = U"bdfhiklt\u03B4\u03B8\u03BB";
    if (kDescenders.find(c) != std::u32string_view::npos)
        return kDescending;
    if (isUpperCase(c) || isDigit(c) || kAscenders.find(c) != std::u32string_view::npos)
        return kCapital;
    if (isLowerCase(c))
        return kSmall;
    if (isOpeningFence(c) || isClosingFence(c) || isStrokeFence(c) || c == U'/')
        return kFence;
    if (isRelation(c) || isBinaryOperator(c))
        return kOperator;
    return c == U',' || c == U'.' || c == U';' ? kStop : kAnything;
}

FormulaShape shapeOf(const pdf::Font& font) {
    if (font.isBold)
        return font.isItalic ? FormulaShape::BoldItalic : FormulaShape::Bold;
    return font.isItalic ? FormulaShape::Italic : FormulaShape::Upright;
}

bool isReadable(std::u32string_view text) {
    for (const char32_t c : text)
        if (c < 0x20 || c == 0xFFFD || (c >= 0xE000 && c <= 0xF8FF) || isFencePiece(c))
            return false;
    return !text.empty();
}

/// A stroke that was put together from pieces, one below the other, is one.
void joinStroke(std::vector<FormulaAtom>& atoms, const FormulaAtom& piece) {
    const auto above = std::find_if(atoms.begin(), atoms.end(), [&](const FormulaAtom& atom) {
        return atom.text == piece.text && std::abs(atom.ink.left - piece.ink.left) < 0.1 * piece.size &&
               std::max(atom.ink.top, piece.ink.top) - std::min(atom.ink.bottom, piece.ink.bottom) < 0.1 * piece.size;
    });
    if (above == atoms.end())
        atoms.push_back(piece);
    else
        above->ink = above->ink.united(piece.ink);
}

} // namespace

Rect inkOf(const pdf::Glyph& glyph) {
    if (!glyph.ink.isEmpty() || glyph.unicode.empty())
        return glyph.ink.isEmpty() ? glyph.box : glyph.ink;
    const Reach reach = reachOf(glyph.unicode.front());
    return {glyph.box.left, glyph.origin.y - reach.top * glyph.fontSize, glyph.box.right,
            glyph.origin.y - reach.bottom * glyph.fontSize};
}

std::optional<std::vector<FormulaAtom>> formulaAtoms(const pdf::PageContent& page,
                                                     std::span<const std::size_t> glyphs) {
    std::vector<FormulaAtom> atoms;
    for (const std::size_t index : glyphs) {
        const pdf::Glyph& glyph = page.glyphs[index];
        if (isBlank(glyph.unicode))
            continue;
        const std::u32string text = normalizeGlyphText(glyph.unicode);
        if (!isReadable(text))
            return std::nullopt;
        const pdf::Font& font = page.fonts[glyph.font];
        FormulaAtom atom;
        atom.ink = inkOf(glyph);
        atom.baseline = glyph.origin.y;
        atom.size = glyph.fontSize;
        atom.text = text.size() == 1 ? std::u32string{alphabetLetter(font.name, text[0])} : text;
        atom.shape = atom.text == text ? shapeOf(font) : FormulaShape::Upright;
        atom.color = glyph.color;
        if (atom.text == U"\u23D0")
            joinStroke(atoms, atom);
        else
            atoms.push_back(std::move(atom));
    }
    for (FormulaAtom& atom : atoms)
        if (atom.text == U"\u23D0")
            atom.text.assign(1, U'|');
    return atoms;
}

} // namespace orvane::layout
