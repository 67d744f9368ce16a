#pragma once

#include "layout/tables/TextPiece.h"

#include <vector>

namespace orvane::layout {

/// Whether `below` may be the next line of the text that `above` belongs to.
bool followsOn(const TextPiece& above, const TextPiece& below, const TableParameters::Tables& parameters);

/// For each piece whether it is a line of running text: one of several long lines one below the other that fill their
/// column, or go on in the next because its first word has no room.
std::vector<char> markProse(const std::vector<TextPiece>& pieces, const std::vector<Line>& lines,
                            const TableParameters::Tables& parameters);

} // namespace orvane::layout
