#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace orvane::pdf {

/// What its maker allows to be done with an embedded font: the bits of the field fsType. Unset for a program that does
/// not tell, as most subsets do not. Source: OpenType, table "OS/2"; Adobe Technical Note 5147, FSType.
std::optional<std::uint16_t> embeddingBits(const std::vector<unsigned char>& program);

/// True where the bits let the font travel with a document that is edited, in a subset too.
bool mayBeEdited(std::uint16_t embeddingBits);

} // namespace orvane::pdf
