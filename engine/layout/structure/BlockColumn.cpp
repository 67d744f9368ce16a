#include "layout/structure/BlockColumn.h"

namespace orvane::layout {

ColumnSpan columnOf(const DraftBlock& block, const DocumentDraft& draft) {
    if (block.textColumn)
        return *block.textColumn;
    const std::vector<Band>& bands = draft.pages[block.page].bands;
    const auto band = static_cast<std::size_t>(block.band), column = static_cast<std::size_t>(block.column);
    if (band < bands.size() && column < bands[band].columns.size())
        return bands[band].columns[column];
    return {block.box.left, block.box.right};
}

} // namespace orvane::layout
