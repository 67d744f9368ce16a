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

document::Style normalStyle(const FontCatalog& fonts, const DocumentContext& context) {
    document::Style style;
    style.id = "Normal";
    style.name = "Normal";
    style.run.fontFamily = fonts.mainFamily(ScriptClass::Simple);
    style.run.eastAsianFontFamily = fonts.mainFamily(ScriptClass::EastAsian);
    style.run.complexFontFamily = fonts.mainFamily(ScriptClass::Complex);
    style.run.size = halfPointsFromPoints(context.bodyFontSize);
    return style;
}

} // namespace

document::Document assembleDocument(DocumentDraft draft, const DocumentContext& context, const DocumentFacts& facts,
                                    const LayoutRequest& request, const LayoutParameters& parameters,
                                    Diagnostics& diagnostics) {
    const LinkTargets links(draft, facts.outline, diagnostics);
    const FontCatalog fonts(draft);
    const AssemblyContext assembly{draft, context, fonts, links, {}, request, parameters};
    std::vector<AssembledBlock> blocks = assembleBlocks(draft.blocks, assembly);
    setSpacing(blocks, parameters);

    document::Document document;
    document.metadata = metadataOf(facts.metadata);
    document.styles.push_back(normalStyle(fonts, context));
    document.sections.push_back(sectionOf(draft, context));
    for (AssembledBlock& block : blocks) {
        if (auto* paragraph = std::get_if<document::Paragraph>(&block.block.value))
            paragraph->style = "Normal";
        document.sections.back().blocks.push_back(std::move(block.block));
    }
    return document;
}

} // namespace orvane::layout
