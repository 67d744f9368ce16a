#include "layout/assembly/NamedStyles.h"

#include <fmt/format.h>

namespace orvane::layout {
namespace {

document::Style style(std::string id, std::string name, std::string next = {}) {
    document::Style made;
    made.basedOn = id == "Normal" ? "" : "Normal";
    made.id = std::move(id);
    made.name = std::move(name);
    made.next = std::move(next);
    return made;
}

document::Style headingStyle(int level) {
    document::Style heading = style(fmt::format("Heading{}", level), fmt::format("heading {}", level), "Normal");
    heading.paragraph.outlineLevel = level;
    heading.paragraph.keepWithNext = true;
    return heading;
}

document::Style bodyStyle(FlowKind place) {
    switch (place) {
    case FlowKind::Body:
        break;
    case FlowKind::Cell:
        return style("TableParagraph", "Table Paragraph");
    case FlowKind::Note:
        return style("FootnoteText", "footnote text");
    case FlowKind::Header:
        return style("Header", "header");
    case FlowKind::Footer:
        return style("Footer", "footer");
    }
    return style("Normal", "Normal");
}

} // namespace

document::Style namedStyle(const DraftParagraph* paragraph, FlowKind place) {
    if (!paragraph)
        return bodyStyle(place);
    switch (paragraph->role) {
    case ParagraphRole::Title:
        return style("Title", "Title", "Normal");
    case ParagraphRole::Heading:
        return headingStyle(paragraph->level);
    case ParagraphRole::ListItem:
        return style("ListParagraph", "List Paragraph");
    case ParagraphRole::Caption:
        return style("Caption", "caption", "Normal");
    case ParagraphRole::ContentsHeading:
        return style("TOCHeading", "TOC Heading", "Normal");
    case ParagraphRole::ContentsEntry:
        return style(fmt::format("TOC{}", paragraph->level), fmt::format("toc {}", paragraph->level), "Normal");
    case ParagraphRole::Body:
    case ParagraphRole::NoteText:
        break;
    }
    return bodyStyle(place);
}

} // namespace orvane::layout
