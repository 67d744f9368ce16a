#pragma once

#include "pdf/TrueTypeGlyph.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace orvane::pdf {

/// What a font file says. Units: of the em, but where told otherwise.
struct TrueTypeFile {
    std::string family; ///< ASCII
    std::string copyright;
    bool isBold = false;
    bool isItalic = false;
    bool isFixedPitch = false;
    std::uint16_t embeddingBits = 0;
    int unitsPerEm = 1000;
    int ascent = 800;
    int descent = 200;                         ///< below the baseline, positive
    std::vector<TrueTypeGlyph> glyphs;         ///< the first is shown for characters that are not there
    std::map<char32_t, std::uint16_t> glyphOf; ///< by character
};

/// The bytes of the file, with all tables that word processors ask for. Source: OpenType 1.9.
std::string bytesOf(const TrueTypeFile& file);

} // namespace orvane::pdf
