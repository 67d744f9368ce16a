#include "layout/structure/AddressLinks.h"

#include "base/Utf8.h"
#include "layout/structure/DraftWalk.h"
#include "layout/structure/PrintedAddress.h"
#include "layout/text/SpanPart.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace orvane::layout {
namespace {

/// Part of a span that shows part of an address.
struct SpanRange {
    std::size_t page = 0; ///< index into DocumentDraft::pages
    Word* word = nullptr;
    std::size_t span = 0;
    std::size_t from = 0; ///< characters of the span
    std::size_t to = 0;
};

/// A paragraph's text with the place of each character.
class ParagraphText {
public:
    explicit ParagraphText(DraftParagraph& paragraph) {
        for (DraftPiece& piece : paragraph.pieces)
            for (std::size_t i = 0; i < piece.text.lines.size(); ++i) {
                addLine(piece.page, piece.text.lines[i]);
                const auto& breaks = piece.text.hardBreaks;
                addGap(std::find(breaks.begin(), breaks.end(), i) == breaks.end() ? U'\n' : U' ');
            }
    }

    const std::u32string& text() const { return m_text; }

    /// The spans that show the address, in their order.
    std::vector<SpanRange> rangesOf(const PrintedAddress& address) const {
        std::vector<SpanRange> ranges;
        for (std::size_t i = address.from; i < address.to; ++i) {
            const Place& place = m_places[i];
            if (!place.word)
                continue;
            const bool isSame = !ranges.empty() && ranges.back().word == place.word && ranges.back().span == place.span;
            if (!isSame)
                ranges.push_back({place.page, place.word, place.span, place.character, place.character});
            ranges.back().to = place.character + 1;
        }
        return ranges;
    }

private:
    struct Place {
        std::size_t page = 0;
        Word* word = nullptr; ///< null for gaps
        std::size_t span = 0;
        std::size_t character = 0;
    };

    void addLine(std::size_t page, Line& line) {
        for (std::size_t i = 0; i < line.words.size(); ++i) {
            Word& word = line.words[i];
            if (i > 0 && word.gapBefore != Gap::None)
                addGap(U' ');
            for (std::size_t span = 0; span < word.spans.size(); ++span) {
                const std::u32string text = utf32FromUtf8(word.spans[span].text);
                for (std::size_t c = 0; c < text.size(); ++c)
                    m_places.push_back({page, &word, span, c});
                m_text += text;
            }
        }
    }

    void addGap(char32_t gap) {
        m_text += gap;
        m_places.emplace_back();
    }

    std::u32string m_text;
    std::vector<Place> m_places;
};

const Look& lookOf(const SpanRange& range) {
    return range.word->spans[range.span].look;
}

/// The link to that address on the page, made when there is none.
int linkOn(PageLayout& page, const std::string& uri) {
    const auto found =
        std::find_if(page.links.begin(), page.links.end(), [&](const pdf::Link& link) { return link.uri == uri; });
    if (found != page.links.end())
        return static_cast<int>(found - page.links.begin());
    page.links.emplace_back().uri = uri;
    return static_cast<int>(page.links.size()) - 1;
}

/// Every paragraph of the flow, the notes and the running heads.
template<typename Visit>
void forAllText(DocumentDraft& draft, const Visit& visit) {
    forEachParagraph(draft.blocks, visit);
    for (DraftNote& note : draft.notes)
        forEachParagraph(note.blocks, visit);
    for (DraftSection& section : draft.sections)
        for (DraftRunningText* text : {&section.header, &section.footer})
            for (auto* blocks : {&text->standard, &text->firstPage, &text->evenPages})
                if (*blocks)
                    forEachParagraph(**blocks, visit);
}

constexpr std::string_view kUsualScheme = "http://";
constexpr std::string_view kSecureScheme = "https://";

/// "a.example" of "https://a.example/b"; empty for other schemes.
std::string secureHostOf(const std::string& uri) {
    return uri.starts_with(kSecureScheme)
               ? uri.substr(kSecureScheme.size(), uri.find('/', kSecureScheme.size()) - kSecureScheme.size())
               : std::string();
}

class AddressLinker {
public:
    explicit AddressLinker(DocumentDraft& draft)
        : m_draft(draft) {
        for (const PageLayout& page : draft.pages)
            for (const pdf::Link& link : page.links)
                collectTarget(link.uri);
        forAllText(draft, [this](DraftParagraph& paragraph) {
            collectLooks(paragraph);
            for (const PrintedAddress& address : findPrintedAddresses(ParagraphText(paragraph).text()))
                collectHost(address.uri);
        });
    }

    void run() {
        forAllText(m_draft, [this](DraftParagraph& paragraph) { linkIn(paragraph); });
    }

private:
    void collectTarget(const std::string& uri) {
        m_hasLinks = m_hasLinks || !uri.empty();
        collectHost(uri);
    }

    void collectHost(const std::string& uri) {
        if (const std::string host = secureHostOf(uri); !host.empty())
            m_secureHosts.insert(host);
    }

    void collectLooks(const DraftParagraph& paragraph) {
        for (const DraftPiece& piece : paragraph.pieces)
            for (const Line& line : piece.text.lines)
                for (const Word& word : line.words)
                    for (const Span& span : word.spans)
                        if (isLeadingOutside(piece.page, span.look.link) && span.look.color != Color{})
                            m_linkColors.push_back(span.look.color);
    }

    bool isLeadingOutside(std::size_t page, int link) const {
        const std::vector<pdf::Link>& links = m_draft.pages[page].links;
        return link >= 0 && static_cast<std::size_t>(link) < links.size() &&
               !links[static_cast<std::size_t>(link)].uri.empty();
    }

    /// In a file that has links an address without one was meant to have none, unless it looks like them.
    bool isMeantAsLink(const Look& look) const {
        return !m_hasLinks || look.underline != document::UnderlineKind::None ||
               std::find(m_linkColors.begin(), m_linkColors.end(), look.color) != m_linkColors.end();
    }

    void linkIn(DraftParagraph& paragraph) {
        const ParagraphText text(paragraph);
        const std::vector<PrintedAddress> addresses = findPrintedAddresses(text.text());
        // From the last to the first: parting a span moves those behind it in the word.
        for (auto address = addresses.rbegin(); address != addresses.rend(); ++address) {
            const std::vector<SpanRange> ranges = text.rangesOf(*address);
            const bool isFree = std::all_of(ranges.begin(), ranges.end(), [this](const SpanRange& range) {
                return lookOf(range).link < 0 && isMeantAsLink(lookOf(range));
            });
            if (isFree)
                link(ranges, targetOf(*address));
        }
    }

    /// "www.a.example" leads where "https://www.a.example/b" does, if the document has that too.
    std::string targetOf(const PrintedAddress& address) const {
        if (address.showsScheme || !address.uri.starts_with(kUsualScheme))
            return address.uri;
        std::string secure = std::string(kSecureScheme) + address.uri.substr(kUsualScheme.size());
        return m_secureHosts.contains(secureHostOf(secure)) ? secure : address.uri;
    }

    void link(const std::vector<SpanRange>& ranges, const std::string& uri) {
        for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
            const std::size_t span = partSpan(*range->word, range->span, range->from, range->to);
            PageLayout& page = m_draft.pages[range->page];
            const int link = linkOn(page, uri);
            page.links[static_cast<std::size_t>(link)].boxes.push_back(range->word->spans[span].box);
            range->word->spans[span].look.link = link;
        }
    }

    DocumentDraft& m_draft;
    bool m_hasLinks = false;             ///< the file has links that lead outside
    std::set<std::string> m_secureHosts; ///< that addresses with their scheme lead to
    std::vector<Color> m_linkColors;     ///< of the text that shows them, other than black
};

} // namespace

void linkPrintedAddresses(DocumentDraft& draft) {
    AddressLinker(draft).run();
}

} // namespace orvane::layout
