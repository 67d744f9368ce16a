#include "worker/ScratchFolder.h"

#include "base/Failure.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fmt/format.h>

namespace orvane::worker {

ScratchFolder::ScratchFolder(const std::filesystem::path& parent) {
    std::error_code error;
    const std::filesystem::path place = parent.empty() ? std::filesystem::temp_directory_path(error) : parent;
    if (!parent.empty())
        std::filesystem::create_directories(parent, error);
    std::string pattern = (place / "orvane-XXXXXX").string();
    if (error || mkdtemp(pattern.data()) == nullptr)
        throw Failure(FailureCode::TargetUnwritable,
                      fmt::format("cannot make a folder for scratch files in {}: {}", place.string(),
                                  error ? error.message() : std::strerror(errno)));
    m_path = pattern;
}

void ScratchFolder::remove() const {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

} // namespace orvane::worker
