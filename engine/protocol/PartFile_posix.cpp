#include "protocol/PartFile.h"

#include "base/FileStem.h"
#include "protocol/FileDescriptor_posix.h"

#include <fcntl.h>
#include <sys/file.h>

namespace orvane::protocol {

std::filesystem::path finalTarget(const std::filesystem::path& target) {
    std::error_code error;
    if (!std::filesystem::is_symlink(target, error))
        return target;
    std::filesystem::path resolved = std::filesystem::canonical(target, error);
    return error ? target : resolved;
}

std::filesystem::path writtenTarget(const Job& job) {
    if (job.layout != Layout::Images)
        return job.target;
    return std::filesystem::path(job.target) / fileStem(job.source);
}

std::filesystem::path partPath(const std::filesystem::path& target) {
    std::filesystem::path part = finalTarget(target);
    part += ".part";
    return part;
}

void removeAbandonedPart(const std::filesystem::path& target) {
    const std::filesystem::path part = partPath(target);
    const FileDescriptor file(open(part.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    if (file.isOpen() && flock(file.get(), LOCK_EX | LOCK_NB) == 0)
        unlink(part.c_str());
}

} // namespace orvane::protocol
