#include "worker/StandardStreams.h"

#include <csignal>
#include <initializer_list>

#include <fcntl.h>
#include <unistd.h>

namespace orvane::worker {

StandardStreams takeStandardStreams() {
    for (const int signal : {SIGINT, SIGHUP, SIGPIPE, SIGXFSZ})
        std::signal(signal, SIG_IGN);

    const StandardStreams streams{fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 3), fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3)};
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    dup2(nothing, STDIN_FILENO);
    close(nothing);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    fcntl(STDERR_FILENO, F_SETFL, O_NONBLOCK | fcntl(STDERR_FILENO, F_GETFL));
    return streams;
}

} // namespace orvane::worker
