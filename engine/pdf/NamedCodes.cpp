#include "pdf/NamedCodes.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>
#include <vector>

#include <GfxFont.h>
#include <Object.h>
#include <Stream.h>
#include <XRef.h>

namespace orvane::pdf {
namespace {

constexpr std::size_t kLongestMap = 1 << 20; ///< bytes; 256 codes need far less

/// The section of a map from `at` on that begins with the word "begin" + `kind`, without the words around it; empty
/// behind the last.
std::string_view nextSection(std::string_view map, const std::string& kind, std::size_t& at) {
    const std::string begin = "begin" + kind;
    at = map.find(begin, at);
    if (at == std::string_view::npos)
        return {};
    at += begin.size();
    const std::size_t end = std::min(map.find("end" + kind, at), map.size());
    const std::string_view section = map.substr(at, end - at);
    at = end;
    return section;
}

/// The hexadecimal strings of a section; what stands in an array counts as one, its first.
std::vector<std::string_view> stringsOf(std::string_view section) {
    std::vector<std::string_view> strings;
    for (std::size_t i = 0; i < section.size(); ++i) {
        const std::size_t arrayEnd = section[i] == '[' ? section.find(']', i) : i;
        const std::size_t begin = section.find('<', i);
        const std::size_t end = section.find('>', i);
        if (begin == std::string_view::npos || end == std::string_view::npos || end < begin)
            break;
        if (section[i] != '<' && section[i] != '[')
            continue;
        strings.push_back(section.substr(begin + 1, end - begin - 1));
        i = section[i] == '[' ? std::min(arrayEnd, section.size()) : end;
    }
    return strings;
}

std::uint32_t numberOf(std::string_view text) {
    std::uint32_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number, 16);
    return number;
}

struct Named {
    std::bitset<256> codes;
    std::size_t lowest = 256;
    std::size_t highest = 0;
    std::size_t asTheyAre = 0; ///< named with the character of their own number

    /// Whether the codes are numbers in the order of use, most of which have names: a map may name a few ligatures only
    /// where a usual encoding tells the letters.
    bool areNumbers() const {
        return codes.any() && 2 * asTheyAre < codes.count() && 2 * codes.count() > highest + 1 - lowest;
    }
};

Named namedIn(std::string_view map) {
    Named named;
    const auto add = [&](std::uint32_t first, std::uint32_t last, std::string_view character) {
        for (std::uint32_t code = first; code <= last && code < named.codes.size(); ++code) {
            named.codes.set(code);
            named.lowest = std::min<std::size_t>(named.lowest, code);
            named.highest = std::max<std::size_t>(named.highest, code);
        }
        if (first <= last && last < named.codes.size() && numberOf(character) == first)
            named.asTheyAre += last - first + 1;
    };
    // A code and its character, or the first and the last code of a range and the character of the first.
    const auto read = [&](const std::string& kind, std::size_t count) {
        for (std::size_t at = 0; at < map.size();) {
            const std::vector<std::string_view> strings = stringsOf(nextSection(map, kind, at));
            for (std::size_t i = 0; i + count <= strings.size(); i += count)
                add(numberOf(strings[i]), numberOf(strings[i + count - 2]), strings[i + count - 1]);
        }
    };
    read("bfchar", 2);
    read("bfrange", 3);
    return named;
}

} // namespace

NamedCodes::NamedCodes(const GfxFont& font, XRef& xref) {
    m_codes.set();
    // Glyphs of other kinds of fonts have names of their own.
    if (font.getType() != fontTrueType || !font.hasToUnicodeCMap())
        return;
    const Object dictionary = xref.fetch(*font.getID());
    if (!dictionary.isDict() || !dictionary.dictLookupNF("Encoding").isNull())
        return;
    Object stream = dictionary.dictLookup("ToUnicode");
    if (!stream.isStream())
        return;
    std::string map;
    stream.getStream()->fillString(map);
    if (map.size() > kLongestMap)
        return;
    const Named named = namedIn(map);
    if (named.areNumbers())
        m_codes = named.codes;
}

} // namespace orvane::pdf
