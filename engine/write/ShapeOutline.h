#pragma once

#include "document/Document.h"

namespace orvane::write {

/// Whether the shape is a line from one corner of its box to the opposite one.
bool isDiagonal(const document::Shape& shape);

/// Whether the outline runs round its box once, whichever way and wherever it starts.
bool isBox(const document::Shape& shape);

/// Whether the drawing is one shape that fills its box, so that it needs no group around it.
bool isSingleShape(const document::Drawing& drawing);

} // namespace orvane::write
