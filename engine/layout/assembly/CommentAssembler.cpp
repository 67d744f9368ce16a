#include "layout/assembly/CommentAssembler.h"

#include "base/TextLines.h"

#include <string_view>

namespace orvane::layout {
namespace {

document::Block paragraphOf(std::string_view text, const document::Style& style) {
    document::Paragraph paragraph;
    paragraph.style = style.id;
    paragraph.properties = style.paragraph;
    paragraph.markProperties = style.run;
    if (!text.empty())
        paragraph.inlines.push_back({document::Text{std::string(text), style.run}});
    return {std::move(paragraph)};
}

} // namespace

std::vector<document::Comment> assembleComments(const DocumentDraft& draft, const document::Style& style) {
    std::vector<document::Comment> comments;
    for (const DraftComment& source : draft.comments) {
        document::Comment& comment = comments.emplace_back();
        comment.author = source.annotation.author;
        comment.date = source.annotation.date;
        for (const std::string_view line : linesOf(source.annotation.contents))
            comment.blocks.push_back(paragraphOf(line, style));
    }
    return comments;
}

} // namespace orvane::layout
