#include "layout/structure/NoteRows.h"

#include "layout/structure/NoteText.h"

#include <optional>

namespace orvane::layout {

void putMarksFirst(NoteArea& area, PageText& page) {
    if (area.starts.empty() || area.starts.front().line == area.lines.front())
        return;
    auto start = area.starts.begin();
    std::optional<std::size_t> first; // line of the note
    std::optional<Rect> mark;         // that was found in it; what stands beside it is of the same row
    for (const std::size_t line : area.lines) {
        const Rect box = page.lines[line].box;
        if (mark && 2 * overlap(box.top, box.bottom, mark->top, mark->bottom) < mark->height()) {
            first.reset();
            mark.reset();
        }
        first = first.value_or(line);
        if (start == area.starts.end() || line != start->line)
            continue;
        mark = box;
        if (*first != line)
            prependMark(page.lines[*first], takeMark(page.lines[line]));
        start->line = *first;
        ++start;
    }
}

} // namespace orvane::layout
