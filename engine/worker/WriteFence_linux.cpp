#include "worker/WriteFence.h"

#include "protocol/FileDescriptor_posix.h"

#include <cstdint>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace orvane::worker {
namespace {

using protocol::FileDescriptor;

// Added to the system after the headers of Debian 12 were made.
constexpr std::uint64_t kTruncate = 1ULL << 14;
constexpr int kVersionWithTruncate = 3;
constexpr int kVersionWithRefer = 2;

constexpr std::uint64_t kChangeFolder =
    LANDLOCK_ACCESS_FS_REMOVE_DIR | LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR |
    LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_MAKE_SOCK |
    LANDLOCK_ACCESS_FS_MAKE_FIFO | LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;

/// What writing comprises in the version of the system.
struct Rights {
    std::uint64_t file = LANDLOCK_ACCESS_FS_WRITE_FILE;
    std::uint64_t folder = LANDLOCK_ACCESS_FS_WRITE_FILE | kChangeFolder;
};

Rights rightsOf(int version) {
    Rights rights;
    if (version >= kVersionWithRefer)
        rights.folder |= LANDLOCK_ACCESS_FS_REFER;
    if (version >= kVersionWithTruncate) {
        rights.file |= kTruncate;
        rights.folder |= kTruncate;
    }
    return rights;
}

bool allow(const FileDescriptor& rules, const std::filesystem::path& place, std::uint64_t rights) {
    const FileDescriptor file(open(place.c_str(), O_PATH | O_CLOEXEC));
    landlock_path_beneath_attr rule{};
    rule.allowed_access = rights;
    rule.parent_fd = file.get();
    return file.isOpen() && syscall(SYS_landlock_add_rule, rules.get(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0;
}

std::filesystem::path nearestExisting(std::filesystem::path folder) {
    std::error_code error;
    folder = std::filesystem::absolute(folder, error).lexically_normal();
    while (!std::filesystem::is_directory(folder, error) && folder.has_relative_path())
        folder = folder.parent_path();
    return folder;
}

} // namespace

Sandbox fenceWrites(const WritablePlaces& places) {
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return Sandbox::Unavailable;
    const Rights rights = rightsOf(static_cast<int>(version));
    landlock_ruleset_attr handled{};
    handled.handled_access_fs = rights.folder;
    const FileDescriptor rules(static_cast<int>(syscall(SYS_landlock_create_ruleset, &handled, sizeof(handled), 0)));
    if (!rules.isOpen())
        return Sandbox::Unavailable;

    // A place that cannot be named cannot be written either; the job will find that out and say so.
    for (const std::filesystem::path& folder : places.folders)
        allow(rules, nearestExisting(folder), rights.folder);
    for (const std::filesystem::path& file : places.files)
        allow(rules, file, rights.file);
    const bool isClosed =
        prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && syscall(SYS_landlock_restrict_self, rules.get(), 0) == 0;
    return isClosed ? Sandbox::Closed : Sandbox::Unavailable;
}

} // namespace orvane::worker
