#pragma once

namespace orvane::cli {

/// From now on Ctrl-C, and the system's polite requests to end, are remembered instead of ending the program.
void catchInterrupts();

/// True once such a request has come. Thread: any.
bool wasInterrupted();

} // namespace orvane::cli
