#pragma once

#include <cstdint>
#include <string>

namespace orvane {

/// An sRGB colour, 8 bits a channel.
struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    auto operator<=>(const Color&) const = default;
};

inline constexpr Color kBlack{0, 0, 0};
inline constexpr Color kWhite{255, 255, 255};

/// The colour as six hexadecimal digits, upper case: "0078D4".
std::string toHex(Color color);

} // namespace orvane
