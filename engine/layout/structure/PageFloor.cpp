#include "layout/structure/PageFloor.h"

namespace orvane::layout {

double floorOf(const DocumentDraft& draft, std::size_t page, int band, const Rect& area) {
    const std::vector<Band>& bands = draft.pages[page].bands;
    const auto index = static_cast<std::size_t>(band);
    if (index + 1 < bands.size())
        return bands[index].bottom;
    const bool hasNotes = page < draft.noteAreas.size() && !draft.noteAreas[page].isEmpty();
    return hasNotes ? draft.noteAreas[page].top : area.bottom;
}

bool isHalfEmpty(double bottom, double pageHeight) {
    return 2 * bottom <= pageHeight;
}

std::size_t linesToStart(std::size_t lines) {
    // Of three lines neither the first two nor the last two may leave, so they stay together.
    return lines <= kKeptLines + 1 ? lines : kKeptLines;
}

} // namespace orvane::layout
