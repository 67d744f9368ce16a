#include "layout/assembly/ColumnFlow.h"

#include "layout/assembly/BlockPlace.h"
#include "layout/structure/BlockExtent.h"

#include <algorithm>

namespace orvane::layout {
namespace {

bool areInOneBand(const BlockEnd& a, const BlockEnd& b) {
    return a.page == b.page && a.band == b.band;
}

} // namespace

std::vector<ColumnFoot> columnsAbove(std::vector<AssembledBlock>& body, std::size_t next) {
    std::vector<ColumnFoot> columns;
    const DraftBlock* below = body[next].draft;
    if (hasNoPlace(body[next]))
        return columns;
    BlockEnd end;
    bool startsColumn = true;
    for (std::size_t i = next; i-- > 0;) {
        if (hasNoPlace(body[i]))
            continue;
        const BlockEnd own = endOf(*body[i].draft);
        if (columns.empty() && (own.page != below->page || own.band == below->band))
            break;
        if (!columns.empty() && !areInOneBand(own, end))
            break;
        if (columns.empty() || own.column != end.column)
            columns.push_back({&body[i], startsColumn});
        end = own;
        startsColumn = body[i].draft->startsColumn;
    }
    if (columns.size() < 2)
        columns.clear();
    std::reverse(columns.begin(), columns.end());
    return columns;
}

} // namespace orvane::layout
