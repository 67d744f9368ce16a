#pragma once

#include <string>

class Dict;
class GfxImageColorMap;

namespace orvane::pdf {

/// The ICC profile of a picture whose samples, as they stand, are the greys or the red, green and blue of that profile;
/// empty for others, and where the profile is damaged. `dictionary` is the picture's.
std::string colorProfileOf(::Dict& dictionary, GfxImageColorMap& colors);

} // namespace orvane::pdf
