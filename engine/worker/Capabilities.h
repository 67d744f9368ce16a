#pragma once

#include "protocol/Job.h"

namespace orvane::worker {

/// The one table of what this engine makes. What is not in it is refused, never imitated by something near.
/// Errors: Failure(NotSupported) that names what is missing.
void requireSupported(protocol::Layout layout, protocol::Format format);

} // namespace orvane::worker
