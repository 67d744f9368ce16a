#pragma once

#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// Calls `visit` for every paragraph in reading order, those in table cells too. The labels of drawings are none.
template<typename Visit>
void forEachParagraph(std::vector<DraftBlock>& blocks, const Visit& visit) {
    for (DraftBlock& block : blocks) {
        if (DraftParagraph* paragraph = std::get_if<DraftParagraph>(&block.value))
            visit(*paragraph);
        else if (DraftTable* table = std::get_if<DraftTable>(&block.value))
            for (DraftCell& cell : table->cells)
                forEachParagraph(cell.blocks, visit);
    }
}

template<typename Visit>
void forEachParagraph(const std::vector<DraftBlock>& blocks, const Visit& visit) {
    for (const DraftBlock& block : blocks) {
        if (const DraftParagraph* paragraph = std::get_if<DraftParagraph>(&block.value))
            visit(*paragraph);
        else if (const DraftTable* table = std::get_if<DraftTable>(&block.value))
            for (const DraftCell& cell : table->cells)
                forEachParagraph(cell.blocks, visit);
    }
}

} // namespace orvane::layout
