#include "layout/structure/NoteFinder.h"

#include "layout/structure/NoteAreas.h"
#include "layout/structure/NoteKinds.h"
#include "layout/structure/NoteMark.h"
#include "layout/structure/NoteRows.h"
#include "layout/structure/NoteText.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace orvane::layout {
namespace {

/// A raised mark in the text.
struct Reference {
    std::size_t page = 0;
    Rect box;
    std::string text;
    bool isAlone = false; ///< on a line by itself, where only its size shows that it is raised
    bool isTaken = false;
};

class NoteTaker {
public:
    NoteTaker(std::vector<PageText>& pages, const DocumentContext& context, const StructureParameters::Notes& limits)
        : m_pages(pages)
        , m_context(context)
        , m_limits(limits) {
        m_found.areas.resize(pages.size());
        for (std::size_t i = 0; i < pages.size(); ++i) {
            m_areas.push_back(findNoteAreas(pages[i], context, limits));
            collectReferences(i);
        }
    }

    FoundNotes run() {
        for (std::size_t i = 0; i < m_pages.size(); ++i) {
            std::vector<bool> isTaken(m_pages[i].lines.size(), false);
            for (const NoteArea& area : m_areas[i])
                takeArea(i, area, isTaken);
            if (m_lastPage != i)
                takeWholePage(i, isTaken);
            if (m_lastPage != i)
                takeFoot(i, isTaken);
            if (m_lastPage != i)
                takeBelowGap(i, isTaken);
            removeTaken(m_pages[i], isTaken);
        }
        settleNoteKinds(m_found.notes, lastTextPage());
        std::stable_sort(m_found.notes.begin(), m_found.notes.end(),
                         [](const FoundNote& a, const FoundNote& b) { return a.referencePage < b.referencePage; });
        return std::move(m_found);
    }

private:
    using LineReferences = std::map<std::size_t, Reference*>; ///< by the line with which the note starts

    /// The raised marks in the text of a page; those at the start of a line are of notes, not of the text. In the areas
    /// of notes they are "m²", or notes on notes, which word processors do not have.
    void collectReferences(std::size_t index) {
        const PageText& page = m_pages[index];
        std::vector<bool> isInArea(page.lines.size(), false);
        for (const NoteArea& area : m_areas[index])
            for (const std::size_t line : area.lines)
                isInArea[line] = isInArea[line] || !area.hasRows;
        for (std::size_t i = 0; i < page.lines.size(); ++i)
            for (const Word& word : page.lines[i].words)
                for (const Span& span : word.spans) {
                    const bool startsText = &word == &page.lines[i].words.front() && &span == &word.spans.front() &&
                                            (page.lines[i].words.size() > 1 || word.spans.size() > 1);
                    if (!isInArea[i] && isRaisedMark(span) && !startsText)
                        addReference({index, span.box, span.text, false, false});
                    else if (!isInArea[i] && isSmallMark(page.lines[i]) && !startsNextLine(page, i))
                        addReference({index, span.box, span.text, true, false});
                }
    }

    bool isSmallMark(const Line& line) const {
        return isLoneMark(line) && line.fontSize <= m_limits.loneMarkSize * m_context.bodyFontSize;
    }

    /// Whether the mark stands before the line that follows it, as marks stand before their notes.
    static bool startsNextLine(const PageText& page, std::size_t mark) {
        return mark + 1 < page.lines.size() && isMarkOf(page.lines[mark], page.lines[mark + 1]) &&
               page.lines[mark + 1].box.left > page.lines[mark].box.left;
    }

    void addReference(Reference reference) {
        m_byMark[bareMark(reference.text)].push_back(m_references.size());
        m_references.push_back(std::move(reference));
    }

    /// The reference with that mark on the page, rather a raised one; else, for endnotes, on a page before.
    Reference* referenceTo(const std::string& mark, std::size_t page) {
        Reference* alone = nullptr;
        Reference* before = nullptr;
        const auto found = m_byMark.find(mark);
        if (found == m_byMark.end())
            return nullptr;
        for (const std::size_t index : found->second) {
            Reference& reference = m_references[index];
            if (reference.isTaken || reference.page > page)
                continue;
            if (reference.page == page && !reference.isAlone)
                return &reference;
            Reference*& other = reference.page == page ? alone : before;
            if (!other && (reference.page == page || !reference.isAlone))
                other = &reference;
        }
        return alone ? alone : before;
    }

    /// The reference with that mark on the page, above `bottom`.
    Reference* referenceAbove(const std::string& mark, std::size_t page, double bottom) {
        Reference* reference = referenceTo(mark, page);
        return reference && reference->page == page && reference->box.top < bottom ? reference : nullptr;
    }

    /// Likewise, a raised one.
    Reference* raisedReference(const std::string& mark, std::size_t page, double bottom) {
        Reference* reference = referenceAbove(mark, page, bottom);
        return reference && !reference->isAlone ? reference : nullptr;
    }

    /// Below columns such notes are of the title above them. There LibreOffice leaves most of a page empty if its
    /// columns have notes too, so they stay as text.
    static bool isThanks(const NoteArea& area, const NoteStart& start) {
        return area.isInColumn && isBorrowedMark(start.mark);
    }

    /// Whether the area has marks, each once, and the text above refers to all of them with raised ones.
    bool areAllReferredTo(std::size_t page, const NoteArea& area) {
        std::set<std::string> marks;
        return !area.starts.empty() && std::all_of(area.starts.begin(), area.starts.end(), [&](const NoteStart& start) {
            return raisedReference(start.mark, page, area.top) && marks.insert(start.mark).second;
        });
    }

    LineReferences matchStarts(std::size_t page, const NoteArea& area) {
        LineReferences matched;
        const auto take = [&matched](const NoteStart& start, Reference* reference) {
            if (!reference)
                return;
            reference->isTaken = true;
            matched[start.line] = reference;
        };
        for (const NoteStart& start : area.starts)
            take(start, isThanks(area, start) ? nullptr : referenceTo(start.mark, page));
        for (const NoteStart& start : area.wordStarts)
            take(start, raisedReference(start.mark, page, area.top));
        return matched;
    }

    void takeArea(std::size_t page, const NoteArea& area, std::vector<bool>& isTaken) {
        if (area.hasRows) {
            takeTable(page, area, isTaken);
            return;
        }
        const LineReferences matched = matchStarts(page, area);
        // Without a mark that the text has, the area may go on with the last note of the page or column before.
        if (matched.empty() && (!area.starts.empty() || !followsNotes(page) || !looksLikeLast(page, area)))
            return;
        takeLines(page, area, matched, isTaken);
    }

    /// What stands side by side below a rule may be the names in a chart; it is notes only if every mark there is one.
    void takeTable(std::size_t page, NoteArea area, std::vector<bool>& isTaken) {
        if (!areAllReferredTo(page, area))
            return;
        putMarksFirst(area, m_pages[page]);
        const LineReferences matched = matchStarts(page, area);
        takeLines(page, area, matched, isTaken);
    }

    /// Endnotes may fill pages of their own, with no rule above them.
    void takeWholePage(std::size_t page, std::vector<bool>& isTaken) {
        const auto area = wholePageOfNotes(m_pages[page], m_context, m_limits);
        if (!area)
            return;
        const LineReferences matched = matchStarts(page, *area);
        if (!matched.empty())
            takeLines(page, *area, matched, isTaken);
    }

    /// Some word processors draw no rule above notes, or one that is lost in the file; then the marks alone tell them.
    void takeFoot(std::size_t page, std::vector<bool>& isTaken) {
        auto area = notesAtFoot(m_pages[page], m_context, m_limits);
        if (!area)
            return;
        const auto first = std::find_if(area->starts.begin(), area->starts.end(), [&](const NoteStart& start) {
            return referenceAbove(start.mark, page, area->top) != nullptr;
        });
        if (first == area->starts.end())
            return;
        startWith(*area, first->line, m_pages[page]);
        LineReferences matched;
        for (const NoteStart& start : area->starts)
            if (Reference* reference = referenceAbove(start.mark, page, area->top)) {
                reference->isTaken = true;
                matched[start.line] = reference;
            }
        takeLines(page, *area, matched, isTaken);
    }

    /// Notes as large as the text, with no rule above them: the text above them refers to each with a raised mark.
    void takeBelowGap(std::size_t page, std::vector<bool>& isTaken) {
        const auto area = notesBelowGap(m_pages[page], m_context, m_limits);
        if (area && areAllReferredTo(page, *area))
            takeLines(page, *area, matchStarts(page, *area), isTaken);
    }

    /// The rule is drawn like the one above the last notes, and the text below it is of their size.
    bool looksLikeLast(std::size_t page, const NoteArea& area) const {
        const Rule& rule = m_pages[page].rules[*area.rule];
        const double size = m_pages[page].lines[area.lines.front()].fontSize;
        return m_lastRule && std::abs(rule.to - rule.from - m_lastRule->to + m_lastRule->from) < rule.width &&
               size == m_found.notes.back().content.lines.back().fontSize;
    }

    /// On the page before, or in a column before.
    bool followsNotes(std::size_t page) const { return m_lastPage == page || m_lastPage + 1 == page; }

    void takeLines(std::size_t page, const NoteArea& area, const LineReferences& matched, std::vector<bool>& isTaken) {
        PageText& source = m_pages[page];
        FoundNote* note = followsNotes(page) ? &m_found.notes.back() : nullptr;
        std::vector<Line> lines;
        Rect box;
        const auto finishNote = [&] {
            if (note)
                addNoteLines(note->content, source, std::exchange(lines, {}), leadingOf(note->content),
                             note->left - area.left);
        };
        for (const std::size_t index : area.lines) {
            if (source.lines[index].words.empty()) {
                isTaken[index] = true; // its mark stands before the note
                continue;
            }
            const auto found = matched.find(index);
            if (found != matched.end()) {
                finishNote();
                note = &startNote(page, area, *found->second);
                partMark(source.lines[index]);
            }
            if (!note)
                continue; // above the first mark, with no note before to go on with
            box = box.united(source.lines[index].box);
            if (lines.size() == 1 && isMarkOf(lines.front(), source.lines[index])) {
                prependMark(source.lines[index], lines.front());
                lines.clear();
            }
            lines.push_back(std::move(source.lines[index]));
            isTaken[index] = true;
        }
        finishNote();
        if (area.rule) {
            box.top = std::min(box.top, area.top);
            useRules(source, area.top);
            m_lastRule = source.rules[*area.rule];
        }
        m_found.areas[page] = m_found.areas[page].united(box);
        m_lastPage = page;
    }

    /// Some producers draw the rule above the notes twice.
    static void useRules(PageText& page, double position) {
        for (Rule& rule : page.rules)
            if (rule.direction == RuleDirection::Horizontal && std::abs(rule.position - position) < rule.width)
                rule.isUsed = true;
    }

    double leadingOf(const PageText& note) const {
        return note.lines.empty() ? 0 : m_context.bodyLeading / m_context.bodyFontSize * note.lines.back().fontSize;
    }

    FoundNote& startNote(std::size_t page, const NoteArea& area, const Reference& reference) {
        if (reference.isAlone)
            raise(m_pages[reference.page], reference.box);
        m_found.notes.push_back({document::NoteKind::Footnote, reference.text, reference.page, reference.box,
                                 pageForNote(m_pages[page]), area.left, page});
        return m_found.notes.back();
    }

    /// Makes the mark look like the others, by which it is known later.
    void raise(PageText& page, const Rect& box) const {
        for (Line& line : page.lines)
            for (Word& word : line.words)
                for (Span& span : word.spans)
                    if (span.box == box) {
                        span.look.verticalPosition = document::VerticalPosition::Superscript;
                        span.look.size = m_context.bodyFontSize;
                    }
    }

    /// The last page on which something is left.
    std::size_t lastTextPage() const {
        const auto last =
            std::find_if(m_pages.rbegin(), m_pages.rend(), [](const PageText& page) { return !page.lines.empty(); });
        return last == m_pages.rend() ? 0 : static_cast<std::size_t>(m_pages.rend() - last) - 1;
    }

    static void removeTaken(PageText& page, const std::vector<bool>& isTaken) {
        std::vector<Line> rest;
        for (std::size_t i = 0; i < page.lines.size(); ++i)
            if (!isTaken[i])
                rest.push_back(std::move(page.lines[i]));
        page.lines = std::move(rest);
    }

    std::vector<PageText>& m_pages;
    const DocumentContext& m_context;
    const StructureParameters::Notes& m_limits;
    std::vector<std::vector<NoteArea>> m_areas; ///< by page
    std::vector<Reference> m_references;
    std::map<std::string, std::vector<std::size_t>> m_byMark; ///< indices into m_references
    FoundNotes m_found;
    std::optional<Rule> m_lastRule;                        ///< above the notes taken last
    std::size_t m_lastPage = static_cast<std::size_t>(-2); ///< on which notes were taken last
};

} // namespace

FoundNotes takeNotes(std::vector<PageText>& pages, const DocumentContext& context, const LayoutParameters& parameters) {
    return NoteTaker(pages, context, parameters.notes).run();
}

} // namespace orvane::layout
