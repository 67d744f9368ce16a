#include "write/doc/FormattedPages.h"

#include <algorithm>

namespace orvane::write::doc {
namespace {

constexpr std::size_t kPageSize = 512;
constexpr std::size_t kMostLooks = 101;     // Source: [MS-DOC] 2.9.33 (crun)
constexpr std::size_t kMostParagraphs = 29; // Source: [MS-DOC] 2.9.175 (cpara)
constexpr std::size_t kParagraphEntry = 13; // Source: [MS-DOC] 2.9.23 (BxPap)
constexpr std::size_t kStyleSize = 2;
/// The longest properties of a paragraph that a page is sure to hold.
constexpr std::size_t kLongestParagraph = 400;

/// Builds pages: bounds and entries grow from the front, properties from the back.
class PageBuilder {
public:
    PageBuilder(std::size_t entrySize, std::size_t mostEntries, const TextPlace& place)
        : m_entrySize(entrySize)
        , m_mostEntries(mostEntries)
        , m_place(place)
        , m_start(place.start) {}

    /// `stored` is the properties as the page has them; empty for none.
    void add(std::uint32_t end, const std::string& stored) {
        if (!hasRoom(stored))
            finishPage();
        if (m_ends.empty())
            m_back.assign(kPageSize, '\0');
        m_ends.push_back(m_place.start + 2 * end);
        m_offsets.push_back(offsetOf(stored));
    }

    FormattedPages finish() {
        if (!m_ends.empty())
            finishPage();
        Bytes index;
        for (const std::uint32_t bound : m_bounds)
            index.u32(bound);
        index.u32(m_start);
        for (std::size_t i = 0; i < m_bounds.size(); ++i)
            index.u32(static_cast<std::int64_t>(m_place.firstPage + i));
        return {std::move(m_pages), index.str()};
    }

private:
    bool isKnown(const std::string& stored) const {
        return std::any_of(m_stored.begin(), m_stored.end(), [&](const auto& item) { return item.first == stored; });
    }

    bool hasRoom(const std::string& stored) const {
        const std::size_t entries = m_ends.size() + 1;
        const std::size_t front = 4 * (entries + 1) + m_entrySize * entries;
        const std::size_t wanted = stored.empty() || isKnown(stored) ? 0 : stored.size() + 1;
        return entries <= m_mostEntries && front + wanted <= m_free;
    }

    /// Half of where the properties stand on the page; 0 for none.
    std::size_t offsetOf(const std::string& stored) {
        if (stored.empty())
            return 0;
        for (const auto& [known, offset] : m_stored)
            if (known == stored)
                return offset;
        m_free = (m_free - stored.size()) & ~std::size_t{1};
        m_back.replace(m_free, stored.size(), stored);
        m_stored.emplace_back(stored, m_free / 2);
        return m_free / 2;
    }

    void finishPage() {
        Bytes front;
        front.u32(m_start);
        for (const std::uint32_t end : m_ends)
            front.u32(end);
        for (const std::size_t offset : m_offsets)
            front.u8(static_cast<std::int64_t>(offset)).zeros(m_entrySize - 1);
        m_back.replace(0, front.size(), front.str());
        m_back.back() = static_cast<char>(m_ends.size());
        m_pages += m_back;
        m_bounds.push_back(m_start);
        m_start = m_ends.back();
        m_ends.clear();
        m_offsets.clear();
        m_stored.clear();
        m_free = kPageSize - 1;
    }

    std::size_t m_entrySize;
    std::size_t m_mostEntries;
    TextPlace m_place;
    std::uint32_t m_start; ///< the first byte of text of the open page
    std::string m_back;
    std::size_t m_free = kPageSize - 1; ///< where the properties of the open page begin
    std::vector<std::uint32_t> m_ends;
    std::vector<std::size_t> m_offsets;
    std::vector<std::pair<std::string, std::size_t>> m_stored;
    std::vector<std::uint32_t> m_bounds;
    std::string m_pages;
};

/// The length counts pairs of bytes. Source: [MS-DOC] 2.9.178 (PapxInFkp).
std::string storedParagraph(const std::string& properties) {
    Bytes bytes;
    if (properties.size() % 2 == 0)
        bytes.u8(0).u8(static_cast<std::int64_t>(properties.size() / 2));
    else
        bytes.u8(static_cast<std::int64_t>((properties.size() + 1) / 2));
    return bytes.raw(properties).str();
}

} // namespace

FormattedPages lookPages(const std::vector<FormattedRange>& looks, const TextPlace& place) {
    PageBuilder builder(1, kMostLooks, place);
    for (const FormattedRange& look : looks)
        builder.add(look.end,
                    look.properties.empty()
                        ? std::string()
                        : Bytes().u8(static_cast<std::int64_t>(look.properties.size())).raw(look.properties).str());
    return builder.finish();
}

FormattedPages paragraphPages(const std::vector<FormattedRange>& paragraphs, const TextPlace& place,
                              const StoreProperties& store) {
    PageBuilder builder(kParagraphEntry, kMostParagraphs, place);
    for (const FormattedRange& paragraph : paragraphs) {
        std::string properties = paragraph.properties;
        if (properties.size() > kLongestParagraph) {
            PropertyList elsewhere;
            elsewhere.add(sprm::kPHugePapx, store(properties.substr(kStyleSize)));
            properties = properties.substr(0, kStyleSize) + elsewhere.bytes();
        }
        builder.add(paragraph.end, storedParagraph(properties));
    }
    return builder.finish();
}

} // namespace orvane::write::doc
