#include "cli/Commands.h"

#include "cli/JobFollower.h"
#include "cli/Password.h"
#include "cli/Progress.h"
#include "cli/Report.h"
#include "cli/UsageError.h"

#include <ostream>

namespace orvane::cli {
namespace {

protocol::Job jobOf(const ImagesOptions& options) {
    protocol::Job job;
    job.layout = protocol::Layout::Images;
    job.imageFormat = options.format;
    job.source = options.file;
    job.target = options.folder;
    job.pageRange = options.pages;
    job.userPassword = findPassword(options.passwordFile);
    job.ownerPassword = job.userPassword;
    job.logPath = options.log;
    job.applicationName = "orvane";
    return job;
}

Outcome follow(const protocol::Job& job, const Streams& streams) {
    Progress progress(streams.err, errorOutputAudience());
    return runJob(job, [&progress](const protocol::StatusReport& status) {
        if (status.stage == JobStage::PageOfPages)
            progress.show(status.first, status.second, "pages");
    });
}

} // namespace

ExitCode images(const ImagesOptions& options, const Streams& streams) {
    protocol::Job job;
    try {
        job = jobOf(options);
    } catch (const UsageError& error) {
        streams.err << "orvane: " << error.what() << "\n";
        return ExitCode::Usage;
    }
    const Outcome outcome = follow(job, streams);
    if (options.json)
        streams.out << imagesJson(outcome) << "\n";
    else if (outcome.finished)
        streams.out << picturesLine(outcome) << "\n";
    if (outcome.failure)
        streams.err << failureLine(outcome) << "\n";
    return exitCodeOf(outcome);
}

} // namespace orvane::cli
