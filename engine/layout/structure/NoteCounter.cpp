#include "layout/structure/NoteCounter.h"

#include "document/ListLabels.h"
#include "layout/structure/NoteMark.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace orvane::layout {
namespace {

using document::CountStart;
using document::NoteKind;
using document::NoteNumbering;
using document::NumberFormat;

// The first of each is what word processors take by themselves.
constexpr std::array kFootnoteFormats = {NumberFormat::Decimal, NumberFormat::LowerLetter, NumberFormat::LowerRoman,
                                         NumberFormat::Symbols};
constexpr std::array kEndnoteFormats = {NumberFormat::LowerRoman, NumberFormat::Decimal, NumberFormat::LowerLetter,
                                        NumberFormat::Symbols};
constexpr std::array kStarts = {CountStart::Continuous, CountStart::EachPage, CountStart::EachSection};
/// A single mark of another kind is one of its author's own.
constexpr int kFewestMarks = 2;

/// A note's mark with what its count may start anew with.
struct CountedMark {
    DraftNoteReference* reference = nullptr;
    std::string mark;
    std::size_t section = 0;
};

/// Counts on as the numbering says, with the marks that it gives.
class MarkCounter {
public:
    explicit MarkCounter(const NoteNumbering& numbering)
        : m_numbering(numbering) {}

    bool isCounted(const CountedMark& mark) {
        const std::size_t place = m_numbering.count == CountStart::EachPage      ? mark.reference->page
                                  : m_numbering.count == CountStart::EachSection ? mark.section
                                                                                 : 0;
        if (place != m_place)
            m_next = 1;
        m_place = place;
        if (mark.mark != document::formatNumber(m_next, m_numbering.format))
            return false;
        ++m_next;
        return true;
    }

private:
    NoteNumbering m_numbering;
    std::size_t m_place = 0;
    int m_next = 1;
};

std::ptrdiff_t countedWith(const NoteNumbering& numbering, const std::vector<CountedMark>& marks) {
    MarkCounter counter(numbering);
    return std::count_if(marks.begin(), marks.end(),
                         [&counter](const CountedMark& mark) { return counter.isCounted(mark); });
}

/// The numbering that gives most of the marks.
NoteNumbering findNumbering(const std::vector<CountedMark>& marks, std::span<const NumberFormat> formats) {
    NoteNumbering best{formats.front(), CountStart::Continuous};
    std::ptrdiff_t most = countedWith(best, marks);
    for (const NumberFormat format : formats)
        for (const CountStart start : kStarts) {
            const NoteNumbering numbering{format, start};
            const std::ptrdiff_t counted = countedWith(numbering, marks);
            if (counted <= most || (format != formats.front() && counted < kFewestMarks))
                continue;
            best = numbering;
            most = counted;
        }
    return best;
}

/// The section of a place: the last one that starts above it.
std::size_t sectionOf(const DraftNoteReference& reference, const DocumentDraft& draft) {
    std::size_t section = 0;
    for (std::size_t i = 1; i < draft.sections.size(); ++i) {
        const std::size_t first = draft.sections[i].firstBlock;
        if (first >= draft.blocks.size())
            break;
        const DraftBlock& block = draft.blocks[first];
        if (block.page < reference.page || (block.page == reference.page && block.box.top <= reference.box.centerY()))
            section = i;
    }
    return section;
}

NoteNumbering countKind(DocumentDraft& draft, NoteKind kind, std::span<const NumberFormat> formats) {
    std::vector<CountedMark> marks;
    for (DraftNoteReference& reference : draft.noteReferences)
        if (draft.notes[reference.note].kind == kind)
            marks.push_back({&reference, usualMark(reference.mark), sectionOf(reference, draft)});
    const NoteNumbering numbering = findNumbering(marks, formats);
    MarkCounter counter(numbering);
    for (const CountedMark& mark : marks)
        mark.reference->isCounted = counter.isCounted(mark);
    return numbering;
}

} // namespace

void countNotes(DocumentDraft& draft) {
    draft.footnoteNumbering = countKind(draft, NoteKind::Footnote, kFootnoteFormats);
    draft.endnoteNumbering = countKind(draft, NoteKind::Endnote, kEndnoteFormats);
}

} // namespace orvane::layout
