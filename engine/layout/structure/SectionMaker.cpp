#include "layout/structure/SectionMaker.h"

#include "layout/running/RunningScheme.h"
#include "layout/structure/BreakFinder.h"
#include "layout/structure/ColumnSetup.h"
#include "layout/structure/FloatOverlays.h"
#include "layout/structure/PageBottoms.h"
#include "layout/structure/PageFill.h"
#include "layout/structure/PageSetup.h"
#include "layout/structure/RowKeeping.h"
#include "layout/structure/RunningTextMaker.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane::layout {
namespace {

class SectionMaker {
public:
    SectionMaker(DocumentDraft& draft, const std::vector<PageRunningHeads>& heads, const DocumentContext& context,
                 const LayoutParameters& parameters, Diagnostics& diagnostics)
        : m_draft(draft)
        , m_heads(heads)
        , m_context(context)
        , m_parameters(parameters)
        , m_runningText(draft, heads, context, parameters, diagnostics)
        , m_fills(measurePages(draft, FontCatalog(draft, parameters), parameters)) {}

    void run() {
        const std::vector<RunningScheme> schemes = findSchemes(m_heads, chances());
        const std::vector<double> bottoms =
            findBottomMargins(m_draft, m_fills, schemes, m_context.making, m_parameters.pageSetup);
        std::size_t block = 0;
        for (std::size_t i = 0; i < schemes.size(); ++i) {
            const RunningScheme& scheme = schemes[i];
            const std::size_t first = block;
            while (block < m_draft.blocks.size() && m_draft.blocks[block].page <= scheme.lastPage)
                ++block;
            if (block > first || m_draft.sections.empty() || isBlank(scheme))
                addSections(scheme, bottoms[i], first, block);
        }
    }

private:
    /// Nothing flows on its pages, which keep their size nevertheless. What goes on there from the page before does so
    /// by itself, and so do notes.
    bool isBlank(const RunningScheme& scheme) const {
        for (std::size_t page = scheme.firstPage; page <= scheme.lastPage; ++page)
            if (!m_fills[page].isEmpty || (page < m_draft.noteAreas.size() && !m_draft.noteAreas[page].isEmpty()))
                return false;
        return true;
    }

    std::vector<SectionChance> chances() const {
        std::vector<SectionChance> chances(m_heads.size(), SectionChance::None);
        for (std::size_t i = 1; i < m_heads.size(); ++i) {
            const PageLayout& before = m_draft.pages[i - 1];
            const PageLayout& page = m_draft.pages[i];
            const double same = m_parameters.pageSetup.sameSize;
            const bool changesPaper =
                std::abs(before.width - page.width) > same || std::abs(before.height - page.height) > same;
            if (changesPaper)
                chances[i] = SectionChance::Must;
            else if (m_fills[i].hasFirstBlock && !m_fills[i].isSplit)
                chances[i] = SectionChance::May;
        }
        partWhereSignsChange(chances);
        return chances;
    }

    /// Pages counted in other signs are a section of their own, as front matter is: from its first page, be it numbered
    /// or not.
    void partWhereSignsChange(std::vector<SectionChance>& chances) const {
        std::optional<std::size_t> last;
        for (std::size_t i = 0; i < m_heads.size(); ++i) {
            const std::optional<PageNumber>& number = m_heads[i].number;
            if (!number)
                continue;
            if (last && m_heads[*last].number->format != number->format) {
                const auto before = static_cast<std::size_t>(std::max(number->value - 1, 0));
                const std::size_t first = i - std::min(i - *last - 1, before);
                if (chances[first] == SectionChance::May)
                    chances[first] = SectionChance::Must;
            }
            last = i;
        }
    }

    /// The sections of pages with one scheme: one, or several where the number of columns changes.
    void addSections(const RunningScheme& scheme, double bottomMargin, std::size_t first, std::size_t last) {
        const TextArea area = findTextArea(m_draft, m_fills, scheme, bottomMargin, m_parameters);
        DraftSection section;
        section.setup = setupOf(scheme, area.box);
        section.countsOtherwise = (numberOf(scheme) + static_cast<int>(scheme.firstPage)) % 2 == 0;
        m_runningText.make(section, scheme, area.seen);
        section.tops = area.tops;
        floatHangingPictures(first, last, area.tops);
        findOverlaidFigures(m_draft, first, last, m_parameters.floats);
        std::size_t from = first;
        do {
            const std::size_t to = endOfColumns(from, last);
            section.firstBlock = from;
            setColumns(section, from, to, area);
            m_draft.sections.push_back(section);
            section.setup.start = document::SectionStart::Continuous;
            section.setup.firstPageNumber.reset();
            from = to;
        } while (from < last);
        markBreaks(m_draft, m_fills, {first, last, area, m_context.making}, m_parameters.pageSetup);
        findWholeRows(m_draft, {first, last, area}, m_parameters.pageSetup);
    }

    /// A picture that reaches above the text area, or beside the one before it, was not typed into a line of its own.
    /// What floats hangs on the paragraph that follows, so such a one goes before the other, which stays on its page.
    void floatHangingPictures(std::size_t first, std::size_t last, const PageTops& tops) {
        std::optional<std::size_t> above;
        for (std::size_t i = first; i < last; ++i) {
            const DraftBlock& block = m_draft.blocks[i];
            auto* figure = std::get_if<FigureDraft>(&m_draft.blocks[i].value);
            if (!figure || !figure->isInline) {
                above.reset();
                continue;
            }
            const bool hangs = block.box.top < tops.of(block.page) - m_parameters.pageSetup.sameEdge;
            figure->isOverlaid = above && standsBeside(block, m_draft.blocks[*above]);
            figure->isInline = !hangs && !figure->isOverlaid;
            if (figure->isInline)
                above = i;
            else if (figure->isOverlaid)
                moveBefore((*above)++, i);
        }
    }

    void moveBefore(std::size_t place, std::size_t index) {
        const auto at = [&](std::size_t i) { return m_draft.blocks.begin() + static_cast<std::ptrdiff_t>(i); };
        std::rotate(at(place), at(index), at(index) + 1);
    }

    bool standsBeside(const DraftBlock& block, const DraftBlock& above) const {
        const double shared = overlap(block.box.top, block.box.bottom, above.box.top, above.box.bottom);
        return block.page == above.page && shared > m_parameters.pageSetup.besideShare * block.box.height();
    }

    document::Section setupOf(const RunningScheme& scheme, const Rect& area) const {
        const PageLayout& page = m_draft.pages[scheme.firstPage];
        document::Section setup;
        setup.pageWidth = twipsFromPoints(page.width);
        setup.pageHeight = twipsFromPoints(page.height);
        setup.marginLeft = twipsFromPoints(area.left);
        setup.marginTop = twipsFromPoints(area.top);
        setup.marginRight = twipsFromPoints(page.width - area.right);
        setup.marginBottom = twipsFromPoints(page.height - area.bottom);
        setup.isRightToLeft = m_context.isRightToLeft;
        setup.lineNumbers = m_draft.lineNumbers;
        if (const auto number = firstNumber(scheme))
            setup.pageNumberFormat = number->format;
        const int expected = scheme.firstPage == 0 ? 1 : lastNumberBefore(scheme.firstPage) + 1;
        if (const auto number = firstNumber(scheme); number && number->value != expected && number->value >= 0)
            setup.firstPageNumber = number->value;
        return setup;
    }

    /// The number that the scheme's first page has, though the page itself may not show it.
    std::optional<PageNumber> firstNumber(const RunningScheme& scheme) const {
        for (std::size_t page = scheme.firstPage; page <= scheme.lastPage; ++page)
            if (const auto& number = m_heads[page].number)
                return PageNumber{number->value - static_cast<int>(page - scheme.firstPage), number->format};
        return std::nullopt;
    }

    /// What word processors count the scheme's first page as.
    int numberOf(const RunningScheme& scheme) const {
        if (const auto number = firstNumber(scheme))
            return number->value;
        return scheme.firstPage == 0 ? 1 : lastNumberBefore(scheme.firstPage) + 1;
    }

    int lastNumberBefore(std::size_t page) const {
        for (std::size_t i = page; i-- > 0;)
            if (m_heads[i].number)
                return m_heads[i].number->value + static_cast<int>(page - 1 - i);
        return static_cast<int>(page);
    }

    const std::vector<ColumnSpan>& columnsOf(const DraftBlock& block) const {
        static const std::vector<ColumnSpan> kNone;
        const std::vector<Band>& bands = m_draft.pages[block.page].bands;
        const auto band = static_cast<std::size_t>(block.band);
        return band < bands.size() ? bands[band].columns : kNone;
    }

    bool hasSameColumns(const DraftBlock& a, const DraftBlock& b) const {
        const auto &left = columnsOf(a), &right = columnsOf(b);
        if (left.size() <= 1 || right.size() <= 1)
            return std::max<std::size_t>(1, left.size()) == std::max<std::size_t>(1, right.size());
        if (left.size() != right.size())
            return false;
        for (std::size_t i = 0; i < left.size(); ++i)
            if (std::abs(left[i].left - right[i].left) > m_parameters.pageSetup.sameColumn)
                return false;
        return true;
    }

    /// Columns under columns, which are read after these.
    bool beginsOtherColumns(const DraftBlock& before, const DraftBlock& block) const {
        return before.page == block.page && before.band != block.band && columnsOf(block).size() > 1;
    }

    std::size_t endOfColumns(std::size_t from, std::size_t last) const {
        std::size_t to = from;
        while (to < last && hasSameColumns(m_draft.blocks[from], m_draft.blocks[to]) &&
               (to == from || !beginsOtherColumns(m_draft.blocks[to - 1], m_draft.blocks[to])))
            ++to;
        return std::max(to, std::min(from + 1, last));
    }

    /// Pieces that go on from one column to the next stand in several.
    static void noteLines(const DraftBlock& block, std::vector<SeenColumn>& seen) {
        const DraftParagraph* paragraph = block.paragraph();
        if (!paragraph)
            return;
        for (const DraftPiece& piece : paragraph->pieces) {
            const auto column = static_cast<std::size_t>(piece.columnIndex);
            if (column < seen.size() && linesOf(*paragraph, piece) == ColumnLines::Wrapped)
                seen[column].lines = ColumnLines::Wrapped;
        }
    }

    void setColumns(DraftSection& section, std::size_t from, std::size_t to, const TextArea& area) {
        std::vector<SeenColumn> seen;
        bool hasSeparator = false;
        for (std::size_t i = from; i < to; ++i) {
            const std::vector<ColumnSpan>& columns = columnsOf(m_draft.blocks[i]);
            seen.resize(std::max(seen.size(), columns.size()), {{1e9, -1e9}, ColumnLines::EndedByHand});
            for (std::size_t c = 0; c < columns.size(); ++c)
                seen[c].span = {std::min(seen[c].span.left, columns[c].left),
                                std::max(seen[c].span.right, columns[c].right)};
            noteLines(m_draft.blocks[i], seen);
            const auto band = static_cast<std::size_t>(m_draft.blocks[i].band);
            const std::vector<Band>& bands = m_draft.pages[m_draft.blocks[i].page].bands;
            hasSeparator = hasSeparator || (band < bands.size() && bands[band].hasSeparator);
        }
        const std::vector<ColumnSpan> columns = fitColumns(seen, area.box, m_parameters.pageSetup);
        section.setup.columns = columnWidths(columns);
        section.setup.isRightToLeft =
            columns.size() > 1 ? columns.front().left > columns.back().left : m_context.isRightToLeft;
        section.setup.hasColumnSeparator = hasSeparator;
        const auto columnAt = [&columns](int index) {
            return columns[std::min(static_cast<std::size_t>(index), columns.size() - 1)];
        };
        for (std::size_t i = from; i < to; ++i) {
            DraftBlock& block = m_draft.blocks[i];
            if (DraftParagraph* paragraph = block.paragraph())
                for (DraftPiece& piece : paragraph->pieces)
                    piece.column = columns.size() == 1 ? area.seen : columnAt(piece.columnIndex);
            else
                block.textColumn = columnAt(block.column);
        }
    }

    DocumentDraft& m_draft;
    const std::vector<PageRunningHeads>& m_heads;
    const DocumentContext& m_context;
    const LayoutParameters& m_parameters;
    RunningTextMaker m_runningText;
    std::vector<PageFill> m_fills;
};

} // namespace

void makeSections(DocumentDraft& draft, const std::vector<PageRunningHeads>& heads, const DocumentContext& context,
                  const LayoutParameters& parameters, Diagnostics& diagnostics) {
    SectionMaker(draft, heads, context, parameters, diagnostics).run();
}

} // namespace orvane::layout
