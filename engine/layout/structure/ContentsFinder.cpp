#include "layout/structure/ContentsFinder.h"

#include "layout/structure/DraftText.h"
#include "layout/text/LabelText.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace orvane::layout {
namespace {

/// A paragraph that may be an entry of a table of contents.
struct Entry {
    DraftParagraph* paragraph = nullptr;
    int pageNumber = 0;     ///< 0 for one written in Roman numerals
    bool hasLeader = false; ///< dots or the like before the number
    std::string title;      ///< see comparableWithoutNumber()
};

bool isRoman(const std::string& text) {
    return !text.empty() && text.find_first_not_of("ivxlcIVXLC") == std::string::npos;
}

std::optional<int> pageNumberOf(const std::string& text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc() && end == text.data() + text.size() && number > 0)
        return number;
    return isRoman(text) ? std::optional(0) : std::nullopt;
}

/// How many words at the end of a line are the number of a page: one, or three with a dash on both sides of it.
std::size_t wordsOfNumber(const Line& line) {
    const auto count = line.words.size();
    return count > 3 && isDash(textOf(line.words[count - 1])) && isDash(textOf(line.words[count - 3])) ? 3 : 1;
}

std::string withoutLastWords(const DraftParagraph& paragraph, std::size_t count) {
    std::string text = textOf(paragraph);
    for (; count > 0 && !text.empty(); --count) {
        const std::size_t blank = text.rfind(' ');
        text.resize(blank == std::string::npos ? 0 : blank);
    }
    return text;
}

std::optional<Entry> readEntry(DraftBlock& block) {
    DraftParagraph* paragraph = block.paragraph();
    if (!paragraph || paragraph->role != ParagraphRole::Body || paragraph->pieces.size() != 1)
        return std::nullopt;
    const Line& last = paragraph->lastLine();
    if (last.angle != 0 || last.words.size() < 2)
        return std::nullopt;
    const std::size_t count = wordsOfNumber(last);
    const Word& first = last.words[last.words.size() - count];
    const auto number = pageNumberOf(textOf(last.words[last.words.size() - 1 - count / 2]));
    if (!number || first.gapBefore != Gap::Tab)
        return std::nullopt;
    return Entry{paragraph, *number, first.leaderBefore != document::TabLeader::None,
                 comparableWithoutNumber(withoutLastWords(*paragraph, count))};
}

/// The texts of all paragraphs of the body, to tell what an entry may name.
std::unordered_set<std::string> titlesOf(const DocumentDraft& draft) {
    std::unordered_set<std::string> titles;
    for (const DraftBlock& block : draft.blocks)
        if (const DraftParagraph* paragraph = block.paragraph())
            titles.insert(comparableWithoutNumber(textOf(*paragraph)));
    return titles;
}

double startOf(const DraftParagraph& paragraph) {
    const Line& line = paragraph.firstLine();
    const ColumnSpan& column = paragraph.pieces.front().column;
    return line.isRightToLeft ? column.right - line.box.right : line.box.left - column.left;
}

/// Marks the entries, the level of each by how far it is indented among the others.
void markEntries(const std::vector<Entry>& run, const StructureParameters::Contents& limits) {
    std::vector<double> starts;
    for (const Entry& entry : run)
        starts.push_back(startOf(*entry.paragraph));
    std::sort(starts.begin(), starts.end());
    starts.erase(std::unique(starts.begin(), starts.end(),
                             [&](double a, double b) { return std::abs(a - b) <= limits.sameIndent; }),
                 starts.end());
    for (const Entry& entry : run) {
        const double start = startOf(*entry.paragraph);
        const auto level = std::find_if(starts.begin(), starts.end(),
                                        [&](double known) { return std::abs(known - start) <= limits.sameIndent; });
        entry.paragraph->role = ParagraphRole::ContentsEntry;
        entry.paragraph->level = std::min(limits.deepestLevel, static_cast<int>(level - starts.begin()) + 1);
    }
}

class RunCollector {
public:
    RunCollector(const DocumentDraft& draft, const StructureParameters::Contents& limits)
        : m_titles(titlesOf(draft))
        , m_limits(limits) {}

    void add(Entry entry) {
        const bool isInOrder = m_run.empty() || entry.pageNumber == 0 || entry.pageNumber >= m_run.back().pageNumber;
        if (!isInOrder)
            finish();
        m_run.push_back(std::move(entry));
    }

    void finish() {
        if (isContents())
            markEntries(m_run, m_limits);
        m_run.clear();
    }

private:
    bool isContents() const {
        if (m_run.size() < m_limits.fewestEntries)
            return false;
        const auto sure = std::count_if(m_run.begin(), m_run.end(), [&](const Entry& entry) {
            return entry.hasLeader || (!entry.title.empty() && m_titles.contains(entry.title));
        });
        return static_cast<double>(sure) >= m_limits.sureShare * static_cast<double>(m_run.size());
    }

    std::unordered_set<std::string> m_titles;
    const StructureParameters::Contents& m_limits;
    std::vector<Entry> m_run;
};

} // namespace

void findContents(DocumentDraft& draft, const LayoutParameters& parameters) {
    RunCollector runs(draft, parameters.contents);
    for (DraftBlock& block : draft.blocks) {
        if (auto entry = readEntry(block))
            runs.add(std::move(*entry));
        else
            runs.finish();
    }
    runs.finish();
}

} // namespace orvane::layout
