#include "pdf/TrueTypeFile.h"

#include "pdf/BigEndian.h"
#include "pdf/TrueTypeCharacterMap.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orvane::pdf {
namespace {

constexpr std::uint32_t kVersion = 0x00010000;
constexpr std::uint16_t kWindows = 3; ///< platform of names
constexpr std::uint16_t kEnglish = 0x0409;
constexpr std::uint32_t kDate = 3029529600; ///< 1 January 2000, in seconds since 1904: one content makes one file
constexpr int kItalicAngle = -12;           ///< degrees; few ask for it

/// Scripts, the bits by which the table "OS/2" says that a font has them, and of the code pages of old programs.
struct ScriptBits {
    char32_t first;
    char32_t last;
    unsigned range; ///< bit of ulUnicodeRange
    int codePage;   ///< bit of ulCodePageRange1; -1 for none
};
constexpr std::array kScripts{
    ScriptBits{0x0020, 0x007E, 0, 0},   ScriptBits{0x00A0, 0x00FF, 1, 0},   ScriptBits{0x0100, 0x017F, 2, 1},
    ScriptBits{0x0180, 0x024F, 3, -1},  ScriptBits{0x0370, 0x03FF, 7, 3},   ScriptBits{0x0400, 0x052F, 9, 2},
    ScriptBits{0x1E00, 0x1EFF, 29, -1}, ScriptBits{0x2000, 0x206F, 31, -1}, ScriptBits{0x20A0, 0x20CF, 33, -1},
    ScriptBits{0x2100, 0x214F, 35, -1}, ScriptBits{0x2190, 0x21FF, 37, -1}, ScriptBits{0x2200, 0x22FF, 38, -1},
    ScriptBits{0x3000, 0x303F, 48, -1}, ScriptBits{0x3040, 0x309F, 49, 17}, ScriptBits{0x30A0, 0x30FF, 50, 17},
    ScriptBits{0x4E00, 0x9FFF, 59, 18}, ScriptBits{0xAC00, 0xD7A3, 56, 19},
};

/// Numbers that are sums or extremes over all glyphs.
struct Extent {
    int left = 0, right = 0, bottom = 0, top = 0;
    int widest = 0, leastLeft = 0, leastRight = 0;
    long advances = 0;
    unsigned points = 0, contours = 0;
};

Extent extentOf(const std::vector<TrueTypeGlyph>& glyphs) {
    Extent extent;
    for (const TrueTypeGlyph& glyph : glyphs) {
        extent.left = std::min(extent.left, glyph.left);
        extent.right = std::max(extent.right, glyph.right);
        extent.bottom = std::min(extent.bottom, glyph.bottom);
        extent.top = std::max(extent.top, glyph.top);
        extent.widest = std::max(extent.widest, glyph.advance);
        extent.leastLeft = std::min(extent.leastLeft, glyph.left);
        extent.leastRight = std::min(extent.leastRight, glyph.advance - glyph.right);
        extent.advances += glyph.advance;
        extent.points = std::max(extent.points, glyph.points);
        extent.contours = std::max(extent.contours, glyph.contours);
    }
    return extent;
}

std::string headTable(const TrueTypeFile& file, const Extent& extent) {
    BigEndian table;
    table.u32(kVersion);
    table.u32(kVersion); // revision
    table.u32(0);        // checksum of the file, set at the end
    table.u32(0x5F0F3CF5);
    table.u16(0x0003); // baseline and left edges at 0
    table.i16(file.unitsPerEm);
    for (int date = 0; date < 2; ++date) {
        table.u32(0);
        table.u32(kDate);
    }
    for (const int edge : {extent.left, extent.bottom, extent.right, extent.top})
        table.i16(edge);
    table.u16((file.isBold ? 1U : 0U) | (file.isItalic ? 2U : 0U));
    table.u16(6); // smallest readable size, pixels
    table.u16(2);
    table.u16(1); // long offsets in "loca"
    table.u16(0);
    return table.bytes();
}

std::string horizontalHead(const TrueTypeFile& file, const Extent& extent) {
    BigEndian table;
    table.u32(kVersion);
    table.i16(file.ascent);
    table.i16(-file.descent);
    table.i16(0); // line gap
    table.i16(extent.widest);
    table.i16(extent.leastLeft);
    table.i16(extent.leastRight);
    table.i16(extent.right);
    table.u16(1); // an upright caret
    table.zeros(14);
    table.u16(static_cast<unsigned>(file.glyphs.size()));
    return table.bytes();
}

std::string horizontalMetrics(const TrueTypeFile& file) {
    BigEndian table;
    for (const TrueTypeGlyph& glyph : file.glyphs) {
        table.u16(static_cast<unsigned>(glyph.advance));
        table.i16(glyph.left);
    }
    return table.bytes();
}

std::string profile(const TrueTypeFile& file, const Extent& extent) {
    BigEndian table;
    table.u32(kVersion);
    table.u16(static_cast<unsigned>(file.glyphs.size()));
    table.u16(extent.points);
    table.u16(extent.contours);
    table.zeros(4);
    table.u16(2); // zones
    table.zeros(16);
    return table.bytes();
}

void putOutlines(const TrueTypeFile& file, std::map<std::string, std::string>& tables) {
    BigEndian places, outlines;
    for (const TrueTypeGlyph& glyph : file.glyphs) {
        places.u32(static_cast<std::uint32_t>(outlines.size()));
        outlines.text(glyph.data);
        outlines.zeros((4 - outlines.size() % 4) % 4);
    }
    places.u32(static_cast<std::uint32_t>(outlines.size()));
    tables["loca"] = places.bytes();
    tables["glyf"] = outlines.bytes();
}

std::string styleName(const TrueTypeFile& file) {
    if (file.isBold)
        return file.isItalic ? "Bold Italic" : "Bold";
    return file.isItalic ? "Italic" : "Regular";
}

/// A name without what PostScript names cannot have.
std::string postScriptName(const TrueTypeFile& file) {
    std::string name = file.family + "-" + styleName(file);
    std::erase_if(name, [](char c) {
        return c <= ' ' || c > '~' || std::string_view("[](){}<>/%").find(c) != std::string_view::npos;
    });
    return name.substr(0, 63);
}

std::string nameTable(const TrueTypeFile& file) {
    const std::string style = styleName(file);
    const std::string full = style == "Regular" ? file.family : file.family + " " + style;
    std::map<unsigned, std::string> names{{1, file.family}, {2, style},           {3, "1.000;" + full},
                                          {4, full},        {5, "Version 1.000"}, {6, postScriptName(file)}};
    if (!file.copyright.empty())
        names[0] = file.copyright;
    BigEndian table, texts;
    table.u16(0);
    table.u16(static_cast<unsigned>(names.size()));
    table.u16(static_cast<unsigned>(6 + 12 * names.size()));
    for (const auto& [id, text] : names) {
        for (const unsigned value : {unsigned{kWindows}, 1U, unsigned{kEnglish}, id})
            table.u16(value);
        table.u16(static_cast<unsigned>(2 * text.size()));
        table.u16(static_cast<unsigned>(texts.size()));
        for (const char c : text)
            texts.u16(static_cast<unsigned char>(c));
    }
    table.text(texts.bytes());
    return table.bytes();
}

std::string postScriptTable(const TrueTypeFile& file) {
    BigEndian table;
    table.u32(0x00030000); // without glyph names
    table.i16(file.isItalic ? kItalicAngle : 0);
    table.u16(0);
    table.i16(-file.unitsPerEm / 10); // underline
    table.i16(file.unitsPerEm / 20);
    table.u32(file.isFixedPitch ? 1 : 0);
    table.zeros(16);
    return table.bytes();
}

std::string windowsTable(const TrueTypeFile& file, const Extent& extent) {
    std::array<std::uint32_t, 4> ranges{};
    std::uint32_t codePages = 0;
    for (const ScriptBits& script : kScripts) {
        const auto found = file.glyphOf.lower_bound(script.first);
        if (found == file.glyphOf.end() || found->first > script.last)
            continue;
        ranges[script.range / 32] |= 1U << (script.range % 32);
        codePages |= script.codePage < 0 ? 0U : 1U << static_cast<unsigned>(script.codePage);
    }
    const int em = file.unitsPerEm;
    const auto character = [](char32_t c) { return static_cast<unsigned>(std::min<char32_t>(c, 0xFFFF)); };
    BigEndian table;
    table.u16(4);
    table.i16(file.glyphs.empty() ? 0 : static_cast<int>(extent.advances / static_cast<long>(file.glyphs.size())));
    table.u16(file.isBold ? 700 : 400);
    table.u16(5);
    table.u16(file.embeddingBits);
    // Size and place of subscripts and superscripts, and of strikes.
    for (const int value : {em * 65 / 100, em * 6 / 10, 0, em * 75 / 1000, em * 65 / 100, em * 6 / 10, 0, em * 35 / 100,
                            em / 20, em * 26 / 100})
        table.i16(value);
    table.zeros(2 + 10); // class and shape of the letters: not told
    for (const std::uint32_t range : ranges)
        table.u32(range);
    table.text("    ");
    constexpr unsigned kItalic = 0x01, kBold = 0x20, kRegular = 0x40, kTypographicLines = 0x80;
    table.u16((file.isItalic ? kItalic : 0U) | (file.isBold ? kBold : 0U) |
              (file.isBold || file.isItalic ? 0U : kRegular) | kTypographicLines);
    table.u16(file.glyphOf.empty() ? 0 : character(file.glyphOf.begin()->first));
    table.u16(file.glyphOf.empty() ? 0 : character(file.glyphOf.rbegin()->first));
    table.i16(file.ascent);
    table.i16(-file.descent);
    table.i16(0);
    table.u16(static_cast<unsigned>(file.ascent));
    table.u16(static_cast<unsigned>(file.descent));
    table.u32(codePages);
    table.u32(0);
    table.i16(em / 2); // heights of small letters and capitals
    table.i16(em * 7 / 10);
    table.u16(0);
    table.u16(U' ');
    table.u16(1);
    return table.bytes();
}

/// Letters are smoothed at all sizes, as there are no instructions to fit them to pixels.
std::string smoothingTable() {
    BigEndian table;
    table.u16(1);
    table.u16(1);
    table.u16(0xFFFF);
    table.u16(0x000A);
    return table.bytes();
}

std::uint32_t checksumOf(std::string_view bytes) {
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < bytes.size(); i += 4) {
        std::uint32_t word = 0;
        for (std::size_t k = i; k < i + 4; ++k)
            word = word << 8U | (k < bytes.size() ? static_cast<unsigned char>(bytes[k]) : 0U);
        sum += word;
    }
    return sum;
}

/// The tables behind each other, with the directory in front. Source: OpenType, "Organization of an OpenType Font".
std::string withDirectory(const std::map<std::string, std::string>& tables) {
    const auto count = static_cast<unsigned>(tables.size());
    unsigned power = 1, exponent = 0;
    for (; power * 2 <= count; power *= 2)
        ++exponent;
    BigEndian directory, bodies;
    directory.u32(kVersion);
    directory.u16(count);
    directory.u16(16 * power);
    directory.u16(exponent);
    directory.u16(16 * (count - power));
    const std::size_t start = 12 + std::size_t{16} * count;
    std::size_t adjustment = 0; // where the sum over the whole file goes
    for (const auto& [tag, bytes] : tables) {
        if (tag == "head")
            adjustment = start + bodies.size() + 8;
        directory.text(tag);
        directory.u32(checksumOf(bytes));
        directory.u32(static_cast<std::uint32_t>(start + bodies.size()));
        directory.u32(static_cast<std::uint32_t>(bytes.size()));
        bodies.text(bytes);
        bodies.zeros((4 - bodies.size() % 4) % 4);
    }
    std::string file = directory.bytes() + bodies.bytes();
    BigEndian sum;
    sum.u32(0xB1B0AFBA - checksumOf(file));
    return file.replace(adjustment, 4, sum.bytes());
}

} // namespace

std::string bytesOf(const TrueTypeFile& file) {
    const Extent extent = extentOf(file.glyphs);
    std::map<std::string, std::string> tables;
    putOutlines(file, tables);
    tables["OS/2"] = windowsTable(file, extent);
    tables["cmap"] = characterMap(file.glyphOf);
    tables["gasp"] = smoothingTable();
    tables["head"] = headTable(file, extent);
    tables["hhea"] = horizontalHead(file, extent);
    tables["hmtx"] = horizontalMetrics(file);
    tables["maxp"] = profile(file, extent);
    tables["name"] = nameTable(file);
    tables["post"] = postScriptTable(file);
    return withDirectory(tables);
}

} // namespace orvane::pdf
