#pragma once

#include "pdf/FontRequest.h"

#include <optional>
#include <string>

class XRef;

namespace orvane::pdf {

/// Makes a whole TrueType file of the characters asked for, to travel with a document that people edit. Unset where a
/// maker's bits do not allow that or are not known, where a program cannot be read, and where an upright one is asked
/// for as an italic: then the letters were slanted as they were painted.
std::optional<std::string> packFont(const FontRequest& request, XRef& xref);

} // namespace orvane::pdf
