#pragma once

#include "pdf/FontProgram.h"

#include <optional>

namespace orvane::pdf {

/// How the letters of a font are drawn, seen on those that stand on straight stems ("H", "l", "n").
struct LetterForm {
    bool hasSerifs = false;
    double stem = 0;  ///< em, how thick the stems are
    double slant = 0; ///< to the right for each unit upwards; a lean of 12 degrees is 0.21
};

/// Unset for programs that do not tell which glyphs are those letters, or have none of them.
std::optional<LetterForm> letterFormOf(const FontProgram& program);

} // namespace orvane::pdf
