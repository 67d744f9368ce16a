// orvane-worker: does one conversion and ends. It is started by liborvane and by the program orvane, never by hand.

#include "protocol/JsonReader.h"
#include "worker/JobPlaces.h"
#include "worker/JobRunner.h"
#include "worker/ProcessLimits.h"
#include "worker/Sandbox.h"
#include "worker/StandardStreams.h"
#include "worker/WriteFence.h"

#include <cstdio>
#include <cstdlib>

using namespace orvane;

namespace {

constexpr int kExitNotAJob = 2;

} // namespace

int main() {
    const worker::StandardStreams streams = worker::takeStandardStreams();
    worker::StarterChannel channel(streams.input, streams.output);
    protocol::Job job;
    try {
        job = channel.readJob();
    } catch (const protocol::ProtocolError& error) {
        std::fprintf(stderr, "orvane-worker is started by other programs, with a job on its input: %s\n", error.what());
        return kExitNotAJob;
    }

    worker::applyLimits(job.limits);
    const worker::Sandbox fence = worker::fenceWrites(worker::placesOf(job));
    const worker::Sandbox sandbox = worker::enterSandbox();

    worker::RunReporter reporter(channel, job);
    if (fence == worker::Sandbox::Unavailable)
        reporter.remark("this system does not let the conversion keep itself from writing to other places");
    if (sandbox == worker::Sandbox::Unavailable)
        reporter.remark("this system does not let the conversion shut itself off from network and programs");
    worker::JobRunner runner(job, reporter);
    channel.watch(job.whenStarterEnds, std::chrono::seconds(job.limits.seconds), [&](auto reason) {
        // The job's own thread may hang anywhere; the process ends under it, without destructors.
        if (runner.forceEnd(reason))
            std::_Exit(EXIT_SUCCESS);
    });
    runner.run();
    return EXIT_SUCCESS;
}
