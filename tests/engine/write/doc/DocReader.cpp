#include "DocReader.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include <fmt/format.h>

namespace orvane::tests {
namespace {

constexpr std::size_t kSectorSize = 512;
constexpr std::uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr std::size_t kFirstPair = 154;
constexpr std::size_t kFirstLength = 64;
constexpr std::size_t kPieces = 33;
constexpr std::size_t kLooks = 12;
constexpr std::size_t kParagraphs = 13;

std::uint32_t number(const std::string& bytes, std::size_t at, std::size_t size) {
    if (at + size > bytes.size())
        throw std::runtime_error(fmt::format("{} bytes at {} of {}", size, at, bytes.size()));
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < size; ++i)
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + i])) << (8 * i);
    return value;
}

void require(bool isSo, const char* what) {
    if (!isSo)
        throw std::runtime_error(what);
}

std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// The table of sectors; its first 109 sectors are named in the head of the file, others in sectors of their own.
std::string readFat(const std::string& file) {
    const auto sector = [&](std::uint32_t index) { return file.substr((index + 1) * kSectorSize, kSectorSize); };
    std::string places = file.substr(76, 4 * 109);
    for (std::uint32_t at = number(file, 68, 4); at != kEndOfChain; at = number(sector(at), kSectorSize - 4, 4))
        places += sector(at).substr(0, kSectorSize - 4);
    std::string fat;
    for (std::uint32_t i = 0; i < number(file, 44, 4); ++i)
        fat += sector(number(places, 4 * i, 4));
    return fat;
}

/// How many bytes a property's value has, the length before it included.
std::size_t valueSize(const std::string& list, std::size_t at, std::uint32_t property) {
    constexpr std::uint32_t kTableDefinition = 0xD608;
    if (property == kTableDefinition)
        return number(list, at, 2) + 1;
    constexpr std::size_t kSizes[] = {1, 1, 2, 4, 2, 2, 0, 3};
    const std::size_t size = kSizes[property >> 13];
    return size > 0 ? size : number(list, at, 1) + 1;
}

void appendUnit(std::string& out, std::uint32_t unit) {
    if (unit >= 0x20 && unit < 0x7F)
        out += static_cast<char>(unit);
    else if (unit < 0x100)
        out += fmt::format("\\{:02x}", unit);
    else
        out += fmt::format("\\u{:04x}", unit);
}

} // namespace

std::map<std::u16string, std::string> readCompoundFile(const std::filesystem::path& path) {
    const std::string file = bytesOf(path);
    require(file.starts_with("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1") && file.size() % kSectorSize == 0, "no compound file");
    const auto sector = [&](std::uint32_t index) { return file.substr((index + 1) * kSectorSize, kSectorSize); };
    const std::string fat = readFat(file);
    const auto chain = [&](std::uint32_t first) {
        std::string bytes;
        for (std::uint32_t at = first; at != kEndOfChain; at = number(fat, 4 * at, 4))
            bytes += sector(at);
        return bytes;
    };
    std::map<std::u16string, std::string> streams;
    const std::string directory = chain(number(file, 48, 4));
    for (std::size_t entry = 0; entry < directory.size(); entry += 128) {
        const std::uint32_t nameSize = number(directory, entry + 64, 2);
        if (number(directory, entry + 66, 1) != 2)
            continue;
        std::u16string name;
        for (std::size_t i = 0; i + 2 < nameSize; i += 2)
            name += static_cast<char16_t>(number(directory, entry + i, 2));
        const std::uint32_t size = number(directory, entry + 120, 4);
        streams[name] = chain(number(directory, entry + 116, 4)).substr(0, size);
        require(streams[name].size() == size, "a stream that is cut");
    }
    return streams;
}

DocReader::DocReader(const std::filesystem::path& file)
    : m_streams(readCompoundFile(file)) {
    const std::string& main = stream(u"WordDocument");
    require(number(main, 0, 2) == 0xA5EC, "no document");
    // One piece holds the whole text.
    const std::string pieces = table(kPieces);
    require(pieces.size() == 21 && number(pieces, 0, 1) == 2, "not one piece");
    m_characters = number(pieces, 9, 4);
    m_textStart = number(pieces, 15, 4);
}

const std::string& DocReader::stream(const std::u16string& name) const {
    static const std::string kNothing;
    const auto found = m_streams.find(name);
    return found == m_streams.end() ? kNothing : found->second;
}

std::string DocReader::table(std::size_t structure) const {
    const std::string& main = stream(u"WordDocument");
    const std::uint32_t start = number(main, kFirstPair + 8 * structure, 4);
    const std::uint32_t size = number(main, kFirstPair + 8 * structure + 4, 4);
    require(start + size <= stream(u"1Table").size(), "a structure beyond the table stream");
    return stream(u"1Table").substr(start, size);
}

std::vector<std::uint32_t> DocReader::numbers(std::size_t structure) const {
    const std::string bytes = table(structure);
    std::vector<std::uint32_t> result;
    for (std::size_t at = 0; at + 4 <= bytes.size(); at += 4)
        result.push_back(number(bytes, at, 4));
    return result;
}

std::uint32_t DocReader::length(std::size_t part) const {
    return number(stream(u"WordDocument"), kFirstLength + 4 * part, 4);
}

std::string DocReader::text() const {
    std::string result;
    for (std::uint32_t i = 0; i < m_characters; ++i)
        appendUnit(result, number(stream(u"WordDocument"), m_textStart + 2 * i, 2));
    return result;
}

std::vector<DocReader::Range> DocReader::readPages(std::size_t structure, bool areParagraphs) const {
    const std::string& main = stream(u"WordDocument");
    const std::vector<std::uint32_t> index = numbers(structure);
    const std::size_t pages = index.size() / 2;
    std::vector<Range> ranges;
    for (std::size_t i = 0; i < pages; ++i) {
        const std::string page = main.substr(index[pages + 1 + i] * kSectorSize, kSectorSize);
        const std::uint32_t count = number(page, kSectorSize - 1, 1);
        require(number(page, 0, 4) == index[i], "a page that begins elsewhere");
        for (std::uint32_t entry = 0; entry < count; ++entry) {
            const std::size_t entrySize = areParagraphs ? 13 : 1;
            const std::size_t at = 2 * number(page, 4 * (count + 1) + entrySize * entry, 1);
            std::string list;
            if (at > 0) {
                const std::uint32_t size = number(page, at, 1);
                if (!areParagraphs)
                    list = page.substr(at + 1, size);
                else
                    list = size == 0 ? page.substr(at + 2, 2 * number(page, at + 1, 1))
                                     : page.substr(at + 1, 2 * size - 1);
            }
            ranges.push_back({number(page, 4 * (entry + 1), 4), list});
        }
        require(ranges.back().end == index[i + 1], "a page that ends elsewhere");
    }
    require(!ranges.empty() && ranges.back().end == m_textStart + 2 * m_characters, "text without properties");
    return ranges;
}

std::string DocReader::properties(const std::string& list) const {
    constexpr std::uint32_t kElsewhere = 0x6646;
    std::string result;
    for (std::size_t at = 0; at < list.size();) {
        const std::uint32_t property = number(list, at, 2);
        const std::size_t size = valueSize(list, at + 2, property);
        require(at + 2 + size <= list.size(), "a property that is cut");
        if (property == kElsewhere) {
            const std::uint32_t place = number(list, at + 2, 4);
            const std::string& data = stream(u"Data");
            result += properties(data.substr(place + 2, number(data, place, 2)));
        } else {
            result += fmt::format("{:04x}=", property);
            for (std::size_t i = 0; i < size; ++i)
                result += fmt::format("{:02x}", number(list, at + 2 + i, 1));
            result += ' ';
        }
        at += 2 + size;
    }
    return result;
}

std::string DocReader::dump() const {
    const std::vector<Range> looks = readPages(kLooks, false);
    std::string result;
    std::uint32_t at = m_textStart;
    std::size_t look = 0;
    for (const Range& paragraph : readPages(kParagraphs, true)) {
        result += fmt::format("{} {}", number(paragraph.properties, 0, 2), properties(paragraph.properties.substr(2)));
        while (at < paragraph.end) {
            const std::uint32_t end = std::min(paragraph.end, looks[look].end);
            result += properties(looks[look].properties) + '"';
            for (; at < end; at += 2)
                appendUnit(result, number(stream(u"WordDocument"), at, 2));
            result += '"';
            if (at == looks[look].end)
                ++look;
        }
        result += '\n';
    }
    return result;
}

} // namespace orvane::tests
