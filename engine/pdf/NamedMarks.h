#pragma once

#include <string>
#include <string_view>

class Dict;

namespace orvane::pdf {

/// The marked point that stands for "a sequence with a named property list begins here"; see withNamedMarks().
inline constexpr char kNamedMarkPoint[] = "OrvaneNamedMark";
/// The key of its property list under which the sequence's tag stands.
inline constexpr char kNamedMarkTag[] = "OrvaneTag";

/// The PDF library tells the beginning of a marked-content sequence only when its properties stand in the content
/// itself, and its end always. This puts a marked point with the properties of `named` (the resources' /Properties)
/// behind each "/Tag /Name BDC" of `content`, so that ends have beginnings and no number into the structure tree is
/// lost. Source: ISO 32000-1, 14.6.2.
std::string withNamedMarks(std::string_view content, const ::Dict& named);

} // namespace orvane::pdf
