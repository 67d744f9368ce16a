#pragma once

#include "layout/text/PageText.h"
#include "pdf/PageContent.h"

namespace orvane::layout {

/// Hands the lines within a drawing over to it: they are its labels, and what it says to readers who cannot see it.
/// Lines that run on into the text beside it, or into another drawing, are parted first.
void labelDrawings(PageText& text, const pdf::PageContent& page);

} // namespace orvane::layout
