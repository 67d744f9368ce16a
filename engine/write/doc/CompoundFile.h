#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace orvane::write::doc {

/// A stream of a compound file, piece by piece: bytes, or a file that is copied when the compound file is written.
class CompoundStream {
public:
    explicit CompoundStream(std::u16string name)
        : m_name(std::move(name)) {}

    void add(std::string bytes);
    /// Errors: Failure(Internal) when the file cannot be read.
    void addFile(std::filesystem::path file);

    /// Adds all that the other stream holds.
    void append(const CompoundStream& other);

    const std::u16string& name() const { return m_name; }
    std::uint64_t size() const { return m_size; }

    struct Piece {
        std::string bytes;
        std::filesystem::path file; ///< empty: the bytes
        std::uint64_t size = 0;
    };
    const std::vector<Piece>& pieces() const { return m_pieces; }

private:
    std::u16string m_name;
    std::vector<Piece> m_pieces;
    std::uint64_t m_size = 0;
};

/// Writes a compound file with the streams beside each other. Streams are at least 4096 bytes long in it, filled up
/// with zeros, so that all of them stand in sectors of their own. Errors: Failure(TargetUnwritable). Source: [MS-CFB] 2
/// (version 3).
void writeCompoundFile(const std::filesystem::path& target, const std::vector<CompoundStream>& streams);

} // namespace orvane::write::doc
