#include "protocol/WorkerProcess.h"

#include "protocol/PartFile.h"
#include "protocol/ProtocolError.h"

#include <algorithm>
#include <type_traits>

#include <fmt/format.h>

namespace orvane::protocol {
namespace {

using namespace std::chrono_literals;

// The worker itself gives up a cancelled job after kCancelGrace; this is how long its starter waits for that.
constexpr auto kPatienceAfterCancel = kCancelGrace + 1000ms;

// Between the last word of a worker and its end: it closes its files and is gone.
constexpr auto kPatienceAtEnd = 2000ms;

// Enough for the last lines, which say why a program gave up.
constexpr std::size_t kKeptErrorOutput = 2000;

// For the log of a worker that died: more than anyone reads, less than a hostile file can make.
constexpr std::size_t kKeptDiagnostics = 1000;

void keepEnd(std::string& text, std::size_t length) {
    if (text.size() > length)
        text.erase(0, text.size() - length);
}

} // namespace

WorkerProcess::WorkerProcess(const std::filesystem::path& program, Job job)
    : m_job(std::move(job))
    , m_process(program)
    , m_lines(kMaxLineLength) {
    m_record.start = std::chrono::system_clock::now();
    m_process.send(encodeJob(m_job) + "\n");
}

std::optional<Message> WorkerProcess::next(std::chrono::milliseconds timeout) {
    const Clock::time_point deadline = Clock::now() + timeout;
    while (!hasEnded()) {
        try {
            if (auto message = takeLine())
                return message;
        } catch (const ProtocolError& error) {
            m_process.kill();
            return reportDeath(FailureCode::WorkerDied, fmt::format("it sent what no worker sends: {}", error.what()));
        }
        if (m_process.isOutputClosed())
            return reportEndOfProcess();

        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        std::string output;
        m_process.read(untilForcedEnd(std::max(left, 0ms)), output, m_errorOutput);
        m_lines.add(output);
        keepEnd(m_errorOutput, kKeptErrorOutput);
        if (m_cancelTime && !m_wasKilled && Clock::now() >= *m_cancelTime + kPatienceAfterCancel) {
            m_wasKilled = true;
            m_process.kill();
        }
        if (output.empty() && !m_process.isOutputClosed() && Clock::now() >= deadline)
            return std::nullopt;
    }
    return std::nullopt;
}

void WorkerProcess::cancel() {
    if (hasEnded() || m_cancelTime)
        return;
    m_cancelTime = Clock::now();
    m_process.send(std::string(kCancelLine) + "\n");
}

std::optional<Message> WorkerProcess::takeLine() {
    const std::optional<std::string> line = m_lines.next();
    if (!line)
        return std::nullopt;
    return take(decodeMessage(*line));
}

/// Holds the message against the order in which messages may come.
Message WorkerProcess::take(Message message) {
    const auto require = [this](State state, const char* complaint) {
        if (m_state != state)
            throw ProtocolError(complaint);
    };
    std::visit(
        [&](const auto& m) {
            using Type = std::decay_t<decltype(m)>;
            if constexpr (std::is_same_v<Type, Accepted>) {
                require(State::Started, "accepted twice");
                m_state = State::Accepted;
                m_record.accepted = m;
            } else if constexpr (std::is_same_v<Type, Refused>) {
                require(State::Started, "refused after it was accepted");
                m_state = State::Ended;
            } else if constexpr (std::is_same_v<Type, Finished> || std::is_same_v<Type, Failed>) {
                require(State::Accepted, "ended before it was accepted");
                m_state = State::Ended;
            } else if constexpr (std::is_same_v<Type, DiagnosticReport>) {
                require(State::Accepted, "a report before it was accepted");
                if (m_record.diagnostics.size() < kKeptDiagnostics)
                    m_record.diagnostics.push_back(m.diagnostic);
            } else if constexpr (!std::is_same_v<Type, StatusReport>) {
                require(State::Accepted, "a report before it was accepted");
            }
        },
        message);
    if (hasEnded())
        m_process.waitForEnd(kPatienceAtEnd);
    return message;
}

/// The worker's output ended before its last message.
Message WorkerProcess::reportEndOfProcess() {
    const ProcessEnd end = m_process.waitForEnd(kPatienceAtEnd);
    if (m_cancelTime)
        return reportDeath(FailureCode::Cancelled, "the conversion was cancelled");
    const FailureCode code = end.ranPastLimit ? FailureCode::LimitExceeded : FailureCode::WorkerDied;
    return reportDeath(code, fmt::format("the conversion process {}{}", end.description, lastWords()));
}

Message WorkerProcess::reportDeath(FailureCode code, const std::string& why) {
    m_process.waitForEnd(kPatienceAtEnd);
    const bool wasAccepted = m_state == State::Accepted;
    m_state = State::Ended;
    if (m_job.task == Task::Convert)
        removeAbandonedPart(writtenTarget(m_job));

    m_record.failure = Failed{code, why, {}};
    m_record.seconds = std::chrono::duration<double>(Clock::now() - m_start).count();
    appendToLog(m_job, m_record);
    if (wasAccepted)
        return *m_record.failure;
    return Refused{code, why};
}

std::chrono::milliseconds WorkerProcess::untilForcedEnd(std::chrono::milliseconds timeout) const {
    if (!m_cancelTime || m_wasKilled)
        return timeout;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*m_cancelTime + kPatienceAfterCancel - Clock::now());
    return std::clamp(left, 0ms, timeout);
}

std::string WorkerProcess::lastWords() const {
    std::string words = m_errorOutput;
    while (!words.empty() && (words.back() == '\n' || words.back() == ' '))
        words.pop_back();
    return words.empty() ? "" : fmt::format("; it last said: {}", words);
}

Refused refuseUnstarted(const Job& job, const Failure& failure) {
    LogRecord record;
    record.start = std::chrono::system_clock::now();
    record.failure = Failed{failure.code(), failure.what(), failure.where()};
    appendToLog(job, record);
    return {failure.code(), failure.what()};
}

} // namespace orvane::protocol
