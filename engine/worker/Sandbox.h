#pragma once

namespace orvane::worker {

enum class Sandbox {
    Closed,      ///< the system refuses this process what it was taken
    Unavailable, ///< the system has no means for it, or does not let us use them
};

/// Takes from this process, for good, what no conversion needs and a hostile file could misuse: the network, other
/// programs, other processes, the system's administration. What is refused fails with an error code, as if there were
/// no right to it. Thread: to be called while there is one.
Sandbox enterSandbox();

} // namespace orvane::worker
