#include "worker/ContentCounter.h"

#include "document/FormulaText.h"

#include <algorithm>
#include <type_traits>
#include <variant>
#include <vector>

namespace orvane::worker {
namespace {

using namespace document;

bool isBlank(char32_t c) {
    return c <= 0x20 || c == 0xA0 || (c >= 0x2000 && c <= 0x200B) || c == 0x3000;
}

bool isThere(pdf::Visibility visibility) {
    return visibility == pdf::Visibility::Visible || visibility == pdf::Visibility::Invisible;
}

/// Code points that are not blank. Blanks beyond ASCII are rare enough in what layout writes to be decoded here by
/// hand.
std::int64_t countCharacters(const std::string& utf8) {
    std::int64_t count = 0;
    for (std::size_t i = 0; i < utf8.size();) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t c = length == 1 ? lead : lead & (0x7Fu >> length);
        for (std::size_t k = 1; k < length && i + k < utf8.size(); ++k)
            c = (c << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3F);
        count += isBlank(c) ? 0 : 1;
        i += length;
    }
    return count;
}

/// Walks the document and counts on the way.
class WrittenCounter {
public:
    explicit WrittenCounter(protocol::Counts& counts)
        : m_counts(counts) {}

    void add(const std::vector<Block>& blocks) {
        for (const Block& block : blocks)
            std::visit([this](const auto& value) { add(value); }, block.value);
    }
    void add(const RunningText& text) {
        for (const auto* blocks : {&text.standard, &text.firstPage, &text.evenPages})
            if (*blocks)
                add(**blocks);
    }

private:
    void add(const Paragraph& paragraph) { add(paragraph.inlines); }
    void add(const Table& table) {
        for (const TableRow& row : table.rows)
            for (const TableCell& cell : row.cells)
                add(cell.blocks);
    }
    void add(const Figure& figure) {
        m_counts.picturesWritten += std::holds_alternative<Picture>(figure.content) ? 1 : 0;
    }
    void add(const Frame& frame) { add(frame.blocks); }
    void add(const TableOfContents& contents) {
        for (const Paragraph& entry : contents.entries)
            add(entry);
    }

    void add(const std::vector<Inline>& inlines) {
        for (const Inline& item : inlines)
            std::visit([this](const auto& value) { addInline(value); }, item.value);
    }

    template<typename T>
    void addInline(const T& item) {
        if constexpr (std::is_same_v<T, Text>) {
            if (!item.properties.isHidden) // nor was it counted where it was read
                m_counts.charactersWritten += countCharacters(item.text);
        } else if constexpr (std::is_same_v<T, Picture>) {
            ++m_counts.picturesWritten;
        } else if constexpr (std::is_same_v<T, Formula>) {
            m_counts.charactersWritten += countCharacters(linearText(item.content));
        } else if constexpr (std::is_same_v<T, Link>) {
            ++m_counts.linksWritten;
            add(item.inlines);
        } else if constexpr (std::is_same_v<T, Field>) {
            add(item.result);
        } else if constexpr (std::is_same_v<T, ContentControl>) {
            add(item.content);
        }
    }

    protocol::Counts& m_counts;
};

} // namespace

void countRead(const pdf::PageContent& page, protocol::Counts& counts) {
    for (const pdf::Glyph& glyph : page.glyphs)
        if (isThere(glyph.visibility))
            counts.charactersRead +=
                std::count_if(glyph.unicode.begin(), glyph.unicode.end(), [](char32_t c) { return !isBlank(c); });
    counts.picturesRead += std::count_if(page.pictures.begin(), page.pictures.end(),
                                         [](const pdf::Picture& picture) { return isThere(picture.visibility); });
    counts.linksRead += static_cast<std::int64_t>(page.links.size());
}

void countWritten(const Document& document, protocol::Counts& counts) {
    WrittenCounter counter(counts);
    for (const Section& section : document.sections) {
        counter.add(section.blocks);
        counter.add(section.header);
        counter.add(section.footer);
    }
    for (const Note& note : document.notes)
        counter.add(note.blocks);
    for (const Comment& comment : document.comments)
        counter.add(comment.blocks);
}

} // namespace orvane::worker
