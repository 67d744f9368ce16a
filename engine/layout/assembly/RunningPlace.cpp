#include "layout/assembly/RunningPlace.h"

#include "layout/assembly/BlockPlace.h"

#include <algorithm>

namespace orvane::layout {
namespace {

bool hasPlace(const AssembledBlock& block) {
    return !hasNoPlace(block);
}

} // namespace

void holdBelow(double edge, std::vector<AssembledBlock>& header, const AssemblyParameters::Spacing& parameters) {
    const auto first = std::find_if(header.begin(), header.end(), hasPlace);
    if (first == header.end() || !first->paragraph() || first->top - edge <= parameters.sameGap)
        return;
    first->paragraph()->properties.spaceBefore = twipsFromPoints(first->top - edge);
}

void holdAbove(double edge, std::vector<AssembledBlock>& footer, const AssemblyParameters::Spacing& parameters) {
    const auto last = std::find_if(footer.rbegin(), footer.rend(), hasPlace);
    if (last == footer.rend() || !last->paragraph() || edge - last->bottom <= parameters.sameGap)
        return;
    last->paragraph()->properties.spaceAfter = twipsFromPoints(edge - last->bottom);
}

} // namespace orvane::layout
