#pragma once

#include "read/doc/ByteView.h"

#include <string>

namespace orvane::read::doc {

/// A list of properties as text: each with its name, or its number where it has none here, and its value: numbers in
/// decimal, longer values as hexadecimal digits. "bold=1 size=24 4a61=1800".
/// `data` is the data stream, where lists that are too long stand.
/// Errors: Damage for a property that is cut.
/// Source: [MS-DOC] 2.6 (Single Property Modifiers).
std::string describeProperties(const ByteView& list, const ByteView& data);

} // namespace orvane::read::doc
