#include "layout/assembly/TableSpacers.h"

#include "layout/assembly/BlockPlace.h"
#include "layout/assembly/EmptyParagraph.h"
#include "layout/assembly/TableAssembler.h"

#include <utility>

namespace orvane::layout {
namespace {

bool isTable(const AssembledBlock& block) {
    return std::holds_alternative<document::Table>(block.block.value);
}

} // namespace

void spaceTable(AssembledBlock& table, double points, const AssemblyContext& context) {
    if (points < context.parameters.spacing.smallestSpacer)
        return;
    document::Paragraph spacer = emptyParagraph(context);
    spacer.properties.lineSpacing = {document::LineSpacingRule::Exact, 1.0, twipsFromPoints(points)};
    if (document::Paragraph* first = firstParagraphOf(table))
        spacer.properties.pageBreakBefore = std::exchange(first->properties.pageBreakBefore, false);
    // What floats beside the table counts from its page, so it stands behind the break.
    table.floats.insert(table.floats.begin(), {std::move(spacer)});
}

void spaceTablesApart(std::vector<AssembledBlock>& blocks, const AssemblyContext& context) {
    forEachPair(blocks, [&context](AssembledBlock& upper, AssembledBlock& lower) {
        if (isTable(upper) && isTable(lower))
            spaceTable(lower, lower.top - upper.bottom, context);
    });
}

} // namespace orvane::layout
