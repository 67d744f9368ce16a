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
namespace {

using protocol::FileDescriptor;

[[noreturn]] void throwUnwritable(const std::filesystem::path& file, const std::string& why) {
    throw Failure(FailureCode::TargetUnwritable, fmt::format("{} cannot be written: {}", file.string(), why));
}

/// True when `path` still leads to the file that `descriptor` has open.
bool isSameFile(const FileDescriptor& descriptor, const std::filesystem::path& path) {
    struct stat opened {};
    struct stat named {};
    return fstat(descriptor.get(), &opened) == 0 && lstat(path.c_str(), &named) == 0 && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

} // namespace

struct TargetFile::Lock {
    FileDescriptor file;
};

TargetFile::TargetFile(const std::filesystem::path& target)
    : m_target(protocol::finalTarget(target))
    , m_part(protocol::partPath(target))
    , m_lock(std::make_unique<Lock>()) {
    requireWritable();
    takePart();
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

void TargetFile::takePart() {
    FileDescriptor& file = m_lock->file;
    do {
        file = FileDescriptor(open(m_part.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0666));
        if (!file.isOpen())
            throwUnwritable(m_part, std::strerror(errno));
        if (flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
            throw Failure(FailureCode::TargetInUse,
                          fmt::format("{} is being written by another conversion", m_target.string()));
        // Whoever held the lock a moment ago may have renamed or removed the file that we opened.
    } while (!isSameFile(file, m_part));
    if (ftruncate(file.get(), 0) != 0)
        throwUnwritable(m_part, std::strerror(errno));
}

void TargetFile::commit() {
    const std::lock_guard lock(m_mutex);
    if (m_state != State::Growing)
        return;
    // A writer may have put a file of its own in the place of the one we locked.
    const FileDescriptor written(open(m_part.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW));
    if (!written.isOpen() || fsync(written.get()) != 0)
        throwUnwritable(m_part, std::strerror(errno));
    struct stat old {};
    if (stat(m_target.c_str(), &old) == 0)
        fchmod(written.get(), old.st_mode & 07777);
    if (std::rename(m_part.c_str(), m_target.c_str()) != 0)
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
        unlink(m_part.c_str());
    m_state = State::Abandoned;
    return true;
}

} // namespace orvane::worker
