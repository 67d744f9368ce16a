#pragma once

#include "protocol/Job.h"

namespace orvane::worker {

/// Has the system hold this process to the limits of its job: memory, processor time as a stop behind the clock, no
/// core file that would keep a document's content.
void applyLimits(const protocol::Limits& limits);

} // namespace orvane::worker
