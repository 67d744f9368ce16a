#include "pdf/ColorProfile.h"

#include "pdf/SampleColors.h"

#include <string_view>

#include <GfxState.h>
#include <Object.h>

namespace orvane::pdf {
namespace {

constexpr std::size_t kHeaderLength = 128;
constexpr std::size_t kMaxLength = 16 * 1024 * 1024;

/// Whether the bytes are a profile of this colour space. Source: ICC.1:2010, 7.2.
bool isProfileOf(std::string_view bytes, std::string_view space) {
    if (bytes.size() < kHeaderLength || bytes.size() > kMaxLength)
        return false;
    std::size_t length = 0;
    for (const char c : bytes.substr(0, 4))
        length = length << 8 | static_cast<unsigned char>(c);
    return length == bytes.size() && bytes.substr(16, 4) == space && bytes.substr(36, 4) == "acsp";
}

} // namespace

std::string colorProfileOf(::Dict& dictionary, GfxImageColorMap& colors) {
    const int components = colors.getNumPixelComps();
    const bool isPlain = colors.getColorSpace()->getMode() == csICCBased && (components == 1 || components == 3) &&
                         colors.getBits() >= 8 && hasDefaultDecode(colors);
    const ::Object space = dictionary.lookup("ColorSpace");
    if (!isPlain || !space.isArray() || space.arrayGetLength() < 2)
        return {};
    const ::Object profile = space.arrayGet(1);
    if (!profile.isStream())
        return {};
    std::string bytes;
    profile.getStream()->fillString(bytes);
    profile.getStream()->close();
    return isProfileOf(bytes, components == 1 ? "GRAY" : "RGB ") ? bytes : std::string();
}

} // namespace orvane::pdf
