#include "layout/assembly/KeepRelease.h"

#include "layout/assembly/BlockPlace.h"

namespace orvane::layout {
namespace {

/// Whether a page or column holds just one line of a paragraph that has more.
bool leavesALineAlone(const DraftParagraph& paragraph) {
    const std::vector<DraftPiece>& pieces = paragraph.pieces;
    return pieces.size() > 1 && (pieces.front().text.lines.size() == 1 || pieces.back().text.lines.size() == 1);
}

void releaseLines(AssembledBlock& block) {
    const DraftParagraph* draft = block.draftParagraph();
    if (draft && leavesALineAlone(*draft))
        block.paragraph()->properties.hasWidowControl = false;
    for (std::vector<AssembledBlock>& cell : block.cells)
        for (AssembledBlock& inside : cell)
            releaseLines(inside);
}

} // namespace

void releaseKeeps(std::vector<AssembledBlock>& body) {
    AssembledBlock* upper = nullptr;
    for (AssembledBlock& lower : body) {
        if (hasNoPlace(lower))
            continue;
        releaseLines(lower);
        if (upper && upper->paragraph() && upper->lastPage < lower.draft->page)
            upper->paragraph()->properties.keepWithNext = false;
        upper = &lower;
    }
}

} // namespace orvane::layout
