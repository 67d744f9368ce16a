#pragma once

#include "protocol/Job.h"
#include "protocol/Message.h"

#include <functional>
#include <optional>
#include <vector>

namespace orvane::cli {

/// How a job went.
struct Outcome {
    protocol::Job job;
    std::optional<protocol::Accepted> accepted;
    std::vector<Diagnostic> diagnostics;
    std::optional<protocol::SourceReport> source;  ///< of Task::Inspect
    std::vector<protocol::PageReport> pages;       ///< of Task::Inspect
    std::vector<protocol::PictureReport> pictures; ///< of Layout::Images
    std::optional<protocol::Finished> finished;    ///< empty when it was not done; then there is
    std::optional<protocol::Failed> failure;
};

using StatusAction = std::function<void(const protocol::StatusReport&)>;

/// Starts a worker for the job and follows it to its end. An interrupt of this program cancels it.
Outcome runJob(const protocol::Job& job, const StatusAction& onStatus);

} // namespace orvane::cli
