#pragma once

#include "document/Document.h"
#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// A block of the document with what the stages after it need of its place on the page.
struct AssembledBlock {
    std::vector<document::Block> floats;            ///< that hang on it and are written before it
    document::Block block;                          ///< of a table: its cells are still empty
    const DraftBlock* draft = nullptr;              ///< null for what the engine added
    std::vector<std::vector<AssembledBlock>> cells; ///< of a table, one for each of DraftTable::cells
    std::vector<AssembledBlock> labels;             ///< of a drawing, one for each of DraftBlock::labels
    bool hasOwnLineSpacing = false;                 ///< of a paragraph: its lines show it; a single line shows none
    double top = 0;                                 ///< of its first line as a word processor sets it; page space
    double lastTop = 0;                             ///< of its last line, or of a table's last part, where that stands
    double bottom = 0;                              ///< likewise its end
    std::size_t lastPage = 0;                       ///< index into DocumentDraft::pages, where it ends

    document::Paragraph* paragraph() { return std::get_if<document::Paragraph>(&block.value); }
    const document::Paragraph* paragraph() const { return std::get_if<document::Paragraph>(&block.value); }
    const DraftParagraph* draftParagraph() const { return draft ? draft->paragraph() : nullptr; }
};

/// Where blocks stand that follow each other; some styles are made for one place only.
enum class FlowKind : unsigned char { Body, Cell, Note, Header, Footer };

/// Calls `visit(AssembledBlock&, FlowKind)` for every block in order, and for those in table cells and drawings.
template<typename Visit>
void forEachBlock(std::vector<AssembledBlock>& blocks, FlowKind kind, const Visit& visit) {
    for (AssembledBlock& block : blocks) {
        visit(block, kind);
        for (std::vector<AssembledBlock>& cell : block.cells)
            forEachBlock(cell, FlowKind::Cell, visit);
        forEachBlock(block.labels, FlowKind::Cell, visit);
    }
}

} // namespace orvane::layout
