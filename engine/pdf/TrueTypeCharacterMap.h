#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace orvane::pdf {

/// More characters than this may not fit into the map.
constexpr std::size_t kMostMappedCharacters = 8000;

/// The table "cmap" of a font file. Requires: at most kMostMappedCharacters. Source: OpenType, "cmap", formats 4
/// and 12.
std::string characterMap(const std::map<char32_t, std::uint16_t>& glyphOf);

} // namespace orvane::pdf
