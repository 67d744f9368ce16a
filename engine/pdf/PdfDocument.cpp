#include "pdf/PdfDocument.h"

#include "pdf/AccentComposer.h"
#include "pdf/AnnotationReader.h"
#include "pdf/DocumentMetadata.h"
#include "pdf/DocumentOpener.h"
#include "pdf/DoublePainting.h"
#include "pdf/FaceLook.h"
#include "pdf/FontPacker.h"
#include "pdf/FormReader.h"
#include "pdf/GlyphInk.h"
#include "pdf/InkFinder.h"
#include "pdf/LinkReader.h"
#include "pdf/MaskedPictures.h"
#include "pdf/OutlineReader.h"
#include "pdf/PagePicturesImpl.h"
#include "pdf/PagePlayer.h"
#include "pdf/PageReader.h"
#include "pdf/PageSpace.h"
#include "pdf/PopplerRuntime.h"
#include "pdf/RegionPainter.h"
#include "pdf/StructureReader.h"
#include "pdf/TextString.h"
#include "pdf/UnicodeRepair.h"

#include <fmt/format.h>

#include <Catalog.h>
#include <PDFDoc.h>
#include <Page.h>

namespace orvane::pdf {
namespace {

void tellComplaints(const ComplaintCollector& complaints, int page, Diagnostics& diagnostics) {
    if (complaints.count() == 1)
        diagnostics.add(DiagnosticKind::ContentDamaged, page, complaints.first());
    else if (complaints.count() > 1)
        diagnostics.add(
            DiagnosticKind::ContentDamaged, page,
            fmt::format("{} faults in the page's content, the first: {}", complaints.count(), complaints.first()));
}

/// What `play` makes of a page as it stands, or without its surplus restores if it has such.
template<typename Play>
auto repaired(const Play& play, Diagnostics& diagnostics) {
    const ComplaintCollector complaints;
    Diagnostics told;
    auto made = play(ContentRepair::None, told);
    if (complaints.hasSurplusRestore()) {
        told = Diagnostics();
        made = play(ContentRepair::SurplusRestores, told);
    }
    diagnostics.append(told);
    return made;
}

} // namespace

struct PdfDocument::Impl {
    std::unique_ptr<std::string> bytes;
    std::unique_ptr<::PDFDoc> document;
    PictureCache pictures;
    UnicodeRepair unicode;
    FaceLook faces;
    GlyphInk ink;

    explicit Impl(OpenDocument open)
        : bytes(std::move(open.bytes))
        , document(std::move(open.document))
        , unicode(*document->getXRef())
        , faces(*document->getXRef())
        , ink(*document->getXRef()) {}

    /// What the page's content paints, in its final form.
    PageContent play(::Page& page, const PageReadOptions& options, Diagnostics& diagnostics, TimeBudget& budget,
                     ContentRepair repair) {
        PageContent content;
        const Rect box = pageBox(page);
        content.number = page.getNum();
        content.width = box.width();
        content.height = box.height();
        content.rotation = page.getRotate();
        PageReader reader({*document, content, pictures, options.pictures, diagnostics, budget});
        PaintRanges painted;
        playPage(page, *document, reader, budget, repair, {}, PlayedAnnotations::PartOfPage,
                 {[&](std::size_t number) { painted[number].from = reader.paintOrder(); },
                  [&](std::size_t number) { painted[number].to = reader.paintOrder(); }});
        content.annotations = readAnnotations(page, painted);
        unicode.repair(content, reader.glyphs().sources(), diagnostics);
        faces.apply(content, reader.glyphs().sources());
        ink.apply(content, reader.glyphs().sources());
        dropDoublePaintedGlyphs(content);
        composeAccents(content);
        if (options.pictures)
            paintMaskedPictures(content, reader.transparency().maskedPictures(), page, *document, repair,
                                *options.pictures, diagnostics);
        return content;
    }

    /// The pictures that the page's content paints.
    std::unique_ptr<PagePictures::Impl> collect(::Page& page, TimeBudget& budget, ContentRepair repair,
                                                Diagnostics& diagnostics) {
        PictureCollector collector(*document, budget);
        playPage(page, *document, collector, budget, repair, {}, PlayedAnnotations::All);
        if (collector.oversizedInlines() > 0)
            diagnostics.add(DiagnosticKind::PictureUnreadable, page.getNum(),
                            fmt::format("{} inline pictures are too large", collector.oversizedInlines()));
        return std::make_unique<PagePictures::Impl>(
            PagePictures::Impl{*document, &page, repair, collector.takePainted(), collector.takeCollected(), {}});
    }

    ::Page* page(int number) {
        return number >= 1 && number <= document->getNumPages() ? document->getPage(number) : nullptr;
    }
};

PdfDocument PdfDocument::open(const std::filesystem::path& file, const Passwords& passwords) {
    preparePoppler();
    const ComplaintCollector silence;
    return PdfDocument(std::make_unique<Impl>(openDocument(file, passwords)));
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
    const Rect box = paperBox(*page);
    info.width = box.width();
    info.height = box.height();
    info.rotation = page->getRotate();
    GooString label;
    if (m_impl->document->getCatalog()->indexToLabel(number - 1, &label))
        info.label = textFromPdf(&label);
    return info;
}

PageContent PdfDocument::readPage(int number, const PageReadOptions& options, Diagnostics& diagnostics) const {
    ::Page* page = m_impl->page(number);
    if (!page || !page->isOk()) {
        diagnostics.add(DiagnosticKind::PageUnreadable, number, "the page cannot be read");
        PageContent content;
        content.number = number;
        return content;
    }
    const ComplaintCollector complaints;
    TimeBudget budget(options.timeBudget);
    Diagnostics own;
    PageContent content = m_impl->play(*page, options, own, budget, ContentRepair::None);
    if (complaints.hasSurplusRestore()) {
        own = Diagnostics();
        content = m_impl->play(*page, options, own, budget, ContentRepair::SurplusRestores);
    }
    diagnostics.append(own);
    content.fields = readFormFields(*page);
    content.links = readLinks(*page, *m_impl->document, diagnostics);

    if (budget.isSpent())
        diagnostics.add(DiagnosticKind::TimeBudgetExceeded, number,
                        "the page's content takes too long; the rest of it is left out");
    tellComplaints(complaints, number, diagnostics);
    return content;
}

PagePictures PdfDocument::paintedPictures(int number, Diagnostics& diagnostics) const {
    ::Page* page = m_impl->page(number);
    if (!page || !page->isOk()) {
        diagnostics.add(DiagnosticKind::PageUnreadable, number, "the page cannot be read");
        return PagePictures(
            std::make_unique<PagePictures::Impl>(PagePictures::Impl{*m_impl->document, nullptr, {}, {}, {}, {}}));
    }
    const ComplaintCollector complaints;
    TimeBudget budget(PageReadOptions().timeBudget);
    Diagnostics own;
    auto pictures = m_impl->collect(*page, budget, ContentRepair::None, own);
    if (complaints.hasSurplusRestore()) {
        own = Diagnostics();
        pictures = m_impl->collect(*page, budget, ContentRepair::SurplusRestores, own);
    }
    diagnostics.append(own);
    if (budget.isSpent())
        diagnostics.add(DiagnosticKind::TimeBudgetExceeded, number,
                        "the page's content takes too long; the rest of it is left out");
    tellComplaints(complaints, number, diagnostics);
    return PagePictures(std::move(pictures));
}

std::vector<PictureDataPtr> PdfDocument::renderRegions(int page, const std::vector<Rect>& regions,
                                                       PaintResolution resolution, PaintedText words,
                                                       Diagnostics& diagnostics) const {
    const auto paint = [&](ContentRepair repair, Diagnostics& told) {
        return paintRegions(*m_impl->document, page, regions, resolution, words, repair, told);
    };
    return repaired(paint, diagnostics);
}

PictureDataPtr PdfDocument::renderRegion(int page, const Rect& region, PaintResolution resolution, PaintedText words,
                                         Diagnostics& diagnostics) const {
    return renderRegions(page, {region}, resolution, words, diagnostics).front();
}

PictureDataPtr PdfDocument::renderAnnotation(int page, std::size_t annotation, const Rect& region,
                                             PaintResolution resolution, PaintedText words,
                                             Diagnostics& diagnostics) const {
    const ComplaintCollector silence;
    return paintAnnotation(*m_impl->document, page, annotation, region, resolution, words, diagnostics);
}

std::vector<Rect> PdfDocument::inkOf(int page, double side, Diagnostics& diagnostics) const {
    const auto find = [&](ContentRepair repair, Diagnostics& told) {
        return findInk(*m_impl->document, page, side, repair, told);
    };
    return repaired(find, diagnostics);
}

std::optional<std::string> PdfDocument::packFont(const FontRequest& request) const {
    const ComplaintCollector silence;
    return pdf::packFont(request, *m_impl->document->getXRef());
}

} // namespace orvane::pdf
