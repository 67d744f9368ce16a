#include "pdf/MathGlyphName.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace orvane::pdf {
namespace {

struct NamedCharacter {
    std::string_view name;
    char32_t character;
};

constexpr std::array kNames{
    NamedCharacter{"prime", 0x2032},
    NamedCharacter{"owner", 0x220B},
    NamedCharacter{"triangle", 0x25B3},
    NamedCharacter{"triangleinv", 0x25BD},
    NamedCharacter{"negationslash", 0x0338},
    NamedCharacter{"mapsto", 0x21A6},
    NamedCharacter{"Rfractur", 0x211C},
    NamedCharacter{"Ifractur", 0x2111},
    NamedCharacter{"angbracketleft", 0x27E8},
    NamedCharacter{"angbracketright", 0x27E9},
    NamedCharacter{"bardbl", 0x2016},
    NamedCharacter{"epsilon1", 0x03F5},
    NamedCharacter{"rho1", 0x03F1},
    NamedCharacter{"pi1", 0x03D6},
    NamedCharacter{"arrowhookleft", 0x21A9},
    NamedCharacter{"arrowhookright", 0x21AA},
    NamedCharacter{"lessmuch", 0x226A},
    NamedCharacter{"greatermuch", 0x226B},
    NamedCharacter{"latticetop", 0x22A4},
    NamedCharacter{"perpendicular", 0x22A5},
    NamedCharacter{"floorleft", 0x230A},
    NamedCharacter{"floorright", 0x230B},
    NamedCharacter{"ceilingleft", 0x2308},
    NamedCharacter{"ceilingright", 0x2309},
    NamedCharacter{"lscript", 0x2113},
    NamedCharacter{"slurbelow", 0x2323},
    NamedCharacter{"slurabove", 0x2322},
    NamedCharacter{"squaresolid", 0x25A0},
    NamedCharacter{"square", 0x25A1},
    NamedCharacter{"measuredangle", 0x2221},
    NamedCharacter{"star", 0x2605},
    NamedCharacter{"triangledownsld", 0x25BC},
    NamedCharacter{"trianglesolid", 0x25B2},
    NamedCharacter{"defines", 0x225C},
    NamedCharacter{"subsetnoteql", 0x228A},
    NamedCharacter{"notexistential", 0x2204},
    NamedCharacter{"vector", 0x20D7},
    NamedCharacter{"tie", 0x2040},
    NamedCharacter{"similarequal", 0x2243},
    NamedCharacter{"precedes", 0x227A},
    NamedCharacter{"follows", 0x227B},
    NamedCharacter{"precedesequal", 0x2AAF},
    NamedCharacter{"followsequal", 0x2AB0},
    NamedCharacter{"equivasymptotic", 0x224D},
    NamedCharacter{"circlemultiply", 0x2297},
    NamedCharacter{"circleplus", 0x2295},
    NamedCharacter{"circleminus", 0x2296},
    NamedCharacter{"circledivide", 0x2298},
    NamedCharacter{"circledot", 0x2299},
    NamedCharacter{"circlecopyrt", 0x25CB},
    NamedCharacter{"openbullet", 0x25E6},
    NamedCharacter{"diamondmath", 0x22C4},
    NamedCharacter{"minusplus", 0x2213},
    NamedCharacter{"asteriskmath", 0x2217},
    NamedCharacter{"reflexsubset", 0x2286},
    NamedCharacter{"reflexsuperset", 0x2287},
    NamedCharacter{"subsetsqequal", 0x2291},
    NamedCharacter{"supersetsqequal", 0x2292},
    NamedCharacter{"logicaland", 0x2227},
    NamedCharacter{"logicalor", 0x2228},
    NamedCharacter{"unionsq", 0x2294},
    NamedCharacter{"intersectionsq", 0x2293},
    NamedCharacter{"unionmulti", 0x228E},
    NamedCharacter{"turnstileleft", 0x22A2},
    NamedCharacter{"turnstileright", 0x22A3},
    NamedCharacter{"backslash", 0x005C},
    NamedCharacter{"wreathproduct", 0x2240},
    NamedCharacter{"coproduct", 0x2210},
    NamedCharacter{"nabla", 0x2207},
    NamedCharacter{"arrownortheast", 0x2197},
    NamedCharacter{"arrowsoutheast", 0x2198},
    NamedCharacter{"arrownorthwest", 0x2196},
    NamedCharacter{"arrowsouthwest", 0x2199},
    NamedCharacter{"arrowbothv", 0x2195},
    NamedCharacter{"arrowdblbothv", 0x21D5},
    NamedCharacter{"tildewide", 0x0303},
    NamedCharacter{"tildewider", 0x0303},
    NamedCharacter{"tildewidest", 0x0303},
    NamedCharacter{"hatwide", 0x0302},
    NamedCharacter{"hatwider", 0x0302},
    NamedCharacter{"hatwidest", 0x0302},
    NamedCharacter{"vextendsingle", 0x23D0},
    NamedCharacter{"vextenddouble", 0x2016},
    NamedCharacter{"contintegral", 0x222E},
    NamedCharacter{"summation", 0x2211},
    NamedCharacter{"product", 0x220F},
    NamedCharacter{"integral", 0x222B},
    NamedCharacter{"union", 0x22C3},
    NamedCharacter{"intersection", 0x22C2},
    NamedCharacter{"radical", 0x221A},
    NamedCharacter{"parenleft", u'('},
    NamedCharacter{"parenright", u')'},
    NamedCharacter{"bracketleft", u'['},
    NamedCharacter{"bracketright", u']'},
    NamedCharacter{"braceleft", u'{'},
    NamedCharacter{"braceright", u'}'},
    NamedCharacter{"slash", u'/'},
    NamedCharacter{"radicalvertex", 0x221A},
    NamedCharacter{"radicalbt", 0x23B7},
    NamedCharacter{"bracehtipdownleft", 0x23DE},
    NamedCharacter{"bracehtipdownright", 0x23DE},
    NamedCharacter{"bracehtipupleft", 0x23DF},
    NamedCharacter{"bracehtipupright", 0x23DF},
    NamedCharacter{"Bullet", 0x2022},
};

/// The large forms of a sign carry their size in their name.
constexpr std::array<std::string_view, 6> kSizes{"bigg", "Bigg", "big", "Big", "display", "text"};

std::string_view withoutSize(std::string_view name) {
    for (const std::string_view size : kSizes)
        if (name.size() > size.size() && name.ends_with(size))
            return name.substr(0, name.size() - size.size());
    return name;
}

/// The first half of TeX's font of symbols, in order; 0 for what has no character.
constexpr std::array<char16_t, 64> kSymbols{
    0x2212, 0x00B7, 0x00D7, 0x2217, 0x00F7, 0x22C4, 0x00B1, 0x2213, 0x2295, 0x2296, 0x2297, 0x2298, 0x2299,
    0x25CB, 0x2218, 0x2022, 0x224D, 0x2261, 0x2286, 0x2287, 0x2264, 0x2265, 0x2AAF, 0x2AB0, 0x223C, 0x2248,
    0x2282, 0x2283, 0x226A, 0x226B, 0x227A, 0x227B, 0x2190, 0x2192, 0x2191, 0x2193, 0x2194, 0x2197, 0x2198,
    0x2243, 0x21D0, 0x21D2, 0x21D1, 0x21D3, 0x21D4, 0x2196, 0x2199, 0x221D, 0x2032, 0x221E, 0x2208, 0x220B,
    0x25B3, 0x25BD, 0x0338, 0,      0x2200, 0x2203, 0x00AC, 0x2205, 0x211C, 0x2111, 0x22A4, 0x22A5,
};

/// U+F8E5 to U+F8FE in order.
constexpr std::array<char16_t, 26> kPieces{0x203E, 0x23D0, 0x23AF, 0x00AE, 0x00A9, 0x2122, 0x239B, 0x239C, 0x239D,
                                           0x23A1, 0x23A2, 0x23A3, 0x23A7, 0x23A8, 0x23A9, 0x23AA, 0x23AE, 0x239E,
                                           0x239F, 0x23A0, 0x23A4, 0x23A5, 0x23A6, 0x23AB, 0x23AC, 0x23AD};

} // namespace

char32_t characterOfMathGlyphName(std::string_view name) {
    const std::string_view base = withoutSize(name);
    const auto entry = std::find_if(kNames.begin(), kNames.end(), [&](const NamedCharacter& named) {
        return named.name == name || named.name == base;
    });
    return entry == kNames.end() ? 0 : entry->character;
}

char32_t characterOfNumberedSign(std::string_view name) {
    constexpr std::array kLettersPlaces{NamedCharacter{"eth", U'('}, NamedCharacter{"Thorn", U')'},
                                        NamedCharacter{"thorn", U'+'}, NamedCharacter{"onequarter", U'='}};
    for (const NamedCharacter& letter : kLettersPlaces)
        if (letter.name == name)
            return letter.character;
    if (!name.starts_with('C'))
        return 0;
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(name.data() + 1, name.data() + name.size(), number);
    const bool isNumber = error == std::errc() && end == name.data() + name.size();
    return isNumber && number < kSymbols.size() ? kSymbols[number] : 0;
}

char32_t characterOfAdobePrivateUse(char32_t c) {
    if (c >= 0xF8E5 && c <= 0xF8FE)
        return kPieces[c - 0xF8E5];
    if (c >= 0xF730 && c <= 0xF739) // digits of the old style
        return U'0' + (c - 0xF730);
    if (c >= 0xF761 && c <= 0xF77A) // small capitals
        return U'a' + (c - 0xF761);
    switch (c) {
    case 0xF6BE:
        return 0x0237; // dotless j
    case 0xF6D9:
        return 0x00A9;
    case 0xF6DA:
        return 0x00AE;
    case 0xF6DB:
        return 0x2122;
    case 0xF6DC:
        return U'1';
    default:
        return 0;
    }
}

} // namespace orvane::pdf
