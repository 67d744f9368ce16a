#include "worker/Sandbox.h"

#include "worker/BuildKind.h"

#include <array>
#include <cerrno>
#include <memory>
#include <type_traits>

#include <sched.h>
#include <seccomp.h>

namespace orvane::worker {
namespace {

using Filter = std::unique_ptr<std::remove_pointer_t<scmp_filter_ctx>, decltype(&seccomp_release)>;

/// Nothing here is used by reading a PDF, by fonts, by threads or by writing files.
constexpr std::array kForbidden{
    // the network; without a socket the other calls have nothing to work on
    SCMP_SYS(socket), SCMP_SYS(socketpair), SCMP_SYS(connect), SCMP_SYS(bind), SCMP_SYS(listen), SCMP_SYS(accept),
    SCMP_SYS(accept4), SCMP_SYS(io_uring_setup),
    // other programs
    SCMP_SYS(execve), SCMP_SYS(execveat), SCMP_SYS(fork), SCMP_SYS(vfork),
    // other processes
    SCMP_SYS(kill), SCMP_SYS(tkill), SCMP_SYS(pidfd_open), SCMP_SYS(pidfd_getfd), SCMP_SYS(pidfd_send_signal),
    SCMP_SYS(process_vm_readv), SCMP_SYS(process_vm_writev), SCMP_SYS(process_madvise),
    // the system's administration
    SCMP_SYS(mount), SCMP_SYS(umount2), SCMP_SYS(pivot_root), SCMP_SYS(chroot), SCMP_SYS(setns), SCMP_SYS(unshare),
    SCMP_SYS(move_mount), SCMP_SYS(open_tree), SCMP_SYS(fsopen), SCMP_SYS(bpf), SCMP_SYS(perf_event_open),
    SCMP_SYS(userfaultfd), SCMP_SYS(keyctl), SCMP_SYS(add_key), SCMP_SYS(request_key), SCMP_SYS(init_module),
    SCMP_SYS(finit_module), SCMP_SYS(delete_module), SCMP_SYS(kexec_load), SCMP_SYS(kexec_file_load), SCMP_SYS(reboot),
    SCMP_SYS(swapon), SCMP_SYS(swapoff), SCMP_SYS(acct), SCMP_SYS(quotactl), SCMP_SYS(settimeofday),
    SCMP_SYS(clock_settime), SCMP_SYS(adjtimex), SCMP_SYS(sethostname), SCMP_SYS(setdomainname), SCMP_SYS(iopl),
    SCMP_SYS(ioperm), SCMP_SYS(open_by_handle_at), SCMP_SYS(personality)};

bool forbid(const Filter& filter, int call) {
    return seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(EPERM), call, 0) == 0;
}

/// A new process is made by the same call as a new thread; what they share tells them apart.
bool forbidNewProcesses(const Filter& filter) {
    const bool isForbidden = seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(EPERM), SCMP_SYS(clone), 1,
                                              SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, 0)) == 0;
    // The arguments of clone3() lie in memory, where the filter cannot look. Told that there is no such call, the C
    // library makes its threads with clone().
    return isForbidden && seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0;
}

} // namespace

Sandbox enterSandbox() {
    const Filter filter(seccomp_init(SCMP_ACT_ALLOW), &seccomp_release);
    if (!filter)
        return Sandbox::Unavailable;
    bool isComplete = true;
    for (const int call : kForbidden)
        isComplete &= forbid(filter, call);
    if (kBuildKind == BuildKind::Plain)
        isComplete &= forbid(filter, SCMP_SYS(ptrace)) && forbidNewProcesses(filter);
    return isComplete && seccomp_load(filter.get()) == 0 ? Sandbox::Closed : Sandbox::Unavailable;
}

} // namespace orvane::worker
