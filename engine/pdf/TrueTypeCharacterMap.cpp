#include "pdf/TrueTypeCharacterMap.h"

#include "pdf/BigEndian.h"

#include <vector>

namespace orvane::pdf {
namespace {

/// Characters that follow each other with glyphs that follow each other.
struct Segment {
    char32_t first;
    char32_t last;
    unsigned glyph; ///< of the first
};

std::vector<Segment> segmentsOf(const std::map<char32_t, std::uint16_t>& glyphOf) {
    std::vector<Segment> segments;
    for (const auto& [character, glyph] : glyphOf) {
        const bool goesOn = !segments.empty() && character == segments.back().last + 1 &&
                            glyph == segments.back().glyph + (character - segments.back().first) &&
                            character != 0x10000;
        if (goesOn)
            segments.back().last = character;
        else
            segments.push_back({character, character, glyph});
    }
    return segments;
}

/// Format 4, for the characters of 16 bits.
std::string shortCharacterMap(std::vector<Segment> segments) {
    std::erase_if(segments, [](const Segment& segment) { return segment.last >= 0xFFFF; });
    segments.push_back({0xFFFF, 0xFFFF, 0});
    const auto count = static_cast<unsigned>(segments.size());
    unsigned power = 1, exponent = 0;
    for (; power * 2 <= count; power *= 2)
        ++exponent;
    BigEndian map;
    map.u16(4);
    map.u16(16 + 8 * count);
    map.u16(0);
    map.u16(2 * count);
    map.u16(2 * power);
    map.u16(exponent);
    map.u16(2 * (count - power));
    for (const Segment& segment : segments)
        map.u16(segment.last);
    map.u16(0);
    for (const Segment& segment : segments)
        map.u16(segment.first);
    for (const Segment& segment : segments)
        map.u16((segment.glyph - segment.first) & 0xFFFFU);
    map.zeros(std::size_t{2} * count);
    return map.bytes();
}

/// Format 12, for all characters.
std::string longCharacterMap(const std::vector<Segment>& segments) {
    BigEndian map;
    map.u16(12);
    map.u16(0);
    map.u32(static_cast<std::uint32_t>(16 + 12 * segments.size()));
    map.u32(0);
    map.u32(static_cast<std::uint32_t>(segments.size()));
    for (const Segment& segment : segments) {
        map.u32(segment.first);
        map.u32(segment.last);
        map.u32(segment.glyph);
    }
    return map.bytes();
}

} // namespace

std::string characterMap(const std::map<char32_t, std::uint16_t>& glyphOf) {
    constexpr unsigned kWindows = 3, kShort = 1, kLong = 10; // platform and encodings
    const std::vector<Segment> segments = segmentsOf(glyphOf);
    const bool isLong = !segments.empty() && segments.back().last > 0xFFFF;
    const std::string first = shortCharacterMap(segments);
    BigEndian table;
    table.u16(0);
    table.u16(isLong ? 2 : 1);
    const auto offset = static_cast<std::uint32_t>(4 + 8 * (isLong ? 2 : 1));
    table.u16(kWindows);
    table.u16(kShort);
    table.u32(offset);
    if (isLong) {
        table.u16(kWindows);
        table.u16(kLong);
        table.u32(offset + static_cast<std::uint32_t>(first.size()));
    }
    table.text(first);
    if (isLong)
        table.text(longCharacterMap(segments));
    return table.bytes();
}

} // namespace orvane::pdf
