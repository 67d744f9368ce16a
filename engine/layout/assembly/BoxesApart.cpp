#include "layout/assembly/BoxesApart.h"

namespace orvane::layout {

void setBoxesApart(std::vector<AssembledBlock>& blocks) {
    for (AssembledBlock& block : blocks) {
        const DraftParagraph* draft = block.draftParagraph();
        if (draft && block.paragraph() && draft->pieces.front().text.isBoxApart)
            block.paragraph()->properties.indentStart += Twips(1);
    }
}

} // namespace orvane::layout
