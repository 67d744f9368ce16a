#pragma once

#include "document/Document.h"

namespace orvane::tests {

/// A dashed box with a half transparent drop over it, text above and below.
document::Figure boxAndDrop();

/// A line that climbs to the right, behind the text.
document::Figure slopedLine();

} // namespace orvane::tests
