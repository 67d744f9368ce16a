#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace orvane::tests {

/// The streams of a compound file, read back for tests. Throws std::runtime_error for what is none.
std::map<std::u16string, std::string> readCompoundFile(const std::filesystem::path& file);

/// Reads a binary document back by the format's own tables, for tests. Throws std::runtime_error for what is no such
/// file, or not one that holds together.
class DocReader {
public:
    explicit DocReader(const std::filesystem::path& file);

    /// A stream of the compound file; empty when there is none.
    const std::string& stream(const std::u16string& name) const;
    /// A structure of the table stream by its number.
    std::string table(std::size_t number) const;
    /// The numbers of a structure of the table stream, 32 bits each.
    std::vector<std::uint32_t> numbers(std::size_t number) const;

    /// How many characters a part of the text has, by its place among the lengths of the file information block.
    std::uint32_t length(std::size_t number) const;
    /// The whole text, UTF-8; control characters as \xx.
    std::string text() const;

    /// The paragraphs, one a line: the style's number, the properties, then each run with its properties, all as
    /// hexadecimal digits: `0 2403=01 "plain" 0835=01"bold\0d"`.
    std::string dump() const;

private:
    struct Range {
        std::uint32_t end = 0; ///< in bytes of the main stream
        std::string properties;
    };

    std::vector<Range> readPages(std::size_t number, bool areParagraphs) const;
    std::string properties(const std::string& list) const;

    std::map<std::u16string, std::string> m_streams;
    std::uint32_t m_textStart = 0;
    std::uint32_t m_characters = 0;
};

} // namespace orvane::tests
