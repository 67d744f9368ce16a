#include "layout/assembly/CommentAssembler.h"

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
        std::string_view rest = source.annotation.contents;
        while (true) {
            const std::size_t end = rest.find_first_of("\r\n");
            comment.blocks.push_back(paragraphOf(rest.substr(0, end), style));
            if (end == std::string_view::npos)
                break;
            rest.remove_prefix(end + (rest.substr(end, 2) == "\r\n" ? 2 : 1));
        }
    }
    return comments;
}

} // namespace orvane::layout
