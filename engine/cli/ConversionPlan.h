#pragma once

#include "cli/CommandLine.h"
#include "protocol/Job.h"

#include <string>
#include <vector>

namespace orvane::cli {

/// One job for each file that the options name.
/// Errors: UsageError when the format of a target cannot be told by its name.
std::vector<protocol::Job> planConversions(const ConvertOptions& options, const std::string& password);

/// How many of `fileCount` files are converted at the same time.
int concurrentJobs(const ConvertOptions& options, std::size_t fileCount);

} // namespace orvane::cli
