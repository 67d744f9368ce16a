#pragma once

#include "document/Document.h"
#include "pdf/PageContent.h"

#include <vector>

namespace orvane::layout {

/// The field as a content control. `seen` is what stands in it on the page; where it says the field's value, the value
/// is taken as it was typed.
document::ContentControl controlOf(const pdf::FormField& field, std::vector<document::Inline> seen);

} // namespace orvane::layout
