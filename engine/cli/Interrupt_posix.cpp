#include "cli/Interrupt.h"

#include <csignal>
#include <initializer_list>

namespace orvane::cli {
namespace {

volatile std::sig_atomic_t interrupted = 0;

void remember(int) {
    interrupted = 1;
}

} // namespace

void catchInterrupts() {
    struct sigaction action {};
    action.sa_handler = remember;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        sigaction(signal, &action, nullptr);
    // A reader of our output that goes away must not leave half a document behind.
    std::signal(SIGPIPE, SIG_IGN);
}

bool wasInterrupted() {
    return interrupted != 0;
}

} // namespace orvane::cli
