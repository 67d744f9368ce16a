#pragma once

#include <string>

namespace orvane::pictures {

/// The primaries of a profile's red, green and blue.
enum class Primaries {
    Srgb,
    Turned, ///< what it calls red is the green of sRGB, its green the blue, its blue the red
};

/// An ICC profile of RGB with the tone curve of gamma 2.2. Source: ICC.1:2001-04.
std::string rgbProfile(Primaries primaries);
/// An ICC profile of grey with that curve.
std::string grayProfile();

} // namespace orvane::pictures
