#include "layout/truepage/TruePageDocument.h"

#include "base/Failure.h"
#include "layout/DocumentAnalyser.h"
#include "layout/assembly/BlockAssembler.h"
#include "layout/assembly/DocumentMetadata.h"
#include "layout/assembly/FrameAssembler.h"
#include "layout/assembly/StyleMaker.h"
#include "layout/frames/FrameCutter.h"
#include "layout/frames/FrameJoiner.h"
#include "layout/frames/LineFitter.h"
#include "layout/page/PageLayouter.h"
#include "layout/structure/DraftBuilder.h"
#include "layout/truepage/Backdrop.h"
#include "layout/truepage/ClippedText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane::layout {
namespace {

using document::Block;
using document::Section;

/// The paragraph that a page's objects are anchored in: as small as can be, for it must not need room of its own.
document::Paragraph anchor(const document::Style& style) {
    document::Paragraph paragraph;
    paragraph.style = style.id;
    paragraph.properties = style.paragraph;
    paragraph.properties.lineSpacing = {document::LineSpacingRule::Exact, 1.0, Twips(20)};
    paragraph.properties.spaceBefore = {};
    paragraph.properties.spaceAfter = {};
    paragraph.properties.hasWidowControl = false;
    paragraph.markProperties = style.run;
    paragraph.markProperties.size = HalfPoints(2);
    return paragraph;
}

Section sectionFor(const PageLayout& page) {
    Section section;
    section.pageWidth = twipsFromPoints(page.width);
    section.pageHeight = twipsFromPoints(page.height);
    section.marginLeft = section.marginRight = section.marginTop = section.marginBottom = {};
    section.headerDistance = section.footerDistance = {};
    return section;
}

bool hasSizeOf(const Section& section, const PageLayout& page) {
    return section.pageWidth == twipsFromPoints(page.width) && section.pageHeight == twipsFromPoints(page.height);
}

/// Puts the pages one behind the other, pages of one size into one section.
class PageBinder {
public:
    explicit PageBinder(const document::Style& style)
        : m_style(style) {}

    void add(const PageLayout& page, std::vector<document::Figure> backdrop, std::vector<document::Frame> frames) {
        document::Paragraph last = anchor(m_style);
        last.origin.page = page.number;
        if (m_sections.empty() || !hasSizeOf(m_sections.back(), page))
            m_sections.push_back(sectionFor(page));
        else
            last.properties.pageBreakBefore = true;
        std::vector<Block>& blocks = m_sections.back().blocks;
        for (document::Figure& figure : backdrop)
            blocks.push_back({std::move(figure)});
        for (document::Frame& frame : frames)
            blocks.push_back({std::move(frame)});
        blocks.push_back({std::move(last)});
    }

    std::vector<Section> take() { return std::move(m_sections); }

private:
    const document::Style& m_style;
    std::vector<Section> m_sections;
};

/// Lays the pages out and cuts their text into the paragraphs of frames.
DocumentDraft draftOf(const std::vector<PageText>& pages, const DocumentContext& context,
                      const LayoutParameters& parameters, const JobObserver& observer, Diagnostics& diagnostics) {
    DocumentDraft draft;
    for (const PageText& page : pages) {
        if (observer.isCancelled())
            throw Failure(FailureCode::Cancelled, "the job was cancelled", {page.number, 0});
        std::vector<DraftBlock> blocks = addPage(draft, layoutPage(page, context, parameters, diagnostics));
        std::vector<DraftBlock> frames =
            joinFrames(cutIntoFrames(std::move(blocks), parameters.textBoxes), parameters.textBoxes);
        addClippedText(frames, page.clippedLines, draft.pages.size() - 1, parameters.textBoxes);
        std::move(frames.begin(), frames.end(), std::back_inserter(draft.blocks));
    }
    return draft;
}

} // namespace

document::Document truePageDocument(std::vector<PageText> pages, const DocumentFacts& facts,
                                    const LayoutRequest& request, const LayoutParameters& parameters,
                                    const JobObserver& observer, Diagnostics& diagnostics) {
    const DocumentContext context = analyseDocument(pages, parameters);
    DocumentDraft draft = draftOf(pages, context, parameters, observer, diagnostics);
    const LinkTargets links(draft, facts.outline, diagnostics);
    const Tracking tracking = request.keepCharacterSpacing ? Tracking::Kept : Tracking::InWidths;
    const FontCatalog fonts(draft, parameters, tracking, CarriedFonts(facts.fonts));
    fitLines(draft.blocks, fonts, tracking, parameters.textBoxes);
    const AssemblyContext assembly{draft, context, fonts, links, request, parameters};
    std::vector<BlockFlow> flows;
    flows.push_back({FlowKind::Body, assembleBlocks(draft.blocks, assembly)});

    document::Document document;
    document.metadata = metadataOf(facts.metadata, context);
    // The lines of a paragraph are ended where they ended on the page, so that the justified ones must reach its edge.
    document.spreadsBrokenLines = true;
    document.styles = makeStyles(flows, assembly);
    PageBinder binder(document.styles.front());
    auto block = flows.front().blocks.begin();
    for (std::size_t page = 0; page < pages.size(); ++page) {
        std::vector<document::Frame> frames;
        for (; block != flows.front().blocks.end() && block->draft->page == page; ++block)
            frames.push_back(frameOf(std::move(*block), assembly));
        binder.add(draft.pages[page], backdropOf(pages[page]), std::move(frames));
    }
    document.sections = binder.take();
    for (const CarriedFont& font : facts.fonts)
        document.fonts.push_back({font.request.family, font.request.isBold, font.request.isItalic, font.program});
    return document;
}

} // namespace orvane::layout
