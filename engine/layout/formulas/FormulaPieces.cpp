#include "layout/formulas/FormulaPieces.h"

#include "base/Utf8.h"
#include "layout/formulas/FormulaAtom.h"
#include "layout/formulas/FormulaSigns.h"
#include "layout/support/BoxIndex.h"
#include "layout/text/Characters.h"
#include "layout/text/Line.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

namespace orvane::layout {
namespace {

/// Whether a glyph speaks of a formula. Bullets are set from fonts of signs as well.
bool isMathGlyph(const pdf::Glyph& glyph, const pdf::Font& font) {
    if (glyph.unicode.size() != 1)
        return font.isMathematical && !glyph.unicode.empty();
    const char32_t c = glyph.unicode[0];
    constexpr std::u32string_view kInTexts =
        U"\u2022\u00B7\u2219\u2020\u2021\u00A7\u00B6\u25CF\u25CB\u25A0\u25A1*\u2217";
    if (isBlank(c) || kInTexts.find(c) != std::u32string_view::npos)
        return false;
    return font.isMathematical || isFormulaSign(c) ||
           (isSignFont(font.name) && (isGreekLetter(c) || isRelation(c) || isBinaryOperator(c)));
}

bool hasFormulas(const pdf::PageContent& page, const GlyphSelection& selection) {
    return std::any_of(selection.glyphs.begin(), selection.glyphs.end(), [&](const SelectedGlyph& selected) {
        const pdf::Glyph& glyph = page.glyphs[selected.index];
        return isMathGlyph(glyph, page.fonts[glyph.font]);
    });
}

/// "(3)", "(A.12b)", "[7]" are too short for anything else.
bool isFormulaNumber(const std::u32string& text) {
    constexpr std::size_t kLongest = 10;
    if (text.size() < 3 || text.size() > kLongest || text.front() != U'(' || text.back() != U')')
        return false;
    const std::u32string_view inner = std::u32string_view(text).substr(1, text.size() - 2);
    return std::any_of(inner.begin(), inner.end(), isDigit) &&
           std::all_of(inner.begin(), inner.end(),
                       [](char32_t c) {
                           return isDigit(c) || c == U'.' || c == U'-' || c == U'\u2013' || c == U'\'' ||
                                  c == U'\u2032' || (c < 0x80 && isLetter(c));
                       }) &&
           std::count_if(inner.begin(), inner.end(), isLetter) <= 2;
}

/// Counts what a piece is made of.
struct Composition {
    std::size_t words = 0;   ///< of a language
    std::size_t inWords = 0; ///< characters in such words
    std::size_t all = 0;     ///< that are no blanks
};

/// Letters of a word that stand together; those of formulas hardly ever make a word.
void countRun(std::u32string_view run, bool isItalic, Composition& counts) {
    constexpr std::size_t kShortest = 2, kShortestItalic = 3;
    if (run.size() < (isItalic ? kShortestItalic : kShortest) || isFunctionName(run))
        return;
    ++counts.words;
    counts.inWords += run.size();
}

void countWord(const Word& word, const std::vector<pdf::Font>& fonts, Composition& counts) {
    std::u32string run;
    bool isItalic = false;
    const auto endRun = [&] {
        countRun(run, isItalic, counts);
        run.clear();
    };
    for (const Span& span : word.spans) {
        const bool isMathematical = span.look.font < fonts.size() && fonts[span.look.font].isMathematical;
        const bool isScript = span.look.verticalPosition != document::VerticalPosition::Baseline;
        for (const char32_t c : utf32FromUtf8(span.text)) {
            counts.all += isBlank(c) ? 0 : 1;
            if (isSetWithoutBlanks(c) && isLetter(c)) {
                ++counts.words;
                ++counts.inWords;
            }
            if (!isLetter(c) || isMathematical || isScript || isGreekLetter(c) || isSetWithoutBlanks(c)) {
                endRun();
                continue;
            }
            run += c;
            isItalic = span.look.isItalic;
        }
    }
    endRun();
}

FormulaPieceKind kindOf(const FormulaPiece& piece, const std::vector<pdf::Font>& fonts,
                        const FormulaParameters::Formulas& limits) {
    Composition counts;
    for (const Word& word : piece.line.words)
        countWord(word, fonts, counts);
    if (counts.words == 0 && isFormulaNumber(utf32FromUtf8(textOf(piece.line))))
        return FormulaPieceKind::Number;
    const bool isText = counts.words > limits.mostWords ||
                        static_cast<double>(counts.inWords) > limits.wordShare * static_cast<double>(counts.all);
    if (piece.mathSigns > 0)
        return isText ? FormulaPieceKind::Prose : FormulaPieceKind::Math;
    if (counts.words == 0)
        return counts.all <= limits.longestLoose ? FormulaPieceKind::Loose : FormulaPieceKind::Prose;
    return counts.words <= limits.mostWordsAlone ? FormulaPieceKind::Words : FormulaPieceKind::Prose;
}

/// Finds the piece that a glyph is set in.
class PiecePlaces {
public:
    explicit PiecePlaces(const std::vector<FormulaPiece>& pieces)
        : m_index(kSlice) {
        for (std::size_t piece = 0; piece < pieces.size(); ++piece)
            for (const Word& word : pieces[piece].line.words)
                for (const Span& span : word.spans) {
                    m_index.add(span.box, m_spans.size());
                    m_spans.push_back({&span, piece});
                }
    }

    /// The piece's index; that of the nearest word where several lie on each other.
    std::optional<std::size_t> at(const pdf::Glyph& glyph) const {
        const Rect& seen = glyph.ink.isEmpty() ? glyph.box : glyph.ink;
        const Point middle{seen.centerX(), seen.centerY()};
        std::optional<std::size_t> best;
        double nearest = std::numeric_limits<double>::infinity();
        m_index.visit({middle.x, middle.y, middle.x, middle.y}, [&](std::size_t name) {
            const double distance = std::abs(m_spans[name].span->box.centerY() - middle.y);
            if (distance < nearest) {
                nearest = distance;
                best = m_spans[name].piece;
            }
        });
        return best;
    }

private:
    static constexpr double kSlice = 12; // points, about a line
    struct Place {
        const Span* span;
        std::size_t piece;
    };
    BoxIndex m_index;
    std::vector<Place> m_spans;
};

} // namespace

bool isTextWord(const Word& word, const std::vector<pdf::Font>& fonts) {
    Composition counts;
    countWord(word, fonts, counts);
    return counts.words > 0;
}

bool isLabelWord(const Word& word) {
    constexpr std::size_t kLongest = 4;
    const std::u32string text = utf32FromUtf8(textOf(word));
    return text.size() > 1 && text.size() <= kLongest && (text.back() == U')' || text.back() == U'.') &&
           text.front() != U'(' &&
           std::all_of(text.begin(), text.end() - 1, [](char32_t c) { return isDigit(c) || isLetter(c); });
}

std::vector<FormulaPiece> formulaPieces(const pdf::PageContent& page, const GlyphSelection& selection,
                                        const PageText& text, const FormulaParameters::Formulas& limits) {
    std::vector<FormulaPiece> pieces;
    if (!hasFormulas(page, selection))
        return pieces;
    for (std::size_t i = 0; i < text.lines.size(); ++i) {
        const Line& line = text.lines[i];
        if (line.angle != 0 || line.isVertical || line.isRightToLeft || line.words.empty())
            continue;
        for (Line& part : piecesOf(line)) {
            FormulaPiece& piece = pieces.emplace_back();
            piece.line = std::move(part);
            piece.source = i;
        }
    }
    const PiecePlaces places(pieces);
    for (const SelectedGlyph& selected : selection.glyphs) {
        const pdf::Glyph& glyph = page.glyphs[selected.index];
        const auto place = glyph.angle == 0 && !isBlank(glyph.unicode) ? places.at(glyph) : std::nullopt;
        if (!place)
            continue;
        FormulaPiece& piece = pieces[*place];
        const Rect ink = inkOf(glyph);
        piece.glyphs.push_back(selected.index);
        piece.ink = piece.ink.united(ink);
        piece.size = std::max(piece.size, glyph.fontSize);
        piece.hasTallSign |= ink.height() > limits.tall * glyph.fontSize;
        const char32_t sign = glyph.unicode.empty() ? 0 : glyph.unicode.front();
        piece.hasRelation |= isRelation(sign);
        piece.hasOperator |= isLargeOperator(sign) || sign == kRadicalSign;
        piece.mathSigns += isMathGlyph(glyph, page.fonts[glyph.font]) ? 1 : 0;
    }
    for (FormulaPiece& piece : pieces)
        piece.kind = kindOf(piece, text.fonts, limits);
    return pieces;
}

} // namespace orvane::layout
