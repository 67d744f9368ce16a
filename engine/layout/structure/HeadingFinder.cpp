#include "layout/structure/HeadingFinder.h"

#include "layout/structure/DraftText.h"
#include "layout/structure/DraftWalk.h"
#include "layout/structure/HeadingStyles.h"
#include "layout/structure/NumeralHeadings.h"
#include "layout/structure/OutlineMatcher.h"
#include "layout/structure/StructureTags.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// Takes the headings that tags tell of; false when the tags are not to be trusted, or tell of none.
bool findByTags(DocumentDraft& draft, const std::vector<pdf::StructureElement>& structure, Diagnostics& diagnostics) {
    const StructureTags tags(draft, structure);
    if (!tags.isTrustworthy()) {
        if (!structure.empty())
            diagnostics.add(DiagnosticKind::StructureIgnored, 0,
                            "most text has no tag, or too much is tagged as headings");
        return false;
    }
    bool isFound = false;
    forEachParagraph(draft.blocks, [&](DraftParagraph& paragraph) {
        const std::string type = tags.typeOf(paragraph);
        if (const int level = headingLevelOfType(type); level > 0 && paragraph.role == ParagraphRole::Body) {
            paragraph.role = ParagraphRole::Heading;
            paragraph.level = level;
            isFound = true;
        } else if (type == "Title") {
            paragraph.role = ParagraphRole::Title;
        } else if (type == "Caption") {
            paragraph.role = ParagraphRole::Caption;
        }
    });
    return isFound;
}

double sizeOf(const DraftParagraph& paragraph) {
    return paragraph.firstLine().fontSize;
}

bool isTitleLike(const DraftParagraph& paragraph, double size, const StructureParameters::Headings& limits) {
    return paragraph.role == ParagraphRole::Body && sizeOf(paragraph) >= size - 0.5 &&
           paragraph.pieces.front().text.lines.size() <= static_cast<std::size_t>(limits.maximumLines) &&
           !comparableWithoutNumber(textOf(paragraph)).empty();
}

/// The title is what the first page shows in the document's largest letters, once and before any heading.
void findTitle(DocumentDraft& draft, const DocumentContext& context, const StructureParameters::Headings& limits) {
    std::vector<DraftParagraph*> paragraphs;
    double largest = 0;
    for (DraftBlock& block : draft.blocks)
        // What runs up along the page's edge is a stamp.
        if (DraftParagraph* paragraph = block.paragraph(); paragraph && paragraph->firstLine().angle == 0) {
            paragraphs.push_back(paragraph);
            largest = std::max(largest, sizeOf(*paragraph));
        }
    if (largest < limits.titleSize * context.bodyFontSize)
        return;
    const auto isLarge = [&](const DraftParagraph* paragraph) { return isTitleLike(*paragraph, largest, limits); };
    const auto first = std::find_if(paragraphs.begin(), paragraphs.end(), isLarge);
    const auto last = std::find_if_not(first, paragraphs.end(), isLarge);
    const bool isFirst = std::none_of(paragraphs.begin(), first, [](const DraftParagraph* paragraph) {
        return paragraph->role == ParagraphRole::Heading;
    });
    // Letters of that size that come again are those of chapters.
    const bool comesAgain = std::any_of(
        last, paragraphs.end(), [&](const DraftParagraph* paragraph) { return sizeOf(*paragraph) >= largest - 0.5; });
    if (first == last || !isFirst || comesAgain || (*first)->pieces.front().page > 0 ||
        last - first > limits.titleParagraphs)
        return;
    std::for_each(first, last, [](DraftParagraph* paragraph) { paragraph->role = ParagraphRole::Title; });
}

} // namespace

void findHeadings(DocumentDraft& draft, const DocumentFacts& facts, const DocumentContext& context,
                  const LayoutParameters& parameters, Diagnostics& diagnostics) {
    const bool isTagged = findByTags(draft, facts.structure, diagnostics);
    const bool isOutlined = matchOutline(draft, facts.outline).isTrustworthy();
    findTitle(draft, context, parameters.headings);
    if (isTagged || isOutlined)
        return;
    findNumeralHeadings(draft, parameters.headings);
    findHeadingsByStyle(draft, context, parameters);
}

} // namespace orvane::layout
