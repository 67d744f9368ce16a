#pragma once

#include <bitset>
#include <cstdint>

class GfxFont;
class XRef;

namespace orvane::pdf {

/// The codes of a simple font that its map to Unicode names, where the codes are nothing but numbers in the order of
/// use. The library then hands out the letter that a usual encoding has at a code without a name; such glyphs were put
/// in by the writer, as are the strokes that stretch Arabic lines, and are no letters.
/// Source: ISO 32000-1, 9.10.2.
class NamedCodes {
public:
    /// All codes count as named in a font with an encoding, without a map, whose map agrees with the usual encoding or
    /// names few codes, or whose glyphs have names.
    NamedCodes(const GfxFont& font, XRef& xref);

    bool isNamed(std::uint32_t code) const { return code >= m_codes.size() || m_codes[code]; }

private:
    std::bitset<256> m_codes;
};

} // namespace orvane::pdf
