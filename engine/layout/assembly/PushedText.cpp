#include "layout/assembly/PushedText.h"

#include "layout/assembly/BlockPlace.h"
#include "layout/assembly/EmptyParagraph.h"

#include <utility>

namespace orvane::layout {

void pushText(std::vector<AssembledBlock>& header, double distance, double top, const AssemblyContext& context) {
    AssembledBlock* last = nullptr;
    for (AssembledBlock& block : header)
        if (!hasNoPlace(block))
            last = &block;
    const double room = top - (last ? last->bottom : distance);
    if (room <= 0)
        return;
    if (last && last == &header.back() && last->paragraph()) {
        last->paragraph()->properties.spaceAfter = twipsFromPoints(room);
        return;
    }
    document::Paragraph filler = emptyParagraph(context);
    filler.properties.lineSpacing = {document::LineSpacingRule::Exact, 1.0, twipsFromPoints(room)};
    AssembledBlock block;
    block.block.value = std::move(filler);
    header.push_back(std::move(block));
}

} // namespace orvane::layout
