#include "cli/Commands.h"

#include "cli/ConversionPlan.h"
#include "cli/JobFollower.h"
#include "cli/Password.h"
#include "cli/Progress.h"
#include "cli/Report.h"
#include "cli/UsageError.h"

#include <algorithm>
#include <filesystem>
#include <mutex>
#include <ostream>
#include <thread>

#include <fmt/format.h>

namespace orvane::cli {
namespace {

using protocol::Job;
using protocol::StatusReport;

/// Converts all files, several at the same time, and tells about each as it is done.
class Batch {
public:
    Batch(const ConvertOptions& options, const Streams& streams, std::vector<Job> jobs)
        : m_options(options)
        , m_streams(streams)
        , m_progress(streams.err, errorOutputAudience())
        , m_jobs(std::move(jobs))
        , m_results(m_jobs.size(), ExitCode::Done) {}

    ExitCode run() {
        {
            std::vector<std::jthread> threads;
            for (int i = 1; i < concurrentJobs(m_options, m_jobs.size()); ++i)
                threads.emplace_back([this] { takeJobs(); });
            takeJobs();
        }
        m_progress.clear();
        const auto failed =
            std::find_if(m_results.begin(), m_results.end(), [](ExitCode c) { return c != ExitCode::Done; });
        return failed == m_results.end() ? ExitCode::Done : *failed;
    }

private:
    void takeJobs() {
        while (true) {
            std::size_t index = 0;
            {
                const std::lock_guard lock(m_mutex);
                if (m_next == m_jobs.size())
                    return;
                index = m_next++;
            }
            const Outcome outcome = runJob(m_jobs[index], [this](const StatusReport& status) { showPages(status); });
            const std::lock_guard lock(m_mutex);
            m_results[index] = exitCodeOf(outcome);
            tell(outcome);
            showFiles(++m_done);
        }
    }

    void showPages(const StatusReport& status) {
        if (m_jobs.size() == 1 && status.stage == JobStage::PageOfPages)
            m_progress.show(status.first, status.second, "pages");
    }

    void showFiles(int done) {
        if (m_jobs.size() > 1)
            m_progress.show(done, static_cast<int>(m_jobs.size()), "files");
    }

    void tell(const Outcome& outcome) {
        m_progress.clear();
        if (m_options.json)
            m_streams.out << conversionJson(outcome) << std::endl;
        else if (outcome.finished)
            m_streams.out << successLine(outcome) << std::endl;
        if (outcome.failure)
            m_streams.err << failureLine(outcome) << std::endl;
    }

    const ConvertOptions& m_options;
    const Streams& m_streams;
    Progress m_progress;
    std::vector<Job> m_jobs;
    std::mutex m_mutex;
    std::size_t m_next = 0;
    int m_done = 0;
    std::vector<ExitCode> m_results;
};

} // namespace

ExitCode convert(const ConvertOptions& options, const Streams& streams) {
    std::vector<Job> jobs;
    try {
        jobs = planConversions(options, findPassword(options.passwordFile));
    } catch (const UsageError& error) {
        streams.err << "orvane: " << error.what() << "\n";
        return ExitCode::Usage;
    }
    if (options.outputFolder) {
        std::error_code error;
        std::filesystem::create_directories(*options.outputFolder, error);
        if (error) {
            streams.err << fmt::format("orvane: the folder {} cannot be made: {}\n", *options.outputFolder,
                                       error.message());
            return ExitCode::Output;
        }
    }
    return Batch(options, streams, std::move(jobs)).run();
}

} // namespace orvane::cli
