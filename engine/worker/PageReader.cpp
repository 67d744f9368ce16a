#include "worker/PageReader.h"

#include "layout/Layout.h"
#include "worker/ContentCounter.h"
#include "worker/FigurePainter.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>

#include <fmt/format.h>

namespace orvane::worker {
namespace {

constexpr int kMaxThreads = 4;

// Opening a document once more takes about as long as reading a few pages.
constexpr int kPagesWorthAThread = 4;

layout::PageText emptyPage(const pdf::PdfDocument& document, int number) {
    layout::PageText page;
    page.number = number;
    try {
        const pdf::PageInfo info = document.pageInfo(number);
        page.width = info.width;
        page.height = info.height;
    } catch (const Failure&) {
        // Its size belongs to what cannot be read; layout gives such a page the size of its neighbours.
    }
    return page;
}

/// The threads' common work: takes page after page until none is left.
class PageWork {
public:
    PageWork(const PageReading& reading, RunReporter& reporter)
        : m_reading(reading)
        , m_reporter(reporter) {
        m_result.pages.resize(reading.pages.size());
    }

    void takePages(const pdf::PdfDocument& document) {
        try {
            for (std::size_t index = m_next++; index < m_reading.pages.size() && !m_hasFailed; index = m_next++)
                takePage(document, index);
        } catch (...) {
            const std::lock_guard lock(m_mutex);
            if (!m_error)
                m_error = std::current_exception();
            m_hasFailed = true;
        }
    }

    PagesRead result() {
        if (m_error)
            std::rethrow_exception(m_error);
        return std::move(m_result);
    }

private:
    void takePage(const pdf::PdfDocument& document, std::size_t index) {
        if (m_reporter.isCancelled())
            throw Failure(FailureCode::Cancelled, "the conversion was cancelled");
        Diagnostics diagnostics;
        protocol::Counts counts;
        m_result.pages[index] = readOrReplace(document, m_reading.pages[index], diagnostics, counts);

        const std::lock_guard lock(m_mutex);
        m_result.counts.charactersRead += counts.charactersRead;
        m_result.counts.picturesRead += counts.picturesRead;
        m_result.counts.linksRead += counts.linksRead;
        m_reporter.report(diagnostics);
        m_reporter.stageReached(JobStage::PageOfPages, ++m_done, static_cast<int>(m_reading.pages.size()));
    }

    layout::PageText readOrReplace(const pdf::PdfDocument& document, int number, Diagnostics& diagnostics,
                                   protocol::Counts& counts) {
        try {
            return read(document, number, diagnostics, counts);
        } catch (const std::bad_alloc&) {
            throw;
        } catch (const std::exception& error) {
            const auto* failure = dynamic_cast<const Failure*>(&error);
            if (failure != nullptr && failure->code() == FailureCode::Cancelled)
                throw;
            diagnostics.add(DiagnosticKind::PageUnreadable, number, error.what());
            return emptyPage(document, number);
        }
    }

    layout::PageText read(const pdf::PdfDocument& document, int number, Diagnostics& diagnostics,
                          protocol::Counts& counts) {
        const pdf::PageContent content = document.readPage(number, {m_reading.pictures}, diagnostics);
        countRead(content, counts);
        layout::PageText page = layout::readPageText(content, m_reading.parameters, diagnostics);
        if (m_reading.pictures != nullptr)
            paintFigures(document, page, *m_reading.pictures, diagnostics);
        return page;
    }

    const PageReading& m_reading;
    RunReporter& m_reporter;
    PagesRead m_result;
    std::atomic<std::size_t> m_next = 0;
    std::atomic<bool> m_hasFailed = false;
    std::mutex m_mutex;
    int m_done = 0;
    std::exception_ptr m_error;
};

int threadsFor(const PageReading& reading) {
    const int most = reading.threads > 0
                         ? reading.threads
                         : std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMaxThreads);
    return std::clamp(static_cast<int>(reading.pages.size()) / kPagesWorthAThread, 1, most);
}

} // namespace

PagesRead readPages(const pdf::PdfDocument& document, const PageReading& reading, RunReporter& reporter) {
    PageWork work(reading, reporter);
    {
        std::vector<std::jthread> helpers;
        for (int helper = 1; helper < threadsFor(reading); ++helper)
            helpers.emplace_back([&work, &reading] {
                try {
                    work.takePages(pdf::PdfDocument::open(reading.source, reading.passwords));
                } catch (const std::exception&) {
                    // The source opened a moment ago. Whatever keeps it from opening again, the other threads take the
                    // pages.
                }
            });
        work.takePages(document);
    }
    return work.result();
}

} // namespace orvane::worker
