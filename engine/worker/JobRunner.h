#pragma once

#include "protocol/Job.h"
#include "worker/RunReporter.h"
#include "worker/StarterChannel.h"

#include <mutex>

namespace orvane::worker {

class AbandonableOutput;
class ScratchFolder;

/// Does one job from its first step to its last. Whatever happens on the way, the starter and the log are told.
class JobRunner {
public:
    /// Requires: both outlive the runner.
    JobRunner(const protocol::Job& job, RunReporter& reporter)
        : m_job(job)
        , m_reporter(reporter) {}

    void run();

    /// Cleans up behind a job that does not stop by itself and reports its end. Does nothing when the target stands
    /// already. Thread: any other than that of run(), which goes on: the caller ends the process.
    bool forceEnd(StarterChannel::ForcedEnd reason);

private:
    void convert();
    void extractPictures();
    void inspect();
    void draw();

    const protocol::Job& m_job;
    RunReporter& m_reporter;
    std::mutex m_mutex; // of the two below, which forceEnd() uses while run() is at work
    AbandonableOutput* m_target = nullptr;
    ScratchFolder* m_scratch = nullptr;
};

} // namespace orvane::worker
