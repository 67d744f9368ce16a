#pragma once

#include "protocol/Job.h"
#include "worker/WriteFence.h"

namespace orvane::worker {

/// Where the job has to write: beside its target, below its scratch folder, and to its log, which is made if it is not
/// there.
WritablePlaces placesOf(const protocol::Job& job);

} // namespace orvane::worker
