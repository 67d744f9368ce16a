#pragma once

#include "document/DocumentDump.h"
#include "layout/assembly/DocumentAssembler.h"
#include "layout/assembly/TextAssembler.h"

#include "engine/layout/TextBuilder.h"

#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// Drafts of documents as a test needs them: paragraphs of made lines on pages of A4 with a text area of 72 to 523
/// points.
namespace orvane::layout::tests {

constexpr ColumnSpan kColumn{72, 523};

inline PageLayout makeLayout(int number) {
    PageText page = makePage(number);
    PageLayout layout;
    layout.number = number;
    layout.width = page.width;
    layout.height = page.height;
    layout.fonts = page.fonts;
    layout.bands.push_back({72, 770, {kColumn}, false});
    return layout;
}

/// A draft of that many empty pages.
inline DocumentDraft makeDraft(int pageCount) {
    DocumentDraft draft;
    for (int number = 1; number <= pageCount; ++number)
        draft.pages.push_back(makeLayout(number));
    draft.fields.resize(draft.pages.size());
    return draft;
}

/// A paragraph of these lines, indents measured from the column.
inline ParagraphDraft makeParagraph(std::vector<Line> lines) {
    ParagraphDraft paragraph;
    for (const Line& line : lines)
        paragraph.box = paragraph.box.united(line.box);
    const Line& second = *std::next(lines.begin(), lines.size() > 1 ? 1 : 0);
    paragraph.indentStart = second.box.left - kColumn.left;
    paragraph.firstLine = lines.front().box.left - second.box.left;
    paragraph.leading = lines.size() > 1 ? second.baseline - lines.front().baseline : 1.2 * second.fontSize;
    paragraph.lines = std::move(lines);
    return paragraph;
}

inline DraftBlock makeBlock(ParagraphDraft paragraph, std::size_t page = 0) {
    DraftBlock block;
    block.page = page;
    block.box = paragraph.box;
    DraftParagraph draft;
    draft.pieces.push_back({page, 0, 0, kColumn, std::move(paragraph)});
    block.value = std::move(draft);
    return block;
}

/// A picture that stands on a line of its own.
inline DraftBlock makePictureBlock(const Rect& box) {
    DraftBlock block;
    block.box = box;
    FigureDraft figure;
    figure.figure.box = box;
    figure.isInline = true;
    block.value = std::move(figure);
    return block;
}

/// The runs of the draft's paragraph `index`.
inline std::vector<document::Inline> inlinesOfParagraph(const DocumentDraft& draft, std::size_t index,
                                                        const LayoutRequest& request = {},
                                                        const DocumentContext& context = {}) {
    DocumentDraft linked = draft;
    Diagnostics diagnostics;
    const LinkTargets links(linked, {}, diagnostics);
    // The widths of made letters say nothing about families.
    FontParameters noFit;
    noFit.fontFit.leastCoverage = 2;
    const FontCatalog fonts(linked, noFit);
    const LayoutParameters parameters;
    const AssemblyContext assembly{linked, context, fonts, links, request, parameters, false, UnseenValues(linked)};
    return assembleText(*linked.blocks[index].paragraph(), assembly).inlines;
}

/// The text of the draft's paragraph `index` as DocumentDump shows it against a default look.
inline std::string textOfParagraph(const DocumentDraft& draft, std::size_t index, const LayoutRequest& request = {},
                                   const DocumentContext& context = {}) {
    document::Document document;
    document.styles.push_back(
        {.id = "Normal", .name = "Normal", .basedOn = {}, .next = {}, .paragraph = {}, .run = {}});
    document.styles[0].run.fontFamily = "Calibri";
    document.styles[0].run.size = HalfPoints(20);
    document::Paragraph paragraph;
    paragraph.style = "Normal";
    paragraph.inlines = inlinesOfParagraph(draft, index, request, context);
    return document::dump(paragraph, document);
}

/// The whole document of a draft.
inline document::Document documentOf(DocumentDraft draft, const DocumentContext& context = {}) {
    Diagnostics diagnostics;
    // A section that starts no page leaves the space above its first paragraph alone.
    if (draft.sections.empty())
        draft.sections.emplace_back().setup.start = document::SectionStart::Continuous;
    return assembleDocument(std::move(draft), context, {}, {}, {}, diagnostics);
}

/// A draft of one page whose paragraphs hold one line each, at these baselines.
struct TextAt {
    const char* text;
    double baseline;
    LineLook look = {};
};
inline DocumentDraft draftOfLines(const std::vector<TextAt>& lines) {
    DocumentDraft draft = makeDraft(1);
    for (const TextAt& line : lines)
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine(line.text, 72, line.baseline, line.look)})));
    return draft;
}

inline const document::Paragraph& paragraphAt(const document::Document& document, std::size_t index) {
    return std::get<document::Paragraph>(document.sections.at(0).blocks.at(index).value);
}

inline const document::Style& styleOf(const document::Document& document, const document::StyleId& id) {
    for (const document::Style& style : document.styles)
        if (style.id == id)
            return style;
    throw std::out_of_range(id);
}

} // namespace orvane::layout::tests
