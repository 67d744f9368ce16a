#include "layout/DocumentAssembler.h"

#include "layout/BlockAssembler.h"
#include "layout/SpacingFinder.h"

namespace orvane::layout {
namespace {

document::Metadata metadataOf(const pdf::Metadata& source) {
    document::Metadata metadata;
    metadata.title = source.title;
    metadata.author = source.author;
    metadata.subject = source.subject;
    metadata.keywords = source.keywords;
    metadata.language = source.language;
    metadata.created = source.created;
    metadata.modified = source.modified;
    return metadata;
}

document::Section sectionOf(const DocumentDraft& draft, const DocumentContext& context) {
    document::Section section;
    if (draft.pages.empty())
        return section;
    const PageLayout& page = draft.pages.front();
    section.pageWidth = twipsFromPoints(page.width);
    section.pageHeight = twipsFromPoints(page.height);
    section.marginLeft = twipsFromPoints(context.textArea.left);
    section.marginTop = twipsFromPoints(context.textArea.top);
    section.marginRight = twipsFromPoints(page.width - context.textArea.right);
    section.marginBottom = twipsFromPoints(page.height - context.textArea.bottom);
    return section;
}

} // namespace

document::Document assembleDocument(DocumentDraft draft, const DocumentContext& context, const DocumentFacts& facts,
                                    const LayoutRequest& request, const LayoutParameters& parameters,
                                    Diagnostics& diagnostics) {
    const LinkTargets links(draft, facts.outline, diagnostics);
    const FontCatalog fonts(draft);
    const AssemblyContext assembly{draft, context, fonts, links, request, parameters};
    std::vector<BlockFlow> flows;
    flows.push_back({FlowKind::Body, assembleBlocks(draft.blocks, assembly)});

    document::Document document;
    document.metadata = metadataOf(facts.metadata);
    document.styles = makeStyles(flows, assembly);
    findSpacing(flows, document.styles, assembly);
    document.sections.push_back(sectionOf(draft, context));
    document.sections.back().blocks = finishBlocks(std::move(flows.front().blocks), assembly);
    return document;
}

} // namespace orvane::layout
