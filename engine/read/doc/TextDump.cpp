#include "read/doc/TextDump.h"

#include "read/doc/PropertyNames.h"

#include <algorithm>

#include <fmt/format.h>

namespace orvane::read::doc {
namespace {

/// Source: [MS-DOC] 2.4.1, 2.8.25.
std::string_view nameOfCharacter(char16_t character) {
    switch (character) {
    case 0x01:
        return "<picture>";
    case 0x02:
        return "<note>";
    case 0x03:
        return "<separator>";
    case 0x04:
        return "<continuation>";
    case 0x05:
        return "<comment>";
    case 0x07:
        return "<cell>";
    case 0x08:
        return "<object>";
    case 0x09:
        return "<tab>";
    case 0x0B:
        return "<line>";
    case 0x0C:
        return "<page>";
    case 0x0D:
        return "<end>";
    case 0x0E:
        return "<column>";
    case 0x13:
        return "<field>";
    case 0x14:
        return "<result>";
    case 0x15:
        return "</field>";
    case 0x1E:
        return "<hard-hyphen>";
    case 0x1F:
        return "<soft-hyphen>";
    default:
        return {};
    }
}

/// Goes along the text and its properties, which are told by place in the main stream.
class TextLister {
public:
    explicit TextLister(const WordFile& file)
        : m_file(file)
        , m_data(file.stream("Data"))
        , m_looks(file.looks())
        , m_paragraphs(file.paragraphs()) {}

    std::string list(std::uint32_t start, std::uint32_t end) {
        std::string text;
        for (std::uint32_t at = start; at < end;) {
            const FormattedRange* paragraph = find(m_paragraphs, placeOf(at));
            const std::uint32_t stop = std::min(end, endOf(paragraph, at));
            text += fmt::format("  {} {}\n", at - start, head(paragraph));
            text += runs(at, stop);
            at = stop;
        }
        return text;
    }

private:
    const Piece& pieceAt(std::uint32_t character) const {
        for (const Piece& piece : m_file.pieces())
            if (character >= piece.start && character < piece.end)
                return piece;
        throw Damage(fmt::format("character {} is in no piece of the text", character));
    }

    std::uint32_t placeOf(std::uint32_t character) const {
        const Piece& piece = pieceAt(character);
        return piece.place + (character - piece.start) * (piece.isUnicode ? 2 : 1);
    }

    static const FormattedRange* find(const std::vector<FormattedRange>& ranges, std::uint32_t place) {
        const auto found =
            std::upper_bound(ranges.begin(), ranges.end(), place,
                             [](std::uint32_t at, const FormattedRange& range) { return at < range.end; });
        return found == ranges.end() || place < found->start ? nullptr : &*found;
    }

    /// The first character behind the range, or behind the piece where that ends before.
    std::uint32_t endOf(const FormattedRange* range, std::uint32_t character) const {
        const Piece& piece = pieceAt(character);
        if (!range)
            return piece.end;
        const std::uint32_t bytes = range->end - placeOf(character);
        const std::uint32_t count = bytes / (piece.isUnicode ? 2 : 1);
        return std::min(piece.end, character + std::max<std::uint32_t>(1, count));
    }

    std::string head(const FormattedRange* paragraph) const {
        if (!paragraph || paragraph->properties.size() < 2)
            return "style 0";
        const ByteView list(paragraph->properties, "a paragraph's properties");
        const std::string properties = describeProperties(list.from(2), m_data);
        return fmt::format("style {}{}{}", list.u16(0), properties.empty() ? "" : ": ", properties);
    }

    std::string runs(std::uint32_t start, std::uint32_t end) const {
        std::string text;
        for (std::uint32_t at = start; at < end;) {
            const FormattedRange* look = find(m_looks, placeOf(at));
            const std::uint32_t stop = std::min(end, endOf(look, at));
            const std::string properties =
                look ? describeProperties({look->properties, "a run's properties"}, m_data) : std::string();
            text +=
                fmt::format("    {}{}{}\n", quoted(m_file.text(at, stop)), properties.empty() ? "" : " ", properties);
            at = stop;
        }
        return text;
    }

    const WordFile& m_file;
    ByteView m_data;
    std::vector<FormattedRange> m_looks;
    std::vector<FormattedRange> m_paragraphs;
};

} // namespace

std::string quoted(std::u16string_view text) {
    std::string result = "\"";
    std::u16string plain;
    const auto flush = [&] {
        result += utf8FromUtf16(plain);
        plain.clear();
    };
    for (const char16_t character : text) {
        const std::string_view name = nameOfCharacter(character);
        if (name.empty() && character >= 0x20) {
            if (character == u'"' || character == u'\\' || character == u'<')
                plain += u'\\';
            plain += character;
            continue;
        }
        flush();
        result += name.empty() ? fmt::format("<{:02x}>", static_cast<unsigned>(character)) : std::string(name);
    }
    flush();
    return result + '"';
}

std::string dumpText(const WordFile& file, TextPart part) {
    std::uint64_t start = 0;
    for (const TextPart before : kTextParts) {
        if (before == part)
            break;
        start += file.length(before);
    }
    const std::uint64_t end = start + file.length(part);
    if (end > UINT32_MAX)
        throw Damage("the text is longer than a file can be");
    return TextLister(file).list(static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(end));
}

} // namespace orvane::read::doc
