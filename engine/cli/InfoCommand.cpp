#include "cli/Commands.h"

#include "cli/JobFollower.h"
#include "cli/Password.h"
#include "cli/Report.h"
#include "cli/UsageError.h"

#include <ostream>

namespace orvane::cli {

ExitCode info(const InfoOptions& options, const Streams& streams) {
    protocol::Job job;
    job.task = protocol::Task::Inspect;
    job.source = options.file;
    try {
        job.userPassword = findPassword(options.passwordFile);
    } catch (const UsageError& error) {
        streams.err << "orvane: " << error.what() << "\n";
        return ExitCode::Usage;
    }
    job.ownerPassword = job.userPassword;

    const Outcome outcome = runJob(job, [](const protocol::StatusReport&) {});
    if (options.json)
        streams.out << infoJson(outcome) << "\n";
    else if (outcome.finished && outcome.source)
        streams.out << infoText(outcome);
    if (outcome.failure)
        streams.err << failureLine(outcome) << "\n";
    return exitCodeOf(outcome);
}

} // namespace orvane::cli
