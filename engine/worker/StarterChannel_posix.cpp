#include "worker/StarterChannel.h"

#include "protocol/ProtocolError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <optional>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace orvane::worker {

using protocol::Message;
using protocol::WhenStarterEnds;

StarterChannel::StarterChannel(int input, int output)
    : m_input(input)
    , m_output(output) {
    fcntl(m_output, F_SETFL, O_NONBLOCK);
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) == 0) {
        m_stopReading = ends[0];
        m_stopWriting = ends[1];
    }
}

StarterChannel::~StarterChannel() {
    close(m_stopWriting);
    if (m_listener.joinable())
        m_listener.join();
    close(m_stopReading);
    close(m_input);
    close(m_output);
}

/// Waits for bytes and takes them; false at the end of the input.
bool StarterChannel::readInput() {
    std::array<char, 4096> buffer;
    ssize_t count = 0;
    do {
        count = read(m_input, buffer.data(), buffer.size());
    } while (count < 0 && errno == EINTR);
    if (count <= 0)
        return false;
    m_lines.add({buffer.data(), static_cast<std::size_t>(count)});
    return true;
}

protocol::Job StarterChannel::readJob() {
    while (true) {
        if (const std::optional<std::string> line = m_lines.next())
            return protocol::decodeJob(*line);
        if (!readInput())
            throw protocol::ProtocolError("the input ended before the job was read");
    }
}

void StarterChannel::watch(WhenStarterEnds whenStarterEnds, std::chrono::seconds timeLimit,
                           std::function<void(ForcedEnd)> onForcedEnd) {
    m_listener = std::thread([this, whenStarterEnds, end = Clock::now() + timeLimit, action = std::move(onForcedEnd)] {
        listen(whenStarterEnds, end, action);
    });
}

void StarterChannel::listen(WhenStarterEnds whenStarterEnds, Clock::time_point end,
                            const std::function<void(ForcedEnd)>& onForcedEnd) {
    bool isInputOpen = true;
    ForcedEnd reason = ForcedEnd::TimeOver;
    const auto cancel = [&] {
        if (m_isCancelled.exchange(true))
            return;
        const Clock::time_point graceEnd = Clock::now() + protocol::kCancelGrace;
        if (graceEnd < end) {
            end = graceEnd;
            reason = ForcedEnd::CancelIgnored;
        }
    };
    while (Clock::now() < end) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        std::array<pollfd, 2> sources{{{m_stopReading, POLLIN, 0}, {isInputOpen ? m_input : -1, POLLIN, 0}}};
        poll(sources.data(), sources.size(), static_cast<int>(std::min<long long>(left, INT_MAX)));
        if (sources[0].revents != 0)
            return;
        if (sources[1].revents == 0)
            continue;
        isInputOpen = readInput();
        if (!isInputOpen && whenStarterEnds == WhenStarterEnds::Stop)
            cancel();
        try {
            while (const std::optional<std::string> line = m_lines.next())
                if (*line == protocol::kCancelLine)
                    cancel();
        } catch (const protocol::ProtocolError&) {
            // A starter that sends megabytes without a line end is out of its mind; it gets the safe answer.
            isInputOpen = false;
            cancel();
        }
    }
    onForcedEnd(reason);
}

void StarterChannel::offer(const Message& message) {
    const std::string line = encodeMessage(message) + "\n";
    // The system writes so much to a pipe in one piece or not at all: no half line can stay behind.
    if (line.size() > PIPE_BUF)
        return;
    const std::lock_guard lock(m_outputMutex);
    [[maybe_unused]] const ssize_t count = write(m_output, line.data(), line.size());
}

void StarterChannel::deliver(const Message& message) {
    const std::string line = encodeMessage(message) + "\n";
    std::string_view rest = line;
    const std::lock_guard lock(m_outputMutex);
    while (!rest.empty()) {
        const ssize_t count = write(m_output, rest.data(), rest.size());
        if (count >= 0) {
            rest.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno == EAGAIN) {
            pollfd room{m_output, POLLOUT, 0};
            poll(&room, 1, -1);
        } else if (errno != EINTR) {
            return;
        }
    }
}

} // namespace orvane::worker
