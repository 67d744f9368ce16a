#pragma once

#include <string_view>

namespace orvane {

/// Whether the text has a character that word processors set with their properties for complex scripts (Arabic, Hebrew,
/// the scripts of India and South East Asia) instead of the plain ones.
bool hasComplexScript(std::string_view utf8);

} // namespace orvane
