#include "worker/RunReporter.h"

#include <algorithm>

namespace orvane::worker {

using namespace protocol;

RunReporter::RunReporter(StarterChannel& channel, const Job& job)
    : m_channel(channel)
    , m_job(job) {
    m_record.start = std::chrono::system_clock::now();
}

void RunReporter::stageReached(JobStage stage, int first, int second) {
    m_channel.offer(StatusReport{stage, first, second});
}

void RunReporter::accept(const Accepted& accepted) {
    const std::lock_guard lock(m_mutex);
    m_record.accepted = accepted;
    m_channel.deliver(accepted);
}

void RunReporter::report(const Diagnostics& diagnostics) {
    const std::lock_guard lock(m_mutex);
    for (const Diagnostic& diagnostic : diagnostics.entries()) {
        m_record.diagnostics.push_back(diagnostic);
        m_channel.offer(DiagnosticReport{diagnostic});
    }
}

void RunReporter::remark(std::string text) {
    const std::lock_guard lock(m_mutex);
    m_record.remarks.push_back(std::move(text));
}

void RunReporter::describe(const SourceReport& source) {
    m_channel.deliver(source);
}
void RunReporter::describe(const PageReport& page) {
    m_channel.deliver(page);
}

void RunReporter::describe(const PictureReport& picture) {
    const std::lock_guard lock(m_mutex);
    m_record.pictures.push_back(picture);
    m_channel.deliver(picture);
}

void RunReporter::finish(const Counts& counts) {
    const std::lock_guard lock(m_mutex);
    if (!isFirstEnd())
        return;
    m_record.counts = counts;
    writeLog();
    m_channel.deliver(Finished{counts, static_cast<int>(m_record.diagnostics.size()), seconds()});
}

void RunReporter::fail(const Failed& failure) {
    const std::lock_guard lock(m_mutex);
    if (!isFirstEnd())
        return;
    m_record.failure = failure;
    writeLog();
    if (m_record.accepted)
        m_channel.deliver(failure);
    else
        m_channel.deliver(Refused{failure.code, failure.message});
}

bool RunReporter::isFirstEnd() {
    const bool isFirst = !m_hasEnded;
    m_hasEnded = true;
    return isFirst;
}

double RunReporter::seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
}

void RunReporter::writeLog() {
    // Pages are read side by side and report as they come; readers of the log want them in order.
    std::stable_sort(m_record.diagnostics.begin(), m_record.diagnostics.end(),
                     [](const Diagnostic& a, const Diagnostic& b) { return a.page < b.page; });
    m_record.seconds = seconds();
    appendToLog(m_job, m_record);
}

} // namespace orvane::worker
