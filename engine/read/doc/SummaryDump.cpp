#include "read/doc/SummaryDump.h"

#include <fmt/format.h>

namespace orvane::read::doc {
namespace {

// Source: [MS-OLEPS] 2.15 (types).
constexpr std::uint32_t kShort = 0x02;
constexpr std::uint32_t kText = 0x1E;
constexpr std::uint32_t kTime = 0x40;

std::string nameOfProperty(std::uint32_t number) {
    static constexpr std::string_view kNames[] = {"dictionary", "code page", "title",   "subject",
                                                  "author",     "keywords",  "comments"};
    if (number < std::size(kNames))
        return std::string(kNames[number]);
    return number == 12 ? "created" : number == 13 ? "modified" : fmt::format("property {}", number);
}

std::string valueText(const ByteView& value) {
    switch (value.u32(0)) {
    case kShort:
        return std::to_string(value.u16(4));
    case kText: {
        std::string text(value.part(8, value.u32(4)).bytes());
        while (!text.empty() && text.back() == '\0')
            text.pop_back();
        return '"' + text + '"';
    }
    case kTime:
        return fmt::format("{} (100 ns since 1601)", value.u32(4) | std::uint64_t{value.u32(8)} << 32);
    default:
        return fmt::format("type {:02x}", value.u32(0));
    }
}

} // namespace

std::string dumpSummary(const ByteView& stream) {
    constexpr std::size_t kFirstSet = 44;
    if (stream.size() == 0)
        return {};
    const ByteView set = stream.from(stream.u32(kFirstSet));
    std::string text;
    for (std::size_t i = 0; i < set.u32(4); ++i)
        text += fmt::format("  {}: {}\n", nameOfProperty(set.u32(8 + 8 * i)), valueText(set.from(set.u32(12 + 8 * i))));
    return text;
}

} // namespace orvane::read::doc
