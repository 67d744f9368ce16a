#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

#include <vector>

namespace orvane::layout {

/// Cuts the labels of all drawings into paragraphs that can keep every line where it stood.
void cutLabels(DocumentDraft& draft, const LayoutParameters& parameters);

/// Lets the lines of cut labels be as wide as on the page.
void fitLabels(DocumentDraft& draft, const FontCatalog& fonts, Tracking tracking, const LayoutParameters& parameters);

/// Puts the labels of a drawing into frames over it. Where `drawing` says so they hang, with its floats, on the
/// paragraph that keeps its place.
void frameLabels(AssembledBlock& drawing, const AssemblyContext& context);

} // namespace orvane::layout
