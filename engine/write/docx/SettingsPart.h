#pragma once

#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Adds the part with what holds for the whole document. Fields are not renewed when it is opened: that would ask the
/// reader.
/// Source: ECMA-376 part 1, 17.15; [MS-DOCX] 2.3 (compatibility).
void addSettingsPart(DocumentState& state, Relationships& relationships);

} // namespace orvane::write::docx
