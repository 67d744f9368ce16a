#pragma once

#include "document/Drawing.h"

#include <cstdint>

namespace orvane::write {

/// Whether the older formats hold the shape's gradient: they know linear ones.
bool isStoredAsGradient(const document::Shape& shape);

/// The way of a linear gradient as the older formats store it: degrees with 16 binary places, of which 0 runs upwards.
/// Source: [MS-ODRAW] 2.3.7.12 (fillAngle).
std::int64_t storedGradientAngle(const document::Gradient& gradient);

} // namespace orvane::write
