#include "worker/LockedPart.h"

#include "base/Failure.h"
#include "protocol/FileDescriptor_posix.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace orvane::worker {
namespace {

using protocol::FileDescriptor;

/// True when `path` still leads to the file that `descriptor` has open.
bool isSameFile(const FileDescriptor& descriptor, const std::filesystem::path& path) {
    struct stat opened {};
    struct stat named {};
    return fstat(descriptor.get(), &opened) == 0 && lstat(path.c_str(), &named) == 0 && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

} // namespace

struct LockedPart::Lock {
    FileDescriptor file;
};

LockedPart::LockedPart(std::filesystem::path part, const std::filesystem::path& target)
    : m_path(std::move(part))
    , m_lock(std::make_unique<Lock>()) {
    FileDescriptor& file = m_lock->file;
    do {
        file = FileDescriptor(open(m_path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0666));
        if (!file.isOpen())
            throwUnwritable(m_path, std::strerror(errno));
        if (flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
            throw Failure(FailureCode::TargetInUse,
                          fmt::format("{} is being written by another conversion", target.string()));
        // Whoever held the lock a moment ago may have renamed or removed the file that we opened.
    } while (!isSameFile(file, m_path));
    if (ftruncate(file.get(), 0) != 0)
        throwUnwritable(m_path, std::strerror(errno));
}

LockedPart::~LockedPart() = default;

void throwUnwritable(const std::filesystem::path& file, const std::string& why) {
    throw Failure(FailureCode::TargetUnwritable, fmt::format("{} cannot be written: {}", file.string(), why));
}

} // namespace orvane::worker
