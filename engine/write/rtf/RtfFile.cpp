#include "write/rtf/RtfFile.h"

#include "base/Failure.h"

#include <cerrno>
#include <system_error>

#include <fmt/format.h>

namespace orvane::write::rtf {

RtfFile::RtfFile(const std::filesystem::path& target)
    : m_target(target)
    , m_file(std::fopen(target.c_str(), "wb")) {
    if (!m_file)
        fail();
}

void RtfFile::add(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), m_file.get()) != bytes.size())
        fail();
}

void RtfFile::close() {
    // A full disk may show only when the last bytes leave the memory.
    if (std::fclose(m_file.release()) != 0)
        fail();
}

void RtfFile::fail() const {
    const std::error_code reason(errno, std::generic_category());
    throw Failure(FailureCode::TargetUnwritable,
                  fmt::format("{} cannot be written: {}", m_target.string(), reason.message()));
}

} // namespace orvane::write::rtf
