#include "read/doc/PropertyNames.h"

#include <algorithm>

#include <fmt/format.h>

namespace orvane::read::doc {
namespace {

struct PropertyName {
    std::uint32_t number;
    std::string_view name;
};

/// Ascending by number.
constexpr PropertyName kNames[] = {
    {0x0806, "data of a form field"},
    {0x0835, "bold"},
    {0x0836, "italic"},
    {0x0837, "strike"},
    {0x0838, "outline"},
    {0x083A, "small-caps"},
    {0x083B, "caps"},
    {0x083C, "hidden"},
    {0x0855, "special"},
    {0x085A, "right-to-left"},
    {0x085C, "complex-bold"},
    {0x085D, "complex-italic"},
    {0x2403, "side"},
    {0x2405, "keep-lines"},
    {0x2406, "keep-with-next"},
    {0x2407, "page-break-before"},
    {0x2416, "in-table"},
    {0x2417, "row-end"},
    {0x2423, "wrap"},
    {0x2431, "widow-control"},
    {0x2441, "right-to-left"},
    {0x244B, "inner-cell"},
    {0x244C, "inner-row-end"},
    {0x2461, "alignment"},
    {0x246D, "contextual-spacing"},
    {0x260A, "list-level"},
    {0x261B, "anchors"},
    {0x2640, "outline-level"},
    {0x2A0C, "highlight"},
    {0x2A3E, "underline"},
    {0x2A48, "super-sub"},
    {0x3005, "even-columns"},
    {0x3009, "start"},
    {0x300A, "first-page"},
    {0x300E, "page-number-format"},
    {0x3011, "numbers-anew"},
    {0x3013, "line-numbers-anew"},
    {0x3019, "column-line"},
    {0x301D, "orientation"},
    {0x303C, "footnotes-anew"},
    {0x303E, "endnotes-anew"},
    {0x3228, "section-right-to-left"},
    {0x3403, "row-whole"},
    {0x3404, "row-repeated"},
    {0x3615, "autofit"},
    {0x442C, "drop-cap"},
    {0x460B, "list"},
    {0x4845, "raise"},
    {0x4852, "width-percent"},
    {0x485F, "complex-language"},
    {0x4873, "language"},
    {0x4874, "east-asian-language"},
    {0x4A43, "size"},
    {0x4A4F, "font"},
    {0x4A50, "east-asian-font"},
    {0x4A51, "other-font"},
    {0x4A5E, "complex-font"},
    {0x4A61, "complex-size"},
    {0x500B, "columns"},
    {0x5015, "numbered-lines"},
    {0x501B, "first-line-number"},
    {0x501C, "first-number"},
    {0x5033, "text-flow"},
    {0x5040, "footnote-format"},
    {0x5042, "endnote-format"},
    {0x5400, "table-side"},
    {0x560B, "table-right-to-left"},
    {0x6412, "line"},
    {0x6646, "elsewhere"},
    {0x6649, "table-depth"},
    {0x6870, "color"},
    {0x6A03, "picture"},
    {0x840E, "right-indent-97"},
    {0x840F, "left-indent-97"},
    {0x8411, "first-line-97"},
    {0x842F, "text-distance"},
    {0x845D, "right-indent"},
    {0x845E, "left-indent"},
    {0x8460, "first-line"},
    {0x8840, "spacing"},
    {0x900C, "column-gap"},
    {0x9016, "line-number-distance"},
    {0x9023, "margin-top"},
    {0x9024, "margin-bottom"},
    {0x9407, "row-height"},
    {0x9602, "cell-gap"},
    {0xA413, "space-before"},
    {0xA414, "space-after"},
    {0xB017, "header-distance"},
    {0xB018, "footer-distance"},
    {0xB01F, "width"},
    {0xB020, "height"},
    {0xB021, "margin-left"},
    {0xB022, "margin-right"},
    {0xC60D, "tabs"},
    {0xC64D, "ground"},
    {0xC64E, "border-top"},
    {0xC64F, "border-left"},
    {0xC650, "border-bottom"},
    {0xC651, "border-right"},
    {0xC652, "border-between"},
    {0xCA71, "ground"},
    {0xD608, "cells"},
    {0xD60C, "cell-grounds-3"},
    {0xD612, "cell-grounds"},
    {0xD616, "cell-grounds-2"},
    {0xD62F, "cell-border"},
    {0xD632, "cell-margin"},
    {0xF203, "column-width"},
    {0xF204, "column-space"},
};

constexpr std::uint32_t kElsewhere = 0x6646;
constexpr std::uint32_t kCells = 0xD608;
constexpr std::uint32_t kTabs = 0xC615;

std::string nameOf(std::uint32_t number) {
    const auto* const found =
        std::lower_bound(std::begin(kNames), std::end(kNames), number,
                         [](const PropertyName& row, std::uint32_t key) { return row.number < key; });
    return found != std::end(kNames) && found->number == number ? std::string(found->name)
                                                                : fmt::format("{:04x}", number);
}

/// How long a value is, the length before it included. Source: [MS-DOC] 2.9.247 (spra), 2.9.182 (PChgTabs).
std::size_t valueSize(std::uint32_t number, const ByteView& value) {
    static constexpr std::size_t kSizes[] = {1, 1, 2, 4, 2, 2, 0, 3};
    const std::size_t fixed = kSizes[number >> 13];
    if (fixed > 0)
        return fixed;
    if (number == kCells)
        return std::size_t{value.u16(0)} + 1;
    if (number == kTabs && value.u8(0) == 0xFF) {
        const std::size_t dropped = 1 + 4 * std::size_t{value.u8(1)};
        return 1 + dropped + 1 + 3 * std::size_t{value.u8(1 + dropped)};
    }
    return std::size_t{value.u8(0)} + 1;
}

std::string valueText(std::uint32_t number, const ByteView& value) {
    const bool isColor = number == 0x6870;
    switch (value.size()) {
    case 1:
        return std::to_string(value.u8(0));
    case 2:
        return std::to_string(value.i16(0));
    case 4:
        return isColor ? fmt::format("{:08x}", value.u32(0)) : std::to_string(value.i32(0));
    default:
        break;
    }
    std::string digits;
    for (const char byte : value.bytes())
        digits += fmt::format("{:02x}", static_cast<unsigned char>(byte));
    return digits;
}

enum class Nesting { Outer, Inner };

std::string describe(const ByteView& list, const ByteView& data, Nesting nesting) {
    std::string text;
    for (std::size_t at = 0; at + 2 <= list.size();) {
        const std::uint32_t number = list.u16(at);
        const std::size_t size = valueSize(number, list.from(at + 2));
        const ByteView value = list.part(at + 2, size);
        at += 2 + size;
        if (!text.empty())
            text += ' ';
        if (number == kElsewhere && nesting == Nesting::Outer)
            text += describe(data.part(std::size_t{value.u32(0)} + 2, data.u16(value.u32(0))), data, Nesting::Inner);
        else
            text += nameOf(number) + '=' + valueText(number, value);
    }
    return text;
}

} // namespace

std::string describeProperties(const ByteView& list, const ByteView& data) {
    return describe(list, data, Nesting::Outer);
}

} // namespace orvane::read::doc
