#pragma once

#include "base/Diagnostic.h"
#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"
#include "layout/structure/NoteFinder.h"

namespace orvane::layout {

/// Puts the text of each note in order and adds the notes, and the places that refer to them, to the draft.
void makeNotes(DocumentDraft& draft, FoundNotes found, const DocumentContext& context,
               const LayoutParameters& parameters, Diagnostics& diagnostics);

} // namespace orvane::layout
