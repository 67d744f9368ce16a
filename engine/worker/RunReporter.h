#pragma once

#include "base/Diagnostic.h"
#include "base/JobObserver.h"
#include "protocol/ConversionLog.h"
#include "protocol/Job.h"
#include "protocol/Message.h"
#include "worker/StarterChannel.h"

#include <chrono>
#include <mutex>

namespace orvane::worker {

/// Tells the starter and the conversion log how the job goes. A job ends once: of several ends, the first counts.
/// Thread: any.
class RunReporter : public JobObserver {
public:
    /// Requires: both outlive the reporter.
    RunReporter(StarterChannel& channel, const protocol::Job& job);

    void stageReached(JobStage stage, int first, int second) override;
    bool isCancelled() const override { return m_channel.isCancelled(); }

    void accept(const protocol::Accepted& accepted);
    void report(const Diagnostics& diagnostics);
    /// A line of the log about the run itself.
    void remark(std::string text);
    void describe(const protocol::SourceReport& source);
    void describe(const protocol::PageReport& page);
    void describe(const protocol::PictureReport& picture);

    void finish(const protocol::Counts& counts);
    void fail(const protocol::Failed& failure);

private:
    double seconds() const;
    bool isFirstEnd();
    void writeLog();

    StarterChannel& m_channel;
    const protocol::Job& m_job;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    std::mutex m_mutex;
    protocol::LogRecord m_record;
    bool m_hasEnded = false;
};

} // namespace orvane::worker
