#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>

namespace orvane::pictures {

/// A file that is being written.
/// Errors: all members throw Failure(TargetUnwritable).
class OutputFile {
public:
    /// Opens an existing file and writes from its start.
    explicit OutputFile(const std::filesystem::path& file);

    void write(std::string_view bytes);
    void write(const std::uint8_t* bytes, std::size_t count);
    /// The next write goes to this distance from the start; what was skipped is zeros.
    void seek(std::int64_t position);
    std::int64_t position();
    /// Brings all that was written to the system and ends the writing.
    void close();

    /// For libraries that write by themselves.
    std::FILE* handle() { return m_file.get(); }
    /// Throws when such a library met an error.
    void requireWritten();

private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::filesystem::path m_path;
    std::unique_ptr<std::FILE, Closer> m_file;
};

/// Integers as files hold them.
template<int count>
void putLittleEndian(std::string& bytes, std::uint64_t value) {
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}
template<int count>
void putBigEndian(std::string& bytes, std::uint64_t value) {
    for (int i = count - 1; i >= 0; --i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

} // namespace orvane::pictures
