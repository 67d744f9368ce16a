#include "worker/TargetFile.h"

#include "base/Failure.h"
#include "protocol/FileDescriptor_posix.h"
#include "protocol/PartFile.h"
#include "worker/SystemFiles.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace orvane::worker {

using protocol::FileDescriptor;

TargetFile::TargetFile(const std::filesystem::path& target)
    : m_target(protocol::finalTarget(target)) {
    requireWritable();
    m_part.emplace(protocol::partPath(target), m_target);
}

TargetFile::~TargetFile() {
    abandon();
}

void TargetFile::requireWritable() const {
    std::error_code error;
    const std::filesystem::path folder = m_target.has_parent_path() ? m_target.parent_path() : ".";
    if (!std::filesystem::is_directory(folder, error))
        throwUnwritable(m_target, fmt::format("there is no folder {}", folder.string()));

    const std::filesystem::file_status status = std::filesystem::status(m_target, error);
    if (!std::filesystem::exists(status))
        return;
    if (!std::filesystem::is_regular_file(status))
        throwUnwritable(m_target, "something stands there that is not a file");
    if (isHeldByAnother(m_target, Access::Write))
        throw Failure(FailureCode::TargetInUse, fmt::format("{} is held by another program", m_target.string()));
    const FileDescriptor file(open(m_target.c_str(), O_WRONLY | O_CLOEXEC));
    if (!file.isOpen())
        throwUnwritable(m_target, std::strerror(errno));
}

void TargetFile::commit() {
    const std::lock_guard lock(m_mutex);
    if (m_state != State::Growing)
        return;
    // A writer may have put a file of its own in the place of the one we locked.
    const FileDescriptor written(open(part().c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW));
    if (!written.isOpen() || fsync(written.get()) != 0)
        throwUnwritable(part(), std::strerror(errno));
    struct stat old {};
    if (stat(m_target.c_str(), &old) == 0)
        fchmod(written.get(), old.st_mode & 07777);
    if (std::rename(part().c_str(), m_target.c_str()) != 0)
        throwUnwritable(m_target, std::strerror(errno));
    m_state = State::Committed;

    const std::filesystem::path folder = m_target.has_parent_path() ? m_target.parent_path() : ".";
    const FileDescriptor directory(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.isOpen())
        fsync(directory.get());
}

bool TargetFile::abandon() {
    const std::lock_guard lock(m_mutex);
    if (m_state == State::Committed)
        return false;
    if (m_state == State::Growing)
        unlink(part().c_str());
    m_state = State::Abandoned;
    return true;
}

} // namespace orvane::worker
