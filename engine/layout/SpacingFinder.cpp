#include "layout/SpacingFinder.h"

namespace orvane::layout {
namespace {

document::Paragraph* paragraphOf(AssembledBlock& block) {
    return std::get_if<document::Paragraph>(&block.block.value);
}

bool floats(const AssembledBlock& block) {
    return std::holds_alternative<document::Figure>(block.block.value) ||
           std::holds_alternative<document::Frame>(block.block.value);
}

/// The gap between two blocks, 0 when there is none or when they do not stand one below the other.
double gapBetween(const AssembledBlock& upper, const AssembledBlock& lower, const LayoutParameters::Spacing& limits) {
    if (upper.lastPage != lower.draft->page)
        return 0;
    const double gap = lower.top - upper.bottom;
    return gap < limits.smallestGap || gap > limits.largestGap ? 0 : gap;
}

} // namespace

void setSpacing(std::vector<AssembledBlock>& blocks, const LayoutParameters& parameters) {
    AssembledBlock* upper = nullptr;
    for (AssembledBlock& lower : blocks) {
        if (floats(lower))
            continue;
        if (upper) {
            const Twips gap = twipsFromPoints(gapBetween(*upper, lower, parameters.spacing));
            if (document::Paragraph* paragraph = paragraphOf(*upper))
                paragraph->properties.spaceAfter = gap;
            else if (document::Paragraph* next = paragraphOf(lower))
                next->properties.spaceBefore = gap;
        }
        upper = &lower;
    }
}

} // namespace orvane::layout
