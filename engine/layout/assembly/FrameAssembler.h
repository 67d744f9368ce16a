#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

namespace orvane::layout {

/// Puts a paragraph of cutIntoFrames() into a frame that holds its lines where they stood: the height of lines is set
/// to their pitch, and the frame has room for letters that turn out wider than those of the PDF.
/// Requires: `block` is such a paragraph, with its style.
document::Frame frameOf(AssembledBlock block, const AssemblyContext& context);

} // namespace orvane::layout
