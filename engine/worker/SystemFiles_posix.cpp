#include "worker/SystemFiles.h"

#include "protocol/FileDescriptor_posix.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>

namespace orvane::worker {

bool isHeldByAnother(const std::filesystem::path& file, Access access) {
    const int mode = access == Access::Read ? O_RDONLY : O_RDWR;
    const protocol::FileDescriptor descriptor(open(file.c_str(), mode | O_CLOEXEC | O_NONBLOCK));
    if (!descriptor.isOpen())
        return errno == ETXTBSY;

    // Word processors lock with the one call, other programs with the other; neither sees the other's locks.
    struct flock wanted {};
    wanted.l_type = static_cast<short>(access == Access::Read ? F_RDLCK : F_WRLCK);
    wanted.l_whence = SEEK_SET;
    if (fcntl(descriptor.get(), F_OFD_GETLK, &wanted) == 0 && wanted.l_type != F_UNLCK)
        return true;
    const int kind = access == Access::Read ? LOCK_SH : LOCK_EX;
    return flock(descriptor.get(), kind | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

} // namespace orvane::worker
