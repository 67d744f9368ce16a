#pragma once

#include "base/Diagnostic.h"
#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// True for a scanned page with so much recognised text that this can stand for its picture.
bool isReadScan(const PageText& page, const GraphicsParameters& parameters);

/// Of a scanned page keeps the text that was recognised or the picture, never one on top of the other: where the text
/// was read it stands for the pictures of it but illustrations, in even sizes and blanks, and a few words in a picture
/// become its alternate text. Requires: the mode does not promise the look of the page.
void partTextFromScan(PageText& page, const GraphicsParameters& parameters, Diagnostics& diagnostics);

} // namespace orvane::layout
