#pragma once

#include "layout/assembly/TextAssembler.h"

namespace orvane::layout {

/// The numbering with the looks of its labels. Bullets are set in the fonts that word processors have them in.
document::Numbering assembleNumbering(const DraftNumbering& draft, const AssemblyContext& context);

} // namespace orvane::layout
