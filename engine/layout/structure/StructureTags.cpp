#include "layout/structure/StructureTags.h"

#include "layout/structure/DraftWalk.h"
#include "layout/support/Tally.h"

#include <algorithm>
#include <array>

namespace orvane::layout {
namespace {

/// Types of elements within a paragraph, whose text belongs to the block around them.
bool isInlineType(const std::string& type) {
    static constexpr std::array kInline = {"Span",  "Quote", "Note",    "Reference", "BibEntry", "Code", "Link",
                                           "Annot", "Ruby",  "Warichu", "Em",        "Strong",   "Sub"};
    return std::find(kInline.begin(), kInline.end(), type) != kInline.end();
}

/// Types that say nothing about the block: it is what stands around it.
bool isGroupType(const std::string& type) {
    static constexpr std::array kGroups = {"Document", "Part", "Art", "Sect", "Div", "NonStruct", "Private", ""};
    return std::find(kGroups.begin(), kGroups.end(), type) != kGroups.end();
}

/// Most words of the draft must be in elements, and of these few in headings.
constexpr double kLeastTagged = 0.7;
constexpr double kMostInHeadings = 0.4;

} // namespace

int headingLevelOfType(const std::string& type) {
    if (type == "H")
        return 1;
    const bool isNumbered = type.size() == 2 && type[0] == 'H' && type[1] >= '1' && type[1] <= '9';
    return isNumbered ? type[1] - '0' : 0;
}

StructureTags::StructureTags(const DocumentDraft& draft, const std::vector<pdf::StructureElement>& structure)
    : m_draft(draft) {
    collect(structure, {});
    if (m_types.empty())
        return;
    double all = 0, tagged = 0, inHeadings = 0;
    forEachParagraph(draft.blocks, [&](const DraftParagraph& paragraph) {
        for (const DraftPiece& piece : paragraph.pieces)
            for (const Line& line : piece.text.lines)
                for (const Word& word : line.words) {
                    const std::string* type =
                        word.spans.empty() ? nullptr : typeOf(draft.pages[piece.page], word.spans[0]);
                    all += 1;
                    tagged += type ? 1 : 0;
                    inHeadings += type && headingLevelOfType(*type) > 0 ? 1 : 0;
                }
    });
    m_isTrustworthy = tagged >= kLeastTagged * all && inHeadings <= kMostInHeadings * tagged;
}

void StructureTags::collect(const std::vector<pdf::StructureElement>& elements, const std::string& block) {
    for (const pdf::StructureElement& element : elements) {
        // A paragraph within a list item or a cell is still that item or cell.
        const bool isDetail = isInlineType(element.type) || isGroupType(element.type) ||
                              (!block.empty() && !isGroupType(block) && element.type == "P");
        const std::string& type = isDetail ? block : element.type;
        for (const pdf::StructureElement::Content& content : element.content)
            m_types[{content.page, content.mcid}] = type;
        collect(element.children, type);
    }
}

const std::string* StructureTags::typeOf(const PageLayout& page, const Span& span) const {
    for (int mark = span.mark; mark >= 0 && static_cast<std::size_t>(mark) < page.marks.size();
         mark = page.marks[static_cast<std::size_t>(mark)].parent) {
        const int mcid = page.marks[static_cast<std::size_t>(mark)].mcid;
        const auto found = mcid < 0 ? m_types.end() : m_types.find({page.number, mcid});
        if (found != m_types.end())
            return &found->second;
    }
    return nullptr;
}

std::string StructureTags::typeOf(const DraftParagraph& paragraph) const {
    Tally<std::string> types;
    for (const DraftPiece& piece : paragraph.pieces)
        for (const Line& line : piece.text.lines)
            for (const Word& word : line.words)
                for (const Span& span : word.spans) {
                    const std::string* type = typeOf(m_draft.pages[piece.page], span);
                    types.add(type ? *type : std::string(), static_cast<double>(span.text.size()));
                }
    const std::string* most = types.heaviest();
    return most ? *most : std::string();
}

} // namespace orvane::layout
