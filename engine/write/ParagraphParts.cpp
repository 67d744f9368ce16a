#include "write/ParagraphParts.h"

namespace orvane::write {

using namespace document;

namespace {

/// A line's height in a thin paragraph.
constexpr Twips kThinLine{20};

} // namespace

std::size_t leadingBreaks(const Paragraph& paragraph) {
    std::size_t count = 0;
    for (const Inline& item : paragraph.inlines) {
        const auto* br = std::get_if<Break>(&item.value);
        if (!br || br->kind == BreakKind::Line)
            break;
        ++count;
    }
    return count;
}

Paragraph thinParagraph(const Style& defaultStyle, const ParagraphLoad& load) {
    Paragraph paragraph;
    paragraph.markProperties = defaultStyle.run;
    // A mark is text, which wants to be seen.
    if (!load.writeLead) {
        paragraph.properties.lineSpacing = {LineSpacingRule::Exact, 1.0, kThinLine};
        paragraph.markProperties.size = HalfPoints(2);
    }
    return paragraph;
}

const RunProperties* firstLook(const std::vector<Inline>& inlines) {
    for (const Inline& item : inlines)
        if (const auto* text = std::get_if<Text>(&item.value))
            return &text->properties;
    return nullptr;
}

} // namespace orvane::write
