#pragma once

namespace orvane::worker {

/// The descriptors by which this process speaks with its starter.
struct StandardStreams {
    int input = -1;
    int output = -1;
};

/// Takes them out of the way of libraries: what these print to the standard output goes to the error output, which is
/// never waited for. Signals that a terminal sends to all of its programs, and those for a file that grows too large or
/// a starter that is gone, are no reason to die: the starter says when to stop, and writing reports the error.
StandardStreams takeStandardStreams();

} // namespace orvane::worker
