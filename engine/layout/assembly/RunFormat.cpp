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

void setFamilies(RunProperties& run, const Span& span, const MappedFont& font, const ScriptFamilies& families) {
    const ScriptClass kind = scriptClassOf(span.text);
    run.fontFamily = kind == ScriptClass::Simple ? font.family : families[ScriptClass::Simple];
    run.eastAsianFontFamily = kind == ScriptClass::EastAsian ? font.family : families[ScriptClass::EastAsian];
    run.complexFontFamily = kind == ScriptClass::Complex ? font.family : families[ScriptClass::Complex];
    if (run.fontFamily.empty())
        run.fontFamily = font.family;
    // Quotes and dashes between ideographs are of their font and width.
    run.isEastAsian = kind == ScriptClass::EastAsian ||
                      (font.family == families[ScriptClass::EastAsian] && !hasLetterOrDigit(span.text));
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
