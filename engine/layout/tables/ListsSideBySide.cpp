#include "layout/tables/ListsSideBySide.h"

namespace orvane::layout {
namespace {

/// From one baseline to another.
struct Stretch {
    double from = 0;
    double to = 0;
};

/// The lines of a column that follow each other, as stretches from the first baseline to the last.
std::vector<Stretch> blocksOf(const ColumnPieces& column, const TableParameters::Tables& parameters) {
    std::vector<Stretch> blocks;
    for (const TextPiece* piece : column.pieces) {
        if (blocks.empty() || piece->baseline - blocks.back().to > parameters.proseLeading * piece->fontSize)
            blocks.push_back({piece->baseline, piece->baseline});
        blocks.back().to = piece->baseline;
    }
    return blocks;
}

/// How many spaces between `blocks` the lines of one of the `others` run past.
int countCrossed(const std::vector<Stretch>& blocks, const std::vector<Stretch>& others) {
    int crossed = 0;
    auto other = others.begin();
    for (std::size_t i = 1; i < blocks.size(); ++i) {
        while (other != others.end() && other->to < blocks[i].from)
            ++other;
        crossed += other != others.end() && other->from <= blocks[i - 1].to;
    }
    return crossed;
}

} // namespace

bool areListsSideBySide(std::span<const ColumnPieces> columns, const TableParameters::Tables& parameters) {
    if (columns.size() < 3)
        return false;
    std::vector<Stretch> last = blocksOf(columns.front(), parameters);
    for (const ColumnPieces& column : columns.subspan(1)) {
        std::vector<Stretch> blocks = blocksOf(column, parameters);
        if (countCrossed(last, blocks) < parameters.fewestPartedRows ||
            countCrossed(blocks, last) < parameters.fewestPartedRows)
            return false;
        last = std::move(blocks);
    }
    return true;
}

} // namespace orvane::layout
