#pragma once

#include "layout/structure/NoteAreas.h"

namespace orvane::layout {

/// Notes that are tables may have their marks beside their last rows. Puts each mark before the first line of its note;
/// lines that held nothing else are left without words. Requires: all starts of `area` are of notes.
void putMarksFirst(NoteArea& area, PageText& page);

} // namespace orvane::layout
