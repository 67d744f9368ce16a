#include "write/ParagraphParts.h"

#include <algorithm>

namespace orvane::write {

using namespace document;

namespace {

/// A line's height in a thin paragraph.
constexpr Twips kThinLine{20};

void makeThin(Paragraph& paragraph) {
    paragraph.properties.lineSpacing = {LineSpacingRule::Exact, 1.0, kThinLine};
    paragraph.markProperties.size = HalfPoints(2);
}

/// The paragraph of a drop cap, without its letters.
Paragraph capitalOf(const Paragraph& paragraph, const RunProperties& look) {
    Paragraph capital;
    capital.style = paragraph.style;
    capital.markProperties = look;
    capital.origin = paragraph.origin;
    capital.dropCap = paragraph.dropCap;
    ParagraphProperties& format = capital.properties;
    format.indentStart = paragraph.properties.indentStart;
    format.spaceBefore = paragraph.properties.spaceBefore;
    format.isContextualSpacing = paragraph.properties.isContextualSpacing;
    format.lineSpacing = {LineSpacingRule::Exact, 1.0, paragraph.dropCap->height};
    format.keepWithNext = true;
    return capital;
}

/// The paragraph of the breaks before a drop cap, without them.
Paragraph breakHolder(const Paragraph& paragraph) {
    Paragraph holder;
    holder.style = paragraph.style;
    holder.markProperties = paragraph.markProperties;
    makeThin(holder);
    return holder;
}

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

DropCapParts partDropCap(const Paragraph& paragraph) {
    const auto begin = paragraph.inlines.begin();
    const auto start = begin + static_cast<std::ptrdiff_t>(leadingBreaks(paragraph));
    const auto isText = [](const Inline& item) { return std::holds_alternative<Text>(item.value); };
    const auto letters = std::find_if(start, paragraph.inlines.end(), isText);
    DropCapParts parts;
    if (start != begin) {
        parts.breaks = breakHolder(paragraph);
        parts.breaks->inlines.assign(begin, start);
    }
    parts.capital = capitalOf(paragraph, std::get<Text>(letters->value).properties);
    parts.capital.inlines.assign(start, letters + 1);
    parts.rest = paragraph;
    parts.rest.dropCap.reset();
    parts.rest.inlines.assign(letters + 1, paragraph.inlines.end());
    return parts;
}

Paragraph thinParagraph(const Style& defaultStyle, const ParagraphLoad& load) {
    Paragraph paragraph;
    paragraph.markProperties = defaultStyle.run;
    // A mark is text, which wants to be seen.
    if (!load.writeLead)
        makeThin(paragraph);
    return paragraph;
}

const RunProperties* firstLook(const std::vector<Inline>& inlines) {
    for (const Inline& item : inlines)
        if (const auto* text = std::get_if<Text>(&item.value))
            return &text->properties;
    return nullptr;
}

} // namespace orvane::write
