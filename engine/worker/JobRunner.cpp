#include "worker/JobRunner.h"

#include "base/Failure.h"
#include "base/FileStem.h"
#include "base/PageRange.h"
#include "base/PictureStore.h"
#include "layout/Layout.h"
#include "layout/inspect/InspectPage.h"
#include "pdf/PdfDocument.h"
#include "pictures/PictureExtractor.h"
#include "protocol/PartFile.h"
#include "worker/Capabilities.h"
#include "worker/ContentAudit.h"
#include "worker/DrawingPainter.h"
#include "worker/FontCarrier.h"
#include "worker/PageReader.h"
#include "worker/PictureFolder.h"
#include "worker/ScratchFolder.h"
#include "worker/SourceFile.h"
#include "worker/TargetFile.h"
#include "worker/WriterChoice.h"

#include <fstream>
#include <new>

#include <fmt/format.h>

namespace orvane::worker {
namespace {

using namespace protocol;

layout::LayoutMode layoutMode(Layout layout) {
    switch (layout) {
    case Layout::TruePage:
        return layout::LayoutMode::TruePage;
    case Layout::Continuous:
        return layout::LayoutMode::Continuous;
    case Layout::PlainText:
        return layout::LayoutMode::PlainText;
    case Layout::Flowing:
    case Layout::Images:
        break;
    }
    return layout::LayoutMode::Flowing;
}

/// True page shows forms as they are printed.
FieldReading fieldReading(Layout layout) {
    return layout == Layout::TruePage ? FieldReading::AsDrawn : FieldReading::AsControls;
}

ScanReading scanReading(Layout layout) {
    return layout == Layout::Flowing ? ScanReading::AsText : ScanReading::AsPicture;
}

layout::LayoutRequest layoutRequest(const Job& job) {
    return {layoutMode(job.layout), job.pictures == Pictures::Remove, job.characterSpacing == CharacterSpacing::Exact};
}

/// The layouts without pages leave out by promise what pages have beside their text.
bool hasPages(Layout layout) {
    return layout == Layout::Flowing || layout == Layout::TruePage;
}

/// Whether pictures are read at all: not those that the document would leave out.
bool showsPictures(const Job& job) {
    return job.pictures == Pictures::Keep && hasPages(job.layout);
}

AuditScope auditScope(const Job& job) {
    return {hasPages(job.layout), showsPictures(job), job.layout == Layout::Flowing};
}

void requireOtherFile(const Job& job) {
    std::error_code error;
    if (job.target.empty())
        throw Failure(FailureCode::InvalidRequest, "no file to write is named");
    if (std::filesystem::equivalent(job.source, job.target, error))
        throw Failure(FailureCode::InvalidRequest, fmt::format("{} would overwrite itself", job.source));
}

void requireNotCancelled(const RunReporter& reporter) {
    if (reporter.isCancelled())
        throw Failure(FailureCode::Cancelled, "the conversion was cancelled");
}

void tellOfCutRange(const PageSelection& selection, const Job& job, int pageCount, Diagnostics& diagnostics) {
    if (selection.wasCut)
        diagnostics.add(
            DiagnosticKind::PagesOutOfRange, 0,
            fmt::format("the page range {} was cut to the {} pages of the document", job.pageRange, pageCount));
}

PictureReport reportOf(const pictures::PictureFile& file) {
    PictureReport report{file.name, file.width, file.height, file.pages, {}};
    for (const pictures::PictureFile::Part& part : file.parts)
        report.parts.push_back({part.objectNumber, part.x, part.y});
    return report;
}

SourceReport describe(const pdf::PdfDocument& document) {
    const pdf::Metadata metadata = document.metadata();
    return {document.pdfVersion(),
            document.isEncrypted(),
            !document.structureTree().empty(),
            !document.outline().empty(),
            metadata.title,
            metadata.author,
            metadata.subject,
            metadata.keywords,
            metadata.creator,
            metadata.producer,
            metadata.created,
            metadata.modified,
            metadata.language};
}

/// Lends `object` out through `place` for as long as it lives.
template<typename T>
class Lent {
public:
    Lent(std::mutex& mutex, T*& place, T& object)
        : m_mutex(mutex)
        , m_place(place) {
        set(&object);
    }
    ~Lent() { set(nullptr); }
    Lent(const Lent&) = delete;
    Lent& operator=(const Lent&) = delete;

private:
    void set(T* object) {
        const std::lock_guard lock(m_mutex);
        m_place = object;
    }

    std::mutex& m_mutex;
    T*& m_place;
};

} // namespace

void JobRunner::run() {
    try {
        if (m_job.task == Task::Inspect)
            inspect();
        else if (m_job.task == Task::Draw)
            draw();
        else if (m_job.layout == Layout::Images)
            extractPictures();
        else
            convert();
    } catch (const Failure& failure) {
        m_reporter.fail({failure.code(), failure.what(), failure.where()});
    } catch (const std::bad_alloc&) {
        m_reporter.fail({FailureCode::LimitExceeded,
                         fmt::format("the document needs more than the {} MB of memory a conversion may use",
                                     m_job.limits.memoryMegabytes),
                         {}});
    } catch (const std::exception& error) {
        m_reporter.fail({FailureCode::Internal, fmt::format("a fault of the program: {}", error.what()), {}});
    }
}

void JobRunner::convert() {
    requireSupported(m_job.layout, m_job.format);
    m_reporter.stageReached(JobStage::Opening, 0, 0);
    checkSource(m_job.source);
    requireOtherFile(m_job);
    const pdf::Passwords passwords{m_job.userPassword, m_job.ownerPassword};
    const pdf::PdfDocument source = pdf::PdfDocument::open(m_job.source, passwords);
    const PageSelection selection = selectPages(m_job.pageRange, source.pageCount());

    TargetFile target(m_job.target);
    const Lent<AbandonableOutput> lentTarget(m_mutex, m_target, target);
    ScratchFolder scratch(m_job.scratchFolder);
    const Lent lentScratch(m_mutex, m_scratch, scratch);
    m_reporter.accept({source.pageCount(), static_cast<int>(selection.pages.size())});

    Diagnostics diagnostics;
    tellOfCutRange(selection, m_job, source.pageCount(), diagnostics);
    m_reporter.stageReached(JobStage::Reading, 0, 0);
    PictureStore pictures(scratch.path());
    const layout::LayoutParameters parameters;
    PagesRead read =
        readPages(source,
                  {m_job.source, passwords, selection.pages, showsPictures(m_job) ? &pictures : nullptr,
                   fieldReading(m_job.layout), parameters, m_job.limits.threads, scanReading(m_job.layout)},
                  m_reporter);

    m_reporter.stageReached(JobStage::Generating, 0, 0);
    const layout::DocumentFacts facts{source.metadata(), source.outline(), source.structureTree(),
                                      carriedFonts(m_job, source, read.pages, parameters)};
    document::Document document =
        layout::layoutDocument(std::move(read.pages), facts, layoutRequest(m_job), parameters, m_reporter, diagnostics);
    requireNotCancelled(m_reporter);
    if (showsPictures(m_job))
        paintDrawings(document, pictures);
    writeDocument(m_job.format, document, pictures, target.part(), diagnostics);
    const Counts counts = auditContent(read.inventories, document, auditScope(m_job), diagnostics);
    requireNotCancelled(m_reporter);
    m_reporter.report(diagnostics);
    target.commit();

    m_reporter.stageReached(JobStage::DocumentComplete, 0, 0);
    m_reporter.finish(counts);
}

void JobRunner::extractPictures() {
    m_reporter.stageReached(JobStage::Opening, 0, 0);
    checkSource(m_job.source);
    if (m_job.target.empty())
        throw Failure(FailureCode::InvalidRequest, "no folder for the pictures is named");
    const pdf::PdfDocument source = pdf::PdfDocument::open(m_job.source, {m_job.userPassword, m_job.ownerPassword});
    const PageSelection selection = selectPages(m_job.pageRange, source.pageCount());
    PictureFolder folder(m_job.target, partPath(writtenTarget(m_job)));
    const Lent<AbandonableOutput> lentTarget(m_mutex, m_target, folder);
    m_reporter.accept({source.pageCount(), static_cast<int>(selection.pages.size())});

    Diagnostics diagnostics;
    tellOfCutRange(selection, m_job, source.pageCount(), diagnostics);
    m_reporter.report(diagnostics);
    const pictures::PictureNames names(m_job.target, fileStem(m_job.source), source.pageCount());
    const pictures::Extracted extracted =
        pictures::extractPictures(source, {selection.pages, m_job.imageFormat}, names, folder, m_reporter,
                                  [this](const Diagnostics& ofPage) { m_reporter.report(ofPage); });
    if (!folder.finish())
        return;
    for (const pictures::PictureFile& file : extracted.files)
        m_reporter.describe(reportOf(file));
    m_reporter.stageReached(JobStage::ImagesComplete, 0, 0);
    Counts counts;
    counts.picturesRead = extracted.pictures;
    counts.picturesWritten = static_cast<std::int64_t>(extracted.files.size());
    m_reporter.finish(counts);
}

void JobRunner::inspect() {
    checkSource(m_job.source);
    const pdf::PdfDocument source = pdf::PdfDocument::open(m_job.source, {m_job.userPassword, m_job.ownerPassword});
    const PageSelection selection = selectPages(m_job.pageRange, source.pageCount());
    m_reporter.accept({source.pageCount(), static_cast<int>(selection.pages.size())});
    m_reporter.describe(describe(source));
    for (const int page : selection.pages) {
        requireNotCancelled(m_reporter);
        const pdf::PageInfo info = source.pageInfo(page);
        m_reporter.describe(PageReport{page, info.width, info.height, info.rotation, info.label});
    }
    m_reporter.finish({});
}

void JobRunner::draw() {
    const std::optional<layout::InspectStage> stage = layout::inspectStageFromName(m_job.stage);
    if (!stage)
        throw Failure(FailureCode::InvalidRequest, fmt::format("there is no stage \"{}\"", m_job.stage));
    checkSource(m_job.source);
    requireOtherFile(m_job);
    const pdf::Passwords passwords{m_job.userPassword, m_job.ownerPassword};
    const pdf::PdfDocument source = pdf::PdfDocument::open(m_job.source, passwords);
    const int page = selectPages(m_job.pageRange, source.pageCount()).pages.front();

    TargetFile target(m_job.target);
    const Lent<AbandonableOutput> lentTarget(m_mutex, m_target, target);
    m_reporter.accept({source.pageCount(), 1});
    const std::vector<int> allPages = selectPages("", source.pageCount()).pages;
    const layout::LayoutParameters parameters;
    PagesRead read = readPages(
        source,
        {m_job.source, passwords, allPages, nullptr, FieldReading::AsControls, parameters, m_job.limits.threads},
        m_reporter);
    Diagnostics diagnostics;
    std::ofstream file(target.part(), std::ios::binary);
    file << layout::inspectPage(std::move(read.pages), page, *stage, parameters, diagnostics);
    if (!file.flush())
        throw Failure(FailureCode::TargetUnwritable, fmt::format("{} cannot be written", m_job.target));
    requireNotCancelled(m_reporter);
    m_reporter.report(diagnostics);
    target.commit();
    m_reporter.finish({});
}

bool JobRunner::forceEnd(StarterChannel::ForcedEnd reason) {
    {
        const std::lock_guard lock(m_mutex);
        if (m_target != nullptr && !m_target->abandon())
            return false;
        if (m_scratch != nullptr)
            m_scratch->remove();
    }
    if (reason == StarterChannel::ForcedEnd::CancelIgnored)
        m_reporter.fail({FailureCode::Cancelled, "the conversion was cancelled", {}});
    else
        m_reporter.fail(
            {FailureCode::LimitExceeded,
             fmt::format("the conversion took longer than the {} seconds it may take", m_job.limits.seconds),
             {}});
    return true;
}

} // namespace orvane::worker
