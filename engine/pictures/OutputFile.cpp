#include "pictures/OutputFile.h"

#include "base/Failure.h"

#include <cerrno>
#include <cstring>

#include <fmt/format.h>

namespace orvane::pictures {
namespace {

[[noreturn]] void throwUnwritable(const std::filesystem::path& file) {
    throw Failure(FailureCode::TargetUnwritable,
                  fmt::format("{} cannot be written: {}", file.string(), std::strerror(errno)));
}

} // namespace

OutputFile::OutputFile(const std::filesystem::path& file)
    : m_path(file)
    , m_file(std::fopen(file.c_str(), "r+b")) {
    if (!m_file)
        throwUnwritable(m_path);
}

void OutputFile::write(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), m_file.get()) != bytes.size())
        throwUnwritable(m_path);
}

void OutputFile::write(const std::uint8_t* bytes, std::size_t count) {
    write(std::string_view(reinterpret_cast<const char*>(bytes), count));
}

void OutputFile::seek(std::int64_t position) {
    if (fseeko(m_file.get(), position, SEEK_SET) != 0)
        throwUnwritable(m_path);
}

std::int64_t OutputFile::position() {
    return ftello(m_file.get());
}

void OutputFile::close() {
    requireWritten();
    if (std::fclose(m_file.release()) != 0)
        throwUnwritable(m_path);
}

void OutputFile::requireWritten() {
    if (std::fflush(m_file.get()) != 0 || std::ferror(m_file.get()) != 0)
        throwUnwritable(m_path);
}

} // namespace orvane::pictures
