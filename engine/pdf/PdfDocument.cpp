#include "pdf/PdfDocument.h"

#include "base/Failure.h"
#include "pdf/DocumentMetadata.h"
#include "pdf/DocumentOpener.h"
#include "pdf/LinkReader.h"
#include "pdf/OutlineReader.h"
#include "pdf/PageReader.h"
#include "pdf/PageSpace.h"
#include "pdf/PopplerRuntime.h"
#include "pdf/RegionPainter.h"
#include "pdf/StructureReader.h"
#include "pdf/TextString.h"

#include <chrono>

#include <fmt/format.h>

#include <Annot.h>
#include <Catalog.h>
#include <PDFDoc.h>
#include <Page.h>

namespace orvane::pdf {
namespace {

/// A page that takes longer than this never ends: content that calls itself in endless variations, or millions of
/// operators.
constexpr std::chrono::seconds kPageTimeBudget{30};

/// Stops the library when the page's time is up.
class PageTimer {
public:
    /// Signature of the library's abort callback.
    static bool isOver(void* timer) {
        auto* self = static_cast<PageTimer*>(timer);
        self->m_isOver = self->m_isOver || std::chrono::steady_clock::now() - self->m_start > kPageTimeBudget;
        return self->m_isOver;
    }
    bool isOver() const { return m_isOver; }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    bool m_isOver = false;
};

/// Filled form fields are part of what a reader sees; other annotations are told apart from the page's content.
bool isPaintedAnnotation(::Annot* annotation, void*) {
    return annotation->getType() == ::Annot::typeWidget;
}

void tellComplaints(const ComplaintCollector& complaints, int page, Diagnostics& diagnostics) {
    if (complaints.count() == 1)
        diagnostics.add(DiagnosticKind::ContentDamaged, page, complaints.first());
    else if (complaints.count() > 1)
        diagnostics.add(
            DiagnosticKind::ContentDamaged, page,
            fmt::format("{} faults in the page's content, the first: {}", complaints.count(), complaints.first()));
}

} // namespace

struct PdfDocument::Impl {
    std::unique_ptr<::PDFDoc> document;
    PictureCache pictures;

    ::Page* page(int number) {
        return number >= 1 && number <= document->getNumPages() ? document->getPage(number) : nullptr;
    }
};

PdfDocument PdfDocument::open(const std::filesystem::path& file, const Passwords& passwords) {
    preparePoppler();
    const ComplaintCollector silence;
    auto impl = std::make_unique<Impl>();
    impl->document = openDocument(file, passwords);
    return PdfDocument(std::move(impl));
}

PdfDocument::PdfDocument(std::unique_ptr<Impl> impl)
    : m_impl(std::move(impl)) {}
PdfDocument::PdfDocument(PdfDocument&&) noexcept = default;
PdfDocument& PdfDocument::operator=(PdfDocument&&) noexcept = default;
PdfDocument::~PdfDocument() = default;

int PdfDocument::pageCount() const {
    return m_impl->document->getNumPages();
}

bool PdfDocument::isEncrypted() const {
    return m_impl->document->isEncrypted();
}

std::string PdfDocument::pdfVersion() const {
    return fmt::format("{}.{}", m_impl->document->getPDFMajorVersion(), m_impl->document->getPDFMinorVersion());
}

Metadata PdfDocument::metadata() const {
    const ComplaintCollector silence;
    return readMetadata(*m_impl->document);
}

std::vector<OutlineEntry> PdfDocument::outline() const {
    const ComplaintCollector silence;
    return readOutline(*m_impl->document);
}

std::vector<StructureElement> PdfDocument::structureTree() const {
    const ComplaintCollector silence;
    return readStructureTree(*m_impl->document);
}

PageInfo PdfDocument::pageInfo(int number) const {
    const ComplaintCollector silence;
    PageInfo info;
    ::Page* page = m_impl->page(number);
    if (!page)
        return info;
    const Rect box = pageBox(*page);
    info.width = box.width();
    info.height = box.height();
    info.rotation = page->getRotate();
    GooString label;
    if (m_impl->document->getCatalog()->indexToLabel(number - 1, &label))
        info.label = textFromPdf(&label);
    return info;
}

PageContent PdfDocument::readPage(int number, const PageReadOptions& options, Diagnostics& diagnostics) const {
    const ComplaintCollector complaints;
    PageContent content;
    content.number = number;
    ::Page* page = m_impl->page(number);
    if (!page || !page->isOk()) {
        diagnostics.add(DiagnosticKind::PageUnreadable, number, "the page cannot be read");
        return content;
    }
    const Rect box = pageBox(*page);
    content.width = box.width();
    content.height = box.height();
    content.rotation = page->getRotate();

    PageTimer timer;
    PageReader reader(content, *m_impl->document->getXRef(), m_impl->pictures, options.pictures, diagnostics);
    const double dpi = 72.0 * userUnitOf(*page);
    page->display(&reader, dpi, dpi, 0, false, true, false, &PageTimer::isOver, &timer, isPaintedAnnotation, nullptr);
    content.links = readLinks(*page, *m_impl->document, diagnostics);

    if (timer.isOver())
        diagnostics.add(DiagnosticKind::TimeBudgetExceeded, number,
                        "the page's content takes too long; the rest of it is left out");
    tellComplaints(complaints, number, diagnostics);
    return content;
}

PictureDataPtr PdfDocument::renderRegion(int page, const Rect& region, double dotsPerInch) const {
    const ComplaintCollector silence;
    return paintRegion(*m_impl->document, page, region, dotsPerInch);
}

} // namespace orvane::pdf
