#include "layout/assembly/PageStarts.h"

#include "layout/assembly/BlockPlace.h"
#include "layout/assembly/TableSpacers.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

using document::Paragraph;

/// Where the header of one page ends; 0 without one. Units: points, from the page's top.
double headerEnd(const DraftSection& section, std::size_t page) {
    const DraftRunningText& header = section.header;
    const bool isEven = (page % 2 == 1) != section.countsOtherwise;
    const std::optional<std::vector<DraftBlock>>& blocks = header.firstPage && page == section.tops.firstPage
                                                               ? header.firstPage
                                                           : header.evenPages && isEven ? header.evenPages
                                                                                        : header.standard;
    double end = 0;
    if (blocks)
        for (const DraftBlock& block : *blocks)
            if (block.paragraph() || std::holds_alternative<DraftTable>(block.value))
                end = std::max(end, block.box.bottom);
    return end;
}

} // namespace

void setPageStarts(std::vector<AssembledBlock>& body, const AssemblyContext& context) {
    const auto& sections = context.draft.sections;
    auto section = sections.begin();
    const DraftSection* own = nullptr;
    PageTops tops;
    bool startsSection = false;
    for (std::size_t i = 0; i < body.size(); ++i) {
        for (; section != sections.end() && section->firstBlock <= i; ++section) {
            own = &*section;
            tops = section->tops;
            tops.margin = pointsFromTwips(section->setup.marginTop);
            startsSection = startsSection || section->setup.start != document::SectionStart::Continuous;
        }
        if (hasNoPlace(body[i]))
            continue;
        const bool startsPage = std::exchange(startsSection, false) || body[i].draft->startsPage;
        if (!startsPage)
            continue;
        const std::size_t page = body[i].draft->page;
        const double offset = body[i].top - std::max(tops.of(page), own ? headerEnd(*own, page) : 0.0);
        Paragraph* paragraph = body[i].paragraph();
        if (!paragraph) {
            spaceTable(body[i], offset, context);
            continue;
        }
        // A rule in the margin would push its text down, so it comes nearer to it.
        document::Border& rule = paragraph->properties.borders.top;
        rule.spacePoints = std::max(0, rule.spacePoints + static_cast<int>(std::floor(std::min(0.0, offset))));
        const double given = pointsFromTwips(paragraph->properties.spaceBefore);
        if (std::abs(offset - given) > context.parameters.spacing.sameGap)
            paragraph->properties.spaceBefore = twipsFromPoints(std::max(0.0, offset));
    }
}

void setColumnStarts(std::vector<AssembledBlock>& body, const AssemblyParameters::Spacing& limits) {
    const AssembledBlock* first = nullptr; // of its band
    for (AssembledBlock& block : body) {
        if (hasNoPlace(block))
            continue;
        if (!first || first->draft->page != block.draft->page || first->draft->band != block.draft->band) {
            first = &block;
            continue;
        }
        Paragraph* paragraph = block.paragraph();
        if (!block.draft->startsColumn || !paragraph)
            continue;
        const double offset = std::max(0.0, block.top - first->top);
        if (std::abs(offset - pointsFromTwips(paragraph->properties.spaceBefore)) > limits.sameGap)
            paragraph->properties.spaceBefore = twipsFromPoints(offset);
    }
}

} // namespace orvane::layout
