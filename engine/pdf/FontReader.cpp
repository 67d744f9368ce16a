#include "pdf/FontReader.h"

#include "pdf/FontName.h"
#include "pdf/MathFontName.h"
#include "pdf/TextString.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include <GfxFont.h>
#include <XRef.h>

namespace orvane::pdf {
namespace {

constexpr double kGlyphSpace = 1000.0; ///< units of the em in a font dictionary. Source: ISO 32000-1, 9.2.4.

// Measures outside these are mistakes of the file's writer; text of such fonts would overlap or fly apart.
constexpr double kLeastAscent = 0.35;
constexpr double kGreatestAscent = 1.5;
constexpr double kGreatestDescent = 0.7;

/// What the font descriptor gives; unset where it is silent.
struct Descriptor {
    std::string family;
    std::optional<double> ascent;
    std::optional<double> descent;
    std::optional<int> weight;
    bool isThere = false;
    double italicAngle = 0;
    double stemV = 0;
};

std::optional<double> numberOf(const ::Object& dictionary, const char* key) {
    const ::Object value = dictionary.dictLookup(key);
    if (!value.isNum())
        return std::nullopt;
    return value.getNum();
}

/// Fonts written into the resources themselves get made-up numbers from the library.
bool isIndirect(const GfxFont& font, const XRef& xref) {
    return font.getID()->num > 0 && font.getID()->num < xref.getNumObjects();
}

::Object descriptorObject(const GfxFont& font, XRef& xref) {
    if (!isIndirect(font, xref))
        return ::Object(objNull);
    ::Object dictionary = xref.fetch(*font.getID());
    if (!dictionary.isDict())
        return ::Object(objNull);
    const ::Object descendants = dictionary.dictLookup("DescendantFonts");
    if (descendants.isArray() && descendants.arrayGetLength() > 0) {
        ::Object descendant = descendants.arrayGet(0);
        if (descendant.isDict())
            return descendant.dictLookup("FontDescriptor");
    }
    return dictionary.dictLookup("FontDescriptor");
}

Descriptor readDescriptor(const GfxFont& font, XRef& xref) {
    Descriptor descriptor;
    const ::Object object = descriptorObject(font, xref);
    if (!object.isDict())
        return descriptor;
    descriptor.isThere = true;
    descriptor.family = textFromPdf(object.dictLookup("FontFamily"));
    descriptor.ascent = numberOf(object, "Ascent");
    descriptor.descent = numberOf(object, "Descent");
    if (const auto weight = numberOf(object, "FontWeight"); weight && *weight >= 100 && *weight <= 900)
        descriptor.weight = static_cast<int>(*weight);
    descriptor.italicAngle = numberOf(object, "ItalicAngle").value_or(0);
    descriptor.stemV = numberOf(object, "StemV").value_or(0);
    return descriptor;
}

/// Line measures of the fonts every reader has, which files may leave undescribed: those of the usual office fonts of
/// the same widths (Arial, Times New Roman, Courier New), in em.
struct StandardMeasures {
    std::string_view nameStart;
    double ascent;
    double descent;
};
constexpr std::array kStandardMeasures{
    StandardMeasures{"Helvetica", 0.905, 0.212}, StandardMeasures{"Arial", 0.905, 0.212},
    StandardMeasures{"Times", 0.891, 0.216},     StandardMeasures{"Courier", 0.833, 0.300},
    StandardMeasures{"Symbol", 0.891, 0.216},    StandardMeasures{"ZapfDingbats", 0.820, 0.143},
};

void setMeasures(Font& font, const Descriptor& descriptor) {
    double ascent = descriptor.ascent.value_or(0) / kGlyphSpace;
    double descent = std::abs(descriptor.descent.value_or(0)) / kGlyphSpace;
    if (ascent == 0) {
        const auto* entry = std::find_if(kStandardMeasures.begin(), kStandardMeasures.end(),
                                         [&](const StandardMeasures& m) { return font.name.starts_with(m.nameStart); });
        if (entry != kStandardMeasures.end()) {
            ascent = entry->ascent;
            descent = entry->descent;
        }
    }
    if (ascent >= kLeastAscent && ascent <= kGreatestAscent)
        font.ascent = ascent;
    if (descent > 0 && descent <= kGreatestDescent)
        font.descent = descent;
}

bool isDigit(const Gfx8BitFont& font, int code) {
    static constexpr std::array<std::string_view, 10> kNames = {"zero", "one", "two",   "three", "four",
                                                                "five", "six", "seven", "eight", "nine"};
    const char* name = font.getCharName(code);
    return name ? std::find(kNames.begin(), kNames.end(), name) != kNames.end() : code >= '0' && code <= '9';
}

/// Whether the characters are of one width. The flag for a fixed pitch is set wrongly at times, and digits alone are of
/// one width in most faces.
bool hasOneWidth(const GfxFont& font) {
    if (font.isCIDFont())
        return true;
    const auto& simple = static_cast<const Gfx8BitFont&>(font);
    double first = 0;
    bool hasOthers = false;
    for (int code = '!'; code < 0x7F; ++code) {
        const double width = simple.getWidth(static_cast<unsigned char>(code));
        if (width > 0 && first > 0 && std::abs(width - first) > 0.01)
            return false;
        first = first > 0 ? first : width;
        hasOthers = hasOthers || (width > 0 && !isDigit(simple, code));
    }
    return hasOthers;
}

bool isSansSerifName(const std::string& name) {
    return name.starts_with("Helvetica") || name.starts_with("Arial") || name.starts_with("Verdana") ||
           name.starts_with("Tahoma") || name.starts_with("Calibri");
}

void setStyle(Font& font, const GfxFont& source, const Descriptor& descriptor) {
    const FontNameStyle byName = styleFromFontName(font.name);
    // The name outweighs the numbers: writers copy a descriptor from one face of a family to the next more often than a
    // name.
    if (byName.weight)
        font.weight = *byName.weight;
    else if (descriptor.weight)
        font.weight = *descriptor.weight;
    if (source.isBold() && font.weight < 600)
        font.weight = 700;
    font.isBold = font.weight >= 600;
    font.isItalic = byName.isItalic || source.isItalic() || std::abs(descriptor.italicAngle) >= 4;
    font.isFixedPitch = byName.isFixedPitch || (source.isFixedWidth() && hasOneWidth(source));
    font.isSerif = descriptor.isThere ? source.isSerif() : !isSansSerifName(font.name);
    font.isSymbolic = source.isSymbolic();
}

/// Width of the code that stands for the blank; unset when the font has none.
std::optional<double> spaceOf8BitFont(Gfx8BitFont& font) {
    for (int code = 0; code < 256; ++code) {
        const char* name = font.getCharName(code);
        if (name && std::string_view(name) == "space")
            if (const double width = font.getWidth(static_cast<unsigned char>(code)); width > 0)
                return width;
    }
    return std::nullopt;
}

/// Half the mean width of what the font has is close to a blank in most alphabets.
double guessSpaceWidth(const Gfx8BitFont& font) {
    double sum = 0;
    int count = 0;
    for (int code = 'a'; code <= 'z'; ++code)
        if (const double width = font.getWidth(static_cast<unsigned char>(code)); width > 0) {
            sum += width;
            ++count;
        }
    return count > 0 ? sum / count / 2 : 0.25;
}

constexpr double kWidestSpace = 1.75; ///< of the guess

void setSpaceWidth(Font& font, GfxFont& source) {
    if (!source.isCIDFont()) {
        auto& simple = static_cast<Gfx8BitFont&>(source);
        const double guess = guessSpaceWidth(simple) * (font.isFixedPitch ? 2 : 1);
        const auto width = spaceOf8BitFont(simple);
        // Fonts of typesetters have no blank: a usual encoding calls the sign so that they have at its code.
        const bool mayBeSign = source.getType() == fontType1 || source.getType() == fontType1C;
        font.spaceWidth = width && (!mayBeSign || *width <= kWidestSpace * guess) ? *width : guess;
    }
    if (font.isType3)
        font.spaceWidth /= emOf(source);
    // Widths of composite fonts are known by code, not by meaning; the page's own blanks correct this (see
    // GlyphReader).
    if (font.spaceWidth < 0.05 || font.spaceWidth > 1.5)
        font.spaceWidth = 0.25;
}

/// Widths of a text face in thousandths of the em: letters of most faces are within a fifth of these. Source: the
/// metrics of Times.
constexpr std::array<int, 26> kSmallWidths{444, 500, 444, 500, 444, 333, 500, 500, 278, 278, 500, 278, 778,
                                           500, 500, 500, 500, 333, 389, 278, 500, 500, 722, 500, 500, 444};
constexpr std::array<int, 26> kCapitalWidths{722, 667, 667, 722, 611, 556, 722, 722, 333, 389, 722, 611, 889,
                                             722, 722, 556, 722, 667, 556, 611, 722, 722, 944, 722, 722, 611};
constexpr int kDigitWidth = 500;

/// Ideographs, kana and syllables of Hangul are as wide as the em, or nearly.
bool isFullWidth(unsigned character) {
    return (character >= 0x3041 && character <= 0x30FF) || (character >= 0x4E00 && character <= 0x9FFF) ||
           (character >= 0xAC00 && character <= 0xD7A3);
}

int usualWidthOf(unsigned character) {
    if (isFullWidth(character))
        return static_cast<int>(kGlyphSpace);
    if (character >= 'a' && character <= 'z')
        return kSmallWidths[character - 'a'];
    if (character >= 'A' && character <= 'Z')
        return kCapitalWidths[character - 'A'];
    return character >= '0' && character <= '9' ? kDigitWidth : 0;
}

/// The PostScript name; of a composite font without the encoding that some writers append. Source: ISO
/// 32000-1, 9.7.6.2.
std::string nameOf(const GfxFont& font) {
    std::string name = withoutSubsetPrefix(font.getName().value_or(std::string()));
    const std::string& encoding = font.getEncodingName();
    const std::size_t tail = encoding.size() + 1;
    if (font.isCIDFont() && !encoding.empty() && name.size() > tail && name.ends_with("-" + encoding))
        name.resize(name.size() - tail);
    return name;
}

} // namespace

double emOf(const GfxFont& font) {
    if (font.getType() != fontType3)
        return 1;
    const double byMatrix = std::abs(font.getFontMatrix()[3]) * kGlyphSpace;
    if (byMatrix > 0.7 && byMatrix < 1.5)
        return byMatrix;
    double sum = 0;
    double usualSum = 0;
    for (int code = 0; code < 256; ++code) {
        const char byte = static_cast<char>(code);
        CharCode read = 0;
        const Unicode* text = nullptr;
        int length = 0;
        double width = 0, dy = 0, originX = 0, originY = 0;
        font.getNextChar(&byte, 1, &read, &text, &length, &width, &dy, &originX, &originY);
        const int usual = length == 1 ? usualWidthOf(text[0]) : 0;
        if (usual > 0 && width > 0) {
            sum += width;
            usualSum += usual / kGlyphSpace;
        }
    }
    if (usualSum > 0)
        return sum / usualSum;
    // A font of signs only: its box is about as high as an em.
    const double height = std::abs((font.getFontBBox()[3] - font.getFontBBox()[1]) * font.getFontMatrix()[3]);
    return height > 0 ? height : byMatrix;
}

Font readFont(const GfxFont& source, XRef& xref) {
    Font font;
    font.name = nameOf(source);
    font.objectNumber = isIndirect(source, xref) ? source.getID()->num : 0;
    font.isMathematical = isMathFontName(font.name);
    font.isVertical = source.getWMode() != 0;
    font.isType3 = source.getType() == fontType3;
    Ref program;
    font.isEmbedded = font.isType3 || source.getEmbeddedFontID(&program);
    const Descriptor descriptor = readDescriptor(source, xref);
    font.family = descriptor.family;
    setStyle(font, source, descriptor);
    setMeasures(font, descriptor);
    // The library's accessors of widths and names are not const although they change nothing.
    setSpaceWidth(font, const_cast<GfxFont&>(source));
    return font;
}

} // namespace orvane::pdf
