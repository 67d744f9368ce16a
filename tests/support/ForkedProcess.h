#pragma once

#include <sys/wait.h>
#include <unistd.h>

namespace orvane::tests {

/// Runs `action` in a process of its own, for what cannot be undone in this one. Returns what `action` returns, or
/// minus the number of the signal that ended it.
template<typename Action>
int inForkedProcess(Action action) {
    const pid_t process = fork();
    if (process == 0)
        _exit(action());
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

} // namespace orvane::tests
