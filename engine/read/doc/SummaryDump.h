#pragma once

#include "read/doc/ByteView.h"

#include <string>

namespace orvane::read::doc {

/// The properties of a document information stream, one a line. Source: [MS-OLEPS] 2.20, 2.21.
std::string dumpSummary(const ByteView& stream);

} // namespace orvane::read::doc
