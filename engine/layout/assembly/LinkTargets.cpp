#include "layout/assembly/LinkTargets.h"

#include <fmt/format.h>

#include <cctype>

namespace orvane::layout {
namespace {

/// The first paragraph in a block, looking into tables.
DraftParagraph* firstParagraphOf(DraftBlock& block) {
    if (DraftParagraph* paragraph = block.paragraph())
        return paragraph;
    if (DraftTable* table = std::get_if<DraftTable>(&block.value))
        for (DraftCell& cell : table->cells)
            for (DraftBlock& inner : cell.blocks)
                if (DraftParagraph* paragraph = firstParagraphOf(inner))
                    return paragraph;
    return nullptr;
}

/// The paragraph that a reader sees first when the page is scrolled to the destination.
DraftParagraph* paragraphAt(DocumentDraft& draft, const pdf::Destination& destination) {
    DraftParagraph* last = nullptr;
    for (DraftBlock& block : draft.blocks) {
        const int page = draft.pages[block.page].number;
        if (page < destination.page)
            continue;
        DraftParagraph* paragraph = firstParagraphOf(block);
        if (!paragraph)
            continue;
        // Destinations are set at the top of the line, or somewhat above it.
        if (page > destination.page)
            return last ? last : paragraph;
        if (!destination.top || block.box.centerY() >= *destination.top || block.box.bottom > *destination.top + 1)
            return paragraph;
        last = paragraph;
    }
    return last;
}

class BookmarkMaker {
public:
    explicit BookmarkMaker(DocumentDraft& draft)
        : m_draft(draft) {}

    /// The bookmark of the paragraph at the destination, made when it has none; empty when nothing is there.
    std::string bookmarkAt(const pdf::Destination& destination) {
        DraftParagraph* paragraph = destination.page > 0 ? paragraphAt(m_draft, destination) : nullptr;
        if (!paragraph)
            return {};
        if (paragraph->bookmarks.empty())
            paragraph->bookmarks.push_back(fmt::format("_Ref{:06}", ++m_count));
        return paragraph->bookmarks.front();
    }

private:
    DocumentDraft& m_draft;
    int m_count = 0;
};

void markOutline(const std::vector<pdf::OutlineEntry>& entries, BookmarkMaker& bookmarks) {
    for (const pdf::OutlineEntry& entry : entries) {
        bookmarks.bookmarkAt(entry.destination);
        markOutline(entry.children, bookmarks);
    }
}

} // namespace

LinkTargets::LinkTargets(DocumentDraft& draft, const std::vector<pdf::OutlineEntry>& outline,
                         Diagnostics& diagnostics) {
    BookmarkMaker bookmarks(draft);
    markOutline(outline, bookmarks);
    for (const PageLayout& page : draft.pages) {
        m_targets.emplace_back();
        for (const pdf::Link& link : page.links) {
            document::LinkTarget target;
            target.uri = link.uri;
            if (link.uri.empty() && link.destination)
                target.bookmark = bookmarks.bookmarkAt(*link.destination);
            const bool isResolved = !target.uri.empty() || !target.bookmark.empty();
            if (!isResolved)
                diagnostics.add(DiagnosticKind::LinkUnresolved, page.number,
                                "a link leads to no place in the pages taken",
                                link.boxes.empty() ? Rect{} : link.boxes.front());
            m_targets.back().push_back(isResolved ? std::optional(target) : std::nullopt);
        }
    }
}

std::optional<document::LinkTarget> LinkTargets::target(std::size_t page, int link) const {
    if (link < 0 || static_cast<std::size_t>(link) >= m_targets[page].size())
        return std::nullopt;
    return m_targets[page][static_cast<std::size_t>(link)];
}

} // namespace orvane::layout
