#include "worker/PageReader.h"

#include "base/Failure.h"
#include "layout/Layout.h"
#include "layout/text/DrawnBoxes.h"
#include "worker/FigurePainter.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <iterator>
#include <mutex>
#include <thread>

#include <fmt/format.h>

namespace orvane::worker {
namespace {

constexpr int kMaxThreads = 4;

// A further thread opens the document once more, which is worth while only when the pages take longer than that.
constexpr std::chrono::milliseconds kHelpersPatience{100};

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

/// A full disk or a cancelled job is not healed by leaving out a page.
bool isFaultOfThePage(FailureCode code) {
    return code != FailureCode::Cancelled && code != FailureCode::TargetUnwritable &&
           code != FailureCode::LimitExceeded;
}

/// The threads' common work: takes page after page until none is left.
class PageWork {
public:
    PageWork(const PageReading& reading, RunReporter& reporter)
        : m_reading(reading)
        , m_reporter(reporter) {
        m_result.pages.resize(reading.pages.size());
        m_result.inventories.resize(reading.pages.size());
    }

    void takePages(const pdf::PdfDocument& document) {
        try {
            for (std::size_t index = m_next++; index < m_reading.pages.size(); index = m_next++)
                takePage(document, index);
        } catch (...) {
            const std::lock_guard lock(m_mutex);
            if (!m_error)
                m_error = std::current_exception();
            m_next = m_reading.pages.size();
        }
        const std::lock_guard lock(m_mutex); // a helper is either still before its look at m_next, or waits already
        m_noMorePages.notify_all();
    }

    /// Takes pages too if there are some left after a while, from a document of its own.
    void help() {
        {
            std::unique_lock lock(m_mutex);
            if (m_noMorePages.wait_for(lock, kHelpersPatience, [this] { return m_next >= m_reading.pages.size(); }))
                return;
        }
        try {
            takePages(pdf::PdfDocument::open(m_reading.source, m_reading.passwords));
        } catch (const std::exception&) {
            // The source opened a moment ago. Whatever keeps it from opening again, the other threads take the pages.
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
        m_result.pages[index] =
            readOrReplace(document, m_reading.pages[index], diagnostics, m_result.inventories[index]);

        const std::lock_guard lock(m_mutex);
        m_reporter.report(diagnostics);
        m_reporter.stageReached(JobStage::PageOfPages, ++m_done, static_cast<int>(m_reading.pages.size()));
    }

    layout::PageText readOrReplace(const pdf::PdfDocument& document, int number, Diagnostics& diagnostics,
                                   PageInventory& inventory) {
        try {
            return read(document, number, diagnostics, inventory);
        } catch (const Failure& failure) {
            if (!isFaultOfThePage(failure.code()))
                throw;
            diagnostics.add(DiagnosticKind::PageUnreadable, number, failure.what());
        } catch (const std::bad_alloc&) {
            throw;
        } catch (const std::exception& error) {
            diagnostics.add(DiagnosticKind::PageUnreadable, number, error.what());
        }
        return emptyPage(document, number);
    }

    layout::PageText read(const pdf::PdfDocument& document, int number, Diagnostics& diagnostics,
                          PageInventory& inventory) {
        pdf::PageContent content = document.readPage(number, {m_reading.pictures}, diagnostics);
        const std::vector<pdf::FormField> fields = content.fields;
        if (m_reading.fields == FieldReading::AsDrawn)
            content.fields.clear();
        else
            addDrawnBoxes(content);
        layout::PageText page = layout::readPageText(content, m_reading.parameters, diagnostics);
        if (m_reading.pictures != nullptr && m_reading.scans == ScanReading::AsText)
            findIllustrations(document, page, m_reading.parameters, diagnostics);
        if (m_reading.pictures != nullptr)
            paintFigures(document, page, *m_reading.pictures, diagnostics);
        inventory = inventoryOf(content, fields, page, m_reading.parameters);
        return page;
    }

    void addDrawnBoxes(pdf::PageContent& page) const {
        std::vector<pdf::FormField> boxes = layout::findDrawnBoxes(page, m_reading.parameters.drawnBoxes);
        page.fields.insert(page.fields.end(), std::make_move_iterator(boxes.begin()),
                           std::make_move_iterator(boxes.end()));
    }

    const PageReading& m_reading;
    RunReporter& m_reporter;
    PagesRead m_result;
    std::atomic<std::size_t> m_next = 0;
    std::mutex m_mutex;
    std::condition_variable m_noMorePages;
    int m_done = 0;
    std::exception_ptr m_error;
};

int threadsFor(const PageReading& reading) {
    const int most = reading.threads > 0
                         ? reading.threads
                         : std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMaxThreads);
    return std::clamp(static_cast<int>(reading.pages.size()), 1, most);
}

} // namespace

PagesRead readPages(const pdf::PdfDocument& document, const PageReading& reading, RunReporter& reporter) {
    PageWork work(reading, reporter);
    {
        std::vector<std::jthread> helpers;
        for (int helper = 1; helper < threadsFor(reading); ++helper)
            helpers.emplace_back([&work] { work.help(); });
        work.takePages(document);
    }
    return work.result();
}

} // namespace orvane::worker
