#pragma once

#include "base/Color.h"

namespace orvane::write {

/// Which of the sixteen colours of a word processor's text marker the colour is: 1 for black to 16 for light grey; 0
/// for one that markers do not have.
/// Source: ECMA-376 part 1, 17.18.40; [MS-DOC] 2.9.119 (Ico).
int markerColor(Color color);

} // namespace orvane::write
