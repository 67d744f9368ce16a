#pragma once

#include "layout/assembly/AssemblyParameters.h"
#include "layout/structure/DocumentDraft.h"

#include <optional>

namespace orvane::layout {

/// The room that the paragraph's line is to have beyond its end if it is the only one: a stand-in for its font may be
/// wider, and must not break it. Nothing for text that wraps. Units: points.
std::optional<double> spareOf(const DraftParagraph& paragraph, const AssemblyParameters::LineSpares& parameters);

} // namespace orvane::layout
