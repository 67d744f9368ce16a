#pragma once

#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Finds out in which signs the marks of notes count, and where they start anew; those that this gives are left to the
/// word processor, the others stay as they are. Requires: the draft has its sections.
void countNotes(DocumentDraft& draft);

} // namespace orvane::layout
