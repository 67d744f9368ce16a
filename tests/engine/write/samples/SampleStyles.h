#pragma once

#include "document/Document.h"

#include <vector>

namespace orvane::tests {

inline constexpr Color kBlue{0x1F, 0x4E, 0x79};
inline constexpr Color kPale{0xDD, 0xEB, 0xF7};

/// The sample's styles, made from the look of its plain text.
std::vector<document::Style> sampleStyles(const document::ParagraphProperties& normal,
                                          const document::RunProperties& run);

/// Bullets of two levels, and numbers of three that are counted twice.
std::vector<document::Numbering> sampleNumberings(const document::RunProperties& run);

} // namespace orvane::tests
