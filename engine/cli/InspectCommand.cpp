#include "cli/Commands.h"

#include "cli/JobFollower.h"
#include "cli/Password.h"
#include "cli/Report.h"
#include "cli/UsageError.h"

#include <filesystem>
#include <ostream>

#include <fmt/format.h>

namespace orvane::cli {
namespace {

/// report.pdf -> report-p3-lines.svg, where one is at work.
std::string pictureName(const InspectOptions& options) {
    const std::string stem = std::filesystem::path(options.file).stem().string();
    return fmt::format("{}-p{}-{}.svg", stem, options.page, options.stage);
}

} // namespace

ExitCode inspect(const InspectOptions& options, const Streams& streams) {
    protocol::Job job;
    job.task = protocol::Task::Draw;
    job.source = options.file;
    job.pageRange = std::to_string(options.page);
    job.stage = options.stage;
    job.target = options.output.empty() ? pictureName(options) : options.output;
    try {
        job.userPassword = findPassword(options.passwordFile);
    } catch (const UsageError& error) {
        streams.err << "orvane: " << error.what() << "\n";
        return ExitCode::Usage;
    }
    job.ownerPassword = job.userPassword;

    const Outcome outcome = runJob(job, [](const protocol::StatusReport&) {});
    if (outcome.finished)
        streams.out << job.target << "\n";
    if (outcome.failure)
        streams.err << failureLine(outcome) << "\n";
    return exitCodeOf(outcome);
}

} // namespace orvane::cli
