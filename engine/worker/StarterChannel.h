#pragma once

#include "protocol/Job.h"
#include "protocol/LineSplitter.h"
#include "protocol/Message.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace orvane::worker {

/// The worker's end of the line to its starter.
/// Owns: the two descriptors.
class StarterChannel {
public:
    /// Why the job has to end although it has not come to its end.
    enum class ForcedEnd { CancelIgnored, TimeOver };

    /// `input` brings the job and later words, `output` takes the messages.
    StarterChannel(int input, int output);
    ~StarterChannel();
    StarterChannel(const StarterChannel&) = delete;
    StarterChannel& operator=(const StarterChannel&) = delete;

    /// Waits for the job.
    /// Errors: ProtocolError when something else comes, or nothing.
    protocol::Job readJob();

    /// Begins to listen, and to look at the clock. `onForcedEnd` is called at most once, from a thread of the channel's
    /// own, when the time is over, or when the job goes on although it was asked to stop.
    void watch(protocol::WhenStarterEnds whenStarterEnds, std::chrono::seconds timeLimit,
               std::function<void(ForcedEnd)> onForcedEnd);

    /// True once the starter has asked for the end, or is gone and the job is to end with it. Thread: any.
    bool isCancelled() const { return m_isCancelled; }

    /// Sends what the starter can do without: nothing is waited for, and while the starter does not read it is left
    /// out. Thread: any.
    void offer(const protocol::Message& message);

    /// Sends what the starter has to know, and waits until it is sent or the starter is gone. Thread: any.
    void deliver(const protocol::Message& message);

private:
    using Clock = std::chrono::steady_clock;

    bool readInput();
    void listen(protocol::WhenStarterEnds whenStarterEnds, Clock::time_point end,
                const std::function<void(ForcedEnd)>& onForcedEnd);

    int m_input;
    int m_output;
    int m_stopReading = -1; // the two ends of a pipe that wakes the listening thread for its end
    int m_stopWriting = -1;
    protocol::LineSplitter m_lines{protocol::kMaxLineLength};
    std::mutex m_outputMutex;
    std::atomic<bool> m_isCancelled = false;
    std::thread m_listener;
};

} // namespace orvane::worker
