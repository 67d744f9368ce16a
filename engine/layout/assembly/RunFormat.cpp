#include "layout/assembly/RunFormat.h"

#include "base/Utf8.h"
#include "layout/assembly/TextAssembler.h"
#include "layout/text/Characters.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

namespace orvane::layout {
namespace {

using document::RunProperties;

bool hasLetterOrDigit(std::string_view text) {
    const std::u32string characters = utf32FromUtf8(text);
    return std::any_of(characters.begin(), characters.end(), [](char32_t c) { return isLetter(c) || isDigit(c); });
}

/// True for what the fonts that word processors set text in have beside ASCII: Latin and Greek letters, and signs of
/// Windows Glyph List 4. Bullets and arrows are not among them: they are signs, and their size differs from font to
/// font.
bool isInTextFonts(char32_t c) {
    constexpr std::u32string_view kSigns = U"\u2013\u2014\u2018\u2019\u201c\u201d\u2026\u2030\u20ac\u2122"
                                           U"\u2202\u2206\u220f\u2211\u2212\u221a\u221e\u222b\u2248\u2260\u2264\u2265";
    constexpr char32_t kMiddleDot = 0xB7;
    const bool isLatin = c > 0xA0 && c <= 0xFF && c != kMiddleDot;
    const bool isGreek = c >= 0x391 && c <= 0x3C9;
    return isLatin || isGreek || kSigns.find(c) != std::u32string_view::npos;
}

bool isInTextFonts(std::string_view text) {
    const std::u32string characters = utf32FromUtf8(text);
    return std::all_of(characters.begin(), characters.end(), [](char32_t c) { return isInTextFonts(c); });
}

/// What a font of signs shows of the text's own characters is text: word processors have another font of signs, or know
/// its characters by other codes.
const std::string& familyOf(const Span& span, const MappedFont& font, const ScriptFamilies& families) {
    const std::string& ofText = families[ScriptClass::Simple];
    return font.isSymbol && !ofText.empty() && isInTextFonts(span.text) ? ofText : font.family;
}

void setFamilies(RunProperties& run, const Span& span, const MappedFont& font, const ScriptFamilies& families) {
    const std::string& family = familyOf(span, font, families);
    const ScriptClass kind = scriptClassOf(span.text);
    run.fontFamily = kind == ScriptClass::Simple ? family : families[ScriptClass::Simple];
    run.eastAsianFontFamily = kind == ScriptClass::EastAsian ? family : families[ScriptClass::EastAsian];
    run.complexFontFamily = kind == ScriptClass::Complex ? family : families[ScriptClass::Complex];
    if (run.fontFamily.empty())
        run.fontFamily = family;
    // Quotes and dashes between ideographs are of their font and width.
    run.isEastAsian =
        kind == ScriptClass::EastAsian || (family == families[ScriptClass::EastAsian] && !hasLetterOrDigit(span.text));
}

} // namespace

RunProperties runProperties(const Span& span, std::size_t page, const ScriptFamilies& families,
                            const AssemblyContext& context) {
    const Look& look = span.look;
    RunProperties run;
    const MappedFont& font = context.fonts.font(page, look.font);
    setFamilies(run, span, font, families);
    run.size = halfPointsFromPoints(look.size);
    run.color = look.color;
    run.highlight = look.highlight;
    run.underline = look.underline;
    run.verticalPosition = look.verticalPosition;
    run.isBold = look.isBold;
    run.isItalic = look.isItalic;
    run.isStruck = look.isStruck;
    run.isSmallCaps = look.isSmallCaps;
    run.isOutlined = look.isOutlined;
    run.isHidden = look.isClippedAway;
    run.isRightToLeft = span.isRightToLeft;
    // Where lines keep their places their scale was chosen; elsewhere little of it is how the PDF was typeset.
    const double least = context.request.mode == LayoutMode::TruePage ? 0 : context.parameters.text.naturalScale;
    const bool isStretched = std::abs(look.horizontalScale - 1) > least;
    run.widthPercent = static_cast<int>(std::lround((isStretched ? look.horizontalScale : 1) * font.widthPercent));
    if (context.request.keepCharacterSpacing)
        run.characterSpacing = twipsFromPoints(look.characterSpacing);
    return run;
}

} // namespace orvane::layout
