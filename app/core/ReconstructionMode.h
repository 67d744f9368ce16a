#pragma once

#include <cstdint>

/// Values of AppSettings::intReconstMode.
namespace reconstruction_mode {
inline constexpr std::int16_t kTruePage = 0;
inline constexpr std::int16_t kContinuous = 1;
inline constexpr std::int16_t kPlainText = 2;
inline constexpr std::int16_t kFlowingText = 3;
inline constexpr std::int16_t kTableText = 4;

/// Whether documents of that mode have neither images nor a spacing of their own.
inline bool isTextOnly(std::int16_t intReconstMode) {
    return intReconstMode == kContinuous || intReconstMode == kPlainText;
}
} // namespace reconstruction_mode
