#include "pdf/OutlineReader.h"

#include "pdf/LinkReader.h"
#include "pdf/TextString.h"

#include <set>

#include <Outline.h>
#include <PDFDoc.h>

namespace orvane::pdf {
namespace {

constexpr int kMaxDepth = 64;
constexpr std::size_t kMaxEntries = 100'000;

std::string titleOf(const ::OutlineItem& item) {
    std::string title;
    for (int i = 0; i < item.getTitleLength(); ++i) {
        const char32_t character = item.getTitle()[i];
        // Writers break long titles by hand and pad them; a title is one line.
        if (character < 0x20)
            title += title.empty() || title.back() == ' ' ? "" : " ";
        else
            appendUtf8(title, character);
    }
    while (!title.empty() && title.back() == ' ')
        title.pop_back();
    return title;
}

/// Walks the outline's tree once, whatever knots it has.
class OutlineWalker {
public:
    explicit OutlineWalker(::PDFDoc& document)
        : m_document(document) {}

    std::vector<OutlineEntry> read(const std::vector<::OutlineItem*>* items, int depth) {
        std::vector<OutlineEntry> entries;
        if (!items || depth > kMaxDepth)
            return entries;
        for (::OutlineItem* item : *items) {
            if (m_seen.size() >= kMaxEntries || !m_seen.insert(item->getRefNum()).second)
                continue;
            OutlineEntry entry;
            entry.title = titleOf(*item);
            entry.destination = targetOf(item->getAction(), m_document).destination.value_or(Destination{});
            item->open();
            entry.children = read(item->getKids(), depth + 1);
            entries.push_back(std::move(entry));
        }
        return entries;
    }

private:
    ::PDFDoc& m_document;
    std::set<int> m_seen;
};

} // namespace

std::vector<OutlineEntry> readOutline(::PDFDoc& document) {
    ::Outline* outline = document.getOutline();
    return outline ? OutlineWalker(document).read(outline->getItems(), 0) : std::vector<OutlineEntry>{};
}

} // namespace orvane::pdf
