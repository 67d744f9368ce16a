#include "read/doc/StructureDump.h"

#include "read/doc/PropertyNames.h"
#include "read/doc/TextDump.h"

#include <array>
#include <utility>

#include <fmt/format.h>

namespace orvane::read::doc {
namespace {

// Numbers of structures. Source: [MS-DOC] 2.5.6 (FibRgFcLcb97).
constexpr std::size_t kSections = 6;
constexpr std::size_t kRunningTexts = 11;
constexpr std::size_t kFonts = 15;
constexpr std::size_t kBookmarkNames = 21;
constexpr std::size_t kBookmarkStarts = 22;
constexpr std::size_t kBookmarkEnds = 23;

/// A list of places, and an entry of fixed size between each two. Source: [MS-DOC] 2.2.2 (PLC).
class PlaceList {
public:
    PlaceList(const ByteView& bytes, std::size_t entrySize)
        : m_bytes(bytes)
        , m_entrySize(entrySize)
        , m_count(bytes.size() < 4 ? 0 : (bytes.size() - 4) / (4 + entrySize)) {}

    std::size_t count() const { return m_count; }
    std::uint32_t place(std::size_t index) const { return m_bytes.u32(4 * index); }
    ByteView entry(std::size_t index) const {
        return m_bytes.part(4 * (m_count + 1) + m_entrySize * index, m_entrySize);
    }

private:
    ByteView m_bytes;
    std::size_t m_entrySize;
    std::size_t m_count;
};

std::string quotedText(const ByteView& bytes, std::size_t at, std::size_t count) {
    std::u16string text;
    for (std::size_t i = 0; i < count; ++i)
        text += static_cast<char16_t>(bytes.u16(at + 2 * i));
    return quoted(text);
}

std::string paddedLine(std::string_view label, const std::string& properties) {
    return properties.empty() ? std::string() : fmt::format("    {}: {}\n", label, properties);
}

/// A style's lists of properties: of a paragraph's with its number before them, then of characters.
std::string stylePropertyLines(const ByteView& record, std::size_t at, std::size_t count, bool isParagraph,
                               const ByteView& data) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t size = record.u16(at);
        const ByteView list = record.part(at + 2, size);
        const bool isOfParagraph = isParagraph && i == 0;
        text += paddedLine(isOfParagraph ? "paragraph" : "characters",
                           describeProperties(isOfParagraph && size >= 2 ? list.from(2) : list, data));
        at += 2 + size + size % 2;
    }
    return text;
}

std::string styleText(std::size_t number, const ByteView& record, std::size_t baseSize, const ByteView& data) {
    constexpr std::uint32_t kNone = 0x0FFF;
    constexpr std::uint32_t kParagraph = 1;
    const std::uint32_t kind = record.u16(2) & 0xF, base = record.u16(2) >> 4;
    const std::size_t nameLength = record.u16(baseSize);
    std::string text = fmt::format("  {} {} {}", number, quotedText(record, baseSize + 2, nameLength),
                                   kind == kParagraph ? "paragraph" : fmt::format("kind {}", kind));
    if (base != kNone)
        text += fmt::format(" based on {}", base);
    text += fmt::format(" next {}\n", record.u16(4) >> 4);
    return text +
           stylePropertyLines(record, baseSize + 2 + 2 * nameLength + 2, record.u16(4) & 0xF, kind == kParagraph, data);
}

/// A level's label; characters below 9 stand for the number of that level.
std::string labelText(const ByteView& bytes, std::size_t at, std::size_t count) {
    std::u16string label;
    for (std::size_t i = 0; i < count; ++i) {
        const auto unit = static_cast<char16_t>(bytes.u16(at + 2 * i));
        if (unit < 9) {
            label += u'%';
            label += static_cast<char16_t>(u'1' + unit);
        } else {
            label += unit;
        }
    }
    return quoted(label);
}

std::string levelText(const ByteView& bytes, std::size_t& at, const ByteView& data) {
    constexpr std::size_t kHead = 28;
    const ByteView level = bytes.part(at, kHead);
    const std::size_t characters = level.u8(24), paragraph = level.u8(25);
    const std::string own = describeProperties(bytes.part(at + kHead, paragraph), data);
    const std::string run = describeProperties(bytes.part(at + kHead + paragraph, characters), data);
    const std::size_t label = at + kHead + paragraph + characters;
    const std::size_t length = bytes.u16(label);
    std::string text = fmt::format("    level: start {} format {} label {}\n", level.u32(0), level.u8(4),
                                   labelText(bytes, label + 2, length));
    at = label + 2 + 2 * length;
    return text + paddedLine("  paragraph", own) + paddedLine("  characters", run);
}

/// When something was made, behind a comma; empty where the file does not say. Source: [MS-DOC] 2.9.67 (DTTM).
std::string dateText(std::uint32_t packed) {
    constexpr std::uint32_t kFirstYear = 1900;
    if (packed == 0)
        return {};
    return fmt::format(", made {}-{:02}-{:02} {:02}:{:02}", kFirstYear + (packed >> 20 & 0x1FF), packed >> 16 & 0xF,
                       packed >> 11 & 0x1F, packed >> 6 & 0x1F, packed & 0x3F);
}

std::string places(std::string_view name, const ByteView& bytes, std::size_t entrySize) {
    const PlaceList list(bytes, entrySize);
    if (list.count() == 0)
        return {};
    std::string text = fmt::format("  {}:", name);
    for (std::size_t i = 0; i <= list.count(); ++i)
        text += fmt::format(" {}", list.place(i));
    return text + '\n';
}

} // namespace

std::string dumpStyles(const WordFile& file) {
    const ByteView sheet = file.table(1);
    if (sheet.size() == 0)
        return {};
    const std::size_t count = sheet.u16(2), baseSize = sheet.u16(4);
    std::size_t at = 2 + sheet.u16(0);
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t size = sheet.u16(at);
        if (size > 0)
            text += styleText(i, sheet.part(at + 2, size), baseSize, file.stream("Data"));
        at += 2 + size + size % 2;
    }
    return text;
}

std::string dumpFonts(const WordFile& file) {
    constexpr std::size_t kName = 40;
    const ByteView table = file.table(kFonts);
    if (table.size() == 0)
        return {};
    std::string text;
    std::size_t at = 4;
    for (std::size_t i = 0; i < table.u16(0); ++i) {
        const ByteView font = table.part(at, std::size_t{table.u8(at)} + 1);
        std::u16string name;
        for (std::size_t unit = kName; unit + 2 <= font.size() && font.u16(unit) != 0; unit += 2)
            name += static_cast<char16_t>(font.u16(unit));
        text += fmt::format("  {} {}\n", i, quoted(name));
        at += font.size();
    }
    return text;
}

std::string dumpLists(const WordFile& file) {
    constexpr std::size_t kLists = 73;
    constexpr std::size_t kReferences = 74;
    constexpr std::size_t kListSize = 28;
    constexpr std::uint32_t kIsSimple = 1;
    const ByteView lists = file.table(kLists);
    if (lists.size() == 0)
        return {};
    const ByteView levels = file.behind(kLists);
    std::string text;
    std::size_t at = 0;
    for (std::size_t i = 0; i < lists.u16(0); ++i) {
        const ByteView list = lists.part(2 + kListSize * i, kListSize);
        text += fmt::format("  list {}\n", list.u32(0));
        for (int level = 0; level < (list.u8(26) & kIsSimple ? 1 : 9); ++level)
            text += levelText(levels, at, file.stream("Data"));
    }
    const ByteView references = file.table(kReferences);
    for (std::size_t i = 0; references.size() > 0 && i < references.u32(0); ++i)
        text += fmt::format("  reference {}: list {}\n", i + 1, references.u32(4 + 16 * i));
    return text;
}

std::string dumpSections(const WordFile& file) {
    constexpr std::uint32_t kNoProperties = 0xFFFFFFFF;
    const PlaceList list(file.table(kSections), 12);
    std::string text;
    for (std::size_t i = 0; i < list.count(); ++i) {
        const std::uint32_t at = list.entry(i).u32(2);
        std::string properties;
        if (at != kNoProperties)
            properties =
                describeProperties(file.main().part(std::size_t{at} + 2, file.main().u16(at)), file.stream("Data"));
        text += fmt::format("  {} to {}{}{}\n", list.place(i), list.place(i + 1), properties.empty() ? "" : ": ",
                            properties);
    }
    return text;
}

std::string dumpFields(const WordFile& file) {
    constexpr std::array<std::pair<std::size_t, TextPart>, 7> kFields{{{16, TextPart::Body},
                                                                       {17, TextPart::RunningTexts},
                                                                       {18, TextPart::Footnotes},
                                                                       {19, TextPart::Comments},
                                                                       {48, TextPart::Endnotes},
                                                                       {57, TextPart::TextBoxes},
                                                                       {59, TextPart::RunningTextBoxes}}};
    std::string text;
    for (const auto& [number, part] : kFields) {
        const PlaceList list(file.table(number), 2);
        for (std::size_t i = 0; i < list.count(); ++i)
            text += fmt::format("  {} {}: character {:02x} kind {}\n", nameOf(part), list.place(i),
                                list.entry(i).u8(0) & 0x1F, list.entry(i).u8(1));
    }
    return text;
}

std::string dumpBookmarks(const WordFile& file) {
    const ByteView names = file.table(kBookmarkNames);
    if (names.size() == 0)
        return {};
    const PlaceList starts(file.table(kBookmarkStarts), 4);
    const PlaceList ends(file.table(kBookmarkEnds), 0);
    std::string text;
    std::size_t at = 6;
    for (std::size_t i = 0; i < names.u16(2); ++i) {
        const std::size_t length = names.u16(at);
        text += fmt::format("  {} from {} to {}\n", quotedText(names, at + 2, length), starts.place(i),
                            ends.place(starts.entry(i).u16(0)));
        at += 2 + 2 * length;
    }
    return text;
}

std::string dumpNotes(const WordFile& file) {
    constexpr std::array<std::pair<const char*, std::size_t>, 2> kKinds{{{"footnote", 2}, {"endnote", 46}}};
    std::string text;
    for (const auto& [name, number] : kKinds) {
        const PlaceList marks(file.table(number), 2);
        const PlaceList starts(file.table(number + 1), 0);
        for (std::size_t i = 0; i < marks.count(); ++i)
            text += fmt::format("  {} at {}: text from {}{}\n", name, marks.place(i), starts.place(i),
                                marks.entry(i).u16(0) == 0 ? ", a mark of its own" : "");
    }
    return text;
}

std::string dumpComments(const WordFile& file) {
    constexpr std::size_t kMarks = 4;
    constexpr std::size_t kTexts = 5;
    constexpr std::size_t kAuthors = 36;
    constexpr std::size_t kDetails = 112;
    constexpr std::size_t kDetailSize = 18;
    const PlaceList marks(file.table(kMarks), 30);
    const PlaceList starts(file.table(kTexts), 0);
    const ByteView names = file.table(kAuthors);
    const ByteView details = file.table(kDetails);
    std::string text;
    for (std::size_t at = 0, i = 0; at < names.size(); ++i) {
        const std::size_t length = names.u16(at);
        text += fmt::format("  author {} {}\n", i, quotedText(names, at + 2, length));
        at += 2 + 2 * length;
    }
    for (std::size_t i = 0; i < marks.count(); ++i) {
        const ByteView mark = marks.entry(i);
        const std::size_t length = mark.u16(0);
        const std::size_t detail = kDetailSize * i;
        const std::uint32_t date = detail + kDetailSize <= details.size() ? details.u32(detail) : 0;
        text += fmt::format("  comment at {}: text from {}, author {} {}{}\n", marks.place(i), starts.place(i),
                            mark.u16(20), quotedText(mark, 2, length > 9 ? 9 : length), dateText(date));
    }
    return text;
}

std::string dumpRunningTexts(const WordFile& file) {
    return places("texts", file.table(kRunningTexts), 0);
}

std::string dumpTextBoxes(const WordFile& file) {
    constexpr std::array<std::pair<const char*, std::size_t>, 2> kKinds{{{"box", 56}, {"box of a header", 58}}};
    std::string text;
    for (const auto& [name, number] : kKinds) {
        const PlaceList boxes(file.table(number), 22);
        // The last entry is of the paragraph mark that belongs to no box.
        for (std::size_t i = 0; i + 1 < boxes.count(); ++i)
            text +=
                fmt::format("  {} {}: text from {}, shape {}\n", name, i + 1, boxes.place(i), boxes.entry(i).u32(14));
    }
    return text;
}

std::string dumpAnchors(const WordFile& file) {
    constexpr std::array<std::pair<const char*, std::size_t>, 2> kKinds{{{"body", 40}, {"headers", 41}}};
    std::string text;
    for (const auto& [name, number] : kKinds) {
        const PlaceList anchors(file.table(number), 26);
        for (std::size_t i = 0; i < anchors.count(); ++i) {
            const ByteView anchor = anchors.entry(i);
            text += fmt::format("  {} {}: shape {} from {},{} to {},{} flags {:04x}\n", name, anchors.place(i),
                                anchor.u32(0), anchor.i32(4), anchor.i32(8), anchor.i32(12), anchor.i32(16),
                                anchor.u16(20));
        }
    }
    return text;
}

} // namespace orvane::read::doc
