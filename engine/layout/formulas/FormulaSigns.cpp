#include "layout/formulas/FormulaSigns.h"

#include "layout/text/Characters.h"

#include <algorithm>
#include <array>

namespace orvane::layout {
namespace {

bool isIn(std::u32string_view signs, char32_t c) {
    return signs.find(c) != std::u32string_view::npos;
}

bool isWithin(char32_t c, char32_t first, char32_t last) {
    return c >= first && c <= last;
}

constexpr std::array<std::u32string_view, 38> kFunctions{
    U"sin",  U"cos",  U"tan", U"cot", U"sec",    U"csc",    U"sinh",   U"cosh",  U"tanh", U"coth",
    U"log",  U"ln",   U"lg",  U"exp", U"arcsin", U"arccos", U"arctan", U"det",   U"dim",  U"ker",
    U"deg",  U"gcd",  U"hom", U"mod", U"Pr",     U"arg",    U"sgn",    U"tr",    U"Re",   U"Im",
    U"diag", U"rank", U"var", U"cov", U"Var",    U"Cov",    U"sign",   U"const",
};
constexpr std::array<std::u32string_view, 12> kLimited{
    U"lim", U"max", U"min", U"sup", U"inf", U"limsup", U"liminf", U"argmax", U"argmin", U"Max", U"Min", U"minimize",
};

/// The start of a name that capitals and small letters may spell.
bool startsAs(std::string_view name, std::string_view start) {
    return name.size() >= start.size() && std::equal(start.begin(), start.end(), name.begin(), [](char a, char b) {
               const char small = b >= 'A' && b <= 'Z' ? static_cast<char>(b - 'A' + 'a') : b;
               return a == small;
           });
}

/// Letters of one look. Source: The Unicode Standard, Mathematical Alphanumeric Symbols.
struct Alphabet {
    char32_t capitals;              ///< where "A" stands
    char32_t smalls;                ///< where "a" stands; 0 for fonts without
    std::u32string_view apart;      ///< capitals that were encoded before ...
    std::u32string_view placeApart; ///< ... and where they stand
};

constexpr Alphabet kScript{U'\U0001D49C', 0, U"BEFHILMR", U"\u212C\u2130\u2131\u210B\u2110\u2112\u2133\u211B"};
constexpr Alphabet kDoubleStruck{U'\U0001D538', 0, U"CHNPQRZ", U"\u2102\u210D\u2115\u2119\u211A\u211D\u2124"};
constexpr Alphabet kFraktur{U'\U0001D504', U'\U0001D51E', U"CHIRZ", U"\u212D\u210C\u2111\u211C\u2128"};

/// `c` itself where the alphabet has no such letter.
char32_t letterIn(const Alphabet& alphabet, char32_t c) {
    if (const std::size_t at = alphabet.apart.find(c); at != std::u32string_view::npos)
        return alphabet.placeApart[at];
    if (isWithin(c, U'A', U'Z'))
        return alphabet.capitals + (c - U'A');
    return alphabet.smalls != 0 && isWithin(c, U'a', U'z') ? alphabet.smalls + (c - U'a') : c;
}

} // namespace

bool isLargeOperator(char32_t c) {
    return isIntegral(c) || isIn(U"\u2211\u220F\u2210\u22C0\u22C1\u22C2\u22C3", c) || isWithin(c, 0x2A00, 0x2A06);
}

bool isIntegral(char32_t c) {
    return isWithin(c, 0x222B, 0x2233);
}

bool isRelation(char32_t c) {
    return isIn(U"=<>\u2260\u2261\u2264\u2265\u226A\u226B\u2208\u2209\u220B\u2248\u2243\u2245\u223C\u221D\u22A2\u22A8"
                U"\u2254\u225C\u2250\u21A6\u27F6\u27F9\u27FA\u2223\u2225\u22A5:",
                c) ||
           isWithin(c, 0x2282, 0x228B) || isWithin(c, 0x2190, 0x21FF) || isWithin(c, 0x227A, 0x2281) ||
           isWithin(c, 0x2266, 0x2279) || isWithin(c, 0x27F5, 0x27FF);
}

bool isBinaryOperator(char32_t c) {
    return isIn(
        U"+-\u2212\u00B1\u2213\u00D7\u00F7\u00B7\u22C5\u2217\u2218\u2227\u2228\u2229\u222A\u2216\u2295\u2296\u2297", c);
}

bool isFormulaSign(char32_t c) {
    return isLargeOperator(c) || isFencePiece(c) || isIn(U"\u221A\u221B\u221C\u2202\u2207", c) ||
           isWithin(c, 0x1D400, 0x1D7FF) || isWithin(c, 0x2A00, 0x2AFF);
}

bool isGreekLetter(char32_t c) {
    return isWithin(c, 0x0391, 0x03F6);
}

bool isOpeningFence(char32_t c) {
    return isIn(U"([{\u27E8\u2308\u230A", c);
}

bool isClosingFence(char32_t c) {
    return isIn(U")]}\u27E9\u2309\u230B", c);
}

bool isStrokeFence(char32_t c) {
    return isIn(U"|\u2016\u2223\u2225\u23D0", c);
}

bool isFencePiece(char32_t c) {
    return isWithin(c, 0x239B, 0x23AE) || isWithin(c, 0x23B0, 0x23B1) || c == 0x23B7 || isWithin(c, 0x23DC, 0x23E1);
}

bool isLyingBrace(char32_t c) {
    return isWithin(c, 0x23DC, 0x23E1);
}

char32_t formulaAccent(char32_t c) {
    if (isCombiningMark(c) && c != U'\u0338')
        return c;
    if (c == U'\u2192' || c == U'~' || c == U'.')
        return 0;
    return combiningAccent(c);
}

bool isFunctionName(std::u32string_view word) {
    return std::find(kFunctions.begin(), kFunctions.end(), word) != kFunctions.end() || hasLimitsBelow(word);
}

bool hasLimitsBelow(std::u32string_view word) {
    return std::find(kLimited.begin(), kLimited.end(), word) != kLimited.end();
}

bool isSignFont(std::string_view name) {
    return startsAs(name, "symbol") || startsAs(name, "opensymbol") || startsAs(name, "standardsym") ||
           startsAs(name, "euclid");
}

char32_t alphabetLetter(std::string_view fontName, char32_t c) {
    if (startsAs(fontName, "cmsy") || startsAs(fontName, "cmbsy") || startsAs(fontName, "eusm") ||
        startsAs(fontName, "rsfs") || startsAs(fontName, "txsy") || startsAs(fontName, "pxsy"))
        return letterIn(kScript, c);
    if (startsAs(fontName, "msbm") || startsAs(fontName, "bbm") || startsAs(fontName, "dsrom"))
        return letterIn(kDoubleStruck, c);
    if (startsAs(fontName, "eufm"))
        return letterIn(kFraktur, c);
    return c;
}

} // namespace orvane::layout
