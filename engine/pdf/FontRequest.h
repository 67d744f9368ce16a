#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::pdf {

/// A character, and how a font of the file shows it.
struct FontCharacter {
    char32_t character = 0;
    std::uint32_t code = 0; ///< Glyph::charCode
    double advance = 0;     ///< em
};

/// The characters of one font of the file. Programs write several for one face, a subset for each encoding.
struct FontSource {
    int objectNumber = 0;                  ///< Font::objectNumber
    std::vector<FontCharacter> characters; ///< each once
};

/// A face of a family, to be made of font programs in the file. Units: em.
struct FontRequest {
    std::string family; ///< ASCII
    bool isBold = false;
    bool isItalic = false;
    bool isFixedPitch = false;
    double ascent = 0.8;  ///< of a line in single spacing
    double descent = 0.2; ///< likewise, positive
    double blankWidth = 0.25;
    std::vector<FontSource> sources;
};

} // namespace orvane::pdf
