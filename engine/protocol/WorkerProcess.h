#pragma once

#include "protocol/ChildProcess.h"
#include "protocol/ConversionLog.h"
#include "protocol/Job.h"
#include "protocol/LineSplitter.h"
#include "protocol/Message.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace orvane::protocol {

/// A worker that does one job, as its starter sees it.
///
/// The last message is always Refused, Finished or Failed: a worker that dies, or that sends what no worker sends, is
/// reported as Failed (or Refused when it had not begun) with WorkerDied or LimitExceeded; what it leaves behind is
/// removed and its record in the conversion log is written from here.
///
/// When the object goes before that, the worker does what Job::whenStarterEnds says.
class WorkerProcess {
public:
    /// Starts `program`, which is protocol::workerProgram() but for tests, and hands it the job.
    /// Errors: Failure(WorkerDied) when it cannot be started.
    WorkerProcess(const std::filesystem::path& program, Job job);

    /// The next message; empty when none comes within `timeout`, and after the last one.
    std::optional<Message> next(std::chrono::milliseconds timeout);

    /// True once the last message has been taken.
    bool hasEnded() const { return m_state == State::Ended; }

    /// Asks the worker to stop. It has a few seconds for that; next() ends it by force after them.
    void cancel();

private:
    enum class State { Started, Accepted, Ended };
    using Clock = std::chrono::steady_clock;

    std::optional<Message> takeLine();
    Message take(Message message);
    Message reportDeath(FailureCode code, const std::string& why);
    Message reportEndOfProcess();
    std::chrono::milliseconds untilForcedEnd(std::chrono::milliseconds timeout) const;
    std::string lastWords() const;

    Job m_job;
    ChildProcess m_process;
    LineSplitter m_lines;
    State m_state = State::Started;
    std::string m_errorOutput; // its end only
    LogRecord m_record;        // for the case that the worker cannot write its own
    Clock::time_point m_start = Clock::now();
    std::optional<Clock::time_point> m_cancelTime;
    bool m_wasKilled = false;
};

/// Writes the log's record of a job that could not even be handed to a worker, and returns what went wrong as the job's
/// last message.
Refused refuseUnstarted(const Job& job, const Failure& failure);

} // namespace orvane::protocol
