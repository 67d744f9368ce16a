#include "layout/structure/OutlineMatcher.h"

#include "layout/structure/DraftText.h"
#include "layout/structure/DraftWalk.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>

namespace orvane::layout {
namespace {

constexpr int kDeepestLevel = 9;

struct FlatEntry {
    std::string title;     ///< comparable()
    std::string bareTitle; ///< without its number
    int page = 0;
    int level = 1;
    std::size_t numberDepth = 0;
};

/// How many numbers an entry starts with: 2 for "3.1 Aims", 0 without any.
std::size_t numberDepth(const std::string& title) {
    std::size_t depth = 0;
    const auto isDigit = [&title](std::size_t i) { return i < title.size() && title[i] >= '0' && title[i] <= '9'; };
    for (std::size_t i = 0; isDigit(i); ++i) {
        ++depth;
        while (isDigit(i))
            ++i;
        if (i == title.size() || title[i] != '.')
            break;
    }
    return depth;
}

void flatten(const std::vector<pdf::OutlineEntry>& entries, int level, std::vector<FlatEntry>& flat) {
    for (const pdf::OutlineEntry& entry : entries) {
        flat.push_back({comparable(entry.title), comparableWithoutNumber(entry.title), entry.destination.page, level,
                        numberDepth(entry.title)});
        flatten(entry.children, level + 1, flat);
    }
}

/// Whether entries with as many numbers mostly stand on one level; some producers nest each below the one before.
bool agreesWithNumbers(const std::vector<FlatEntry>& entries) {
    constexpr std::size_t kFewest = 5;
    std::map<std::size_t, std::map<int, std::size_t>> levels; // by depth of number: entries on each level
    std::size_t numbered = 0, agreeing = 0;
    for (const FlatEntry& entry : entries)
        if (entry.numberDepth > 0)
            ++levels[entry.numberDepth][entry.level];
    for (const auto& [depth, counts] : levels) {
        std::size_t most = 0;
        for (const auto& [level, count] : counts) {
            numbered += count;
            most = std::max(most, count);
        }
        agreeing += most;
    }
    return numbered < kFewest || 2 * agreeing >= numbered;
}

bool reads(const std::string& text, const FlatEntry& entry) {
    return !text.empty() && (comparable(text) == entry.title || comparableWithoutNumber(text) == entry.bareTitle);
}

std::string textOf(const std::vector<Line>& lines, std::size_t from, std::size_t to) {
    std::string text;
    for (std::size_t i = from; i < to; ++i) {
        if (!text.empty())
            text += ' ';
        text += orvane::layout::textOf(lines[i]);
    }
    return text;
}

/// A paragraph of lines `from` to `to` of a piece.
DraftBlock cutOut(const DraftBlock& block, const DraftPiece& piece, std::size_t from, std::size_t to) {
    DraftBlock cut;
    cut.page = piece.page;
    cut.band = piece.band;
    cut.column = piece.columnIndex;
    DraftPiece part = piece;
    const auto at = [&](std::size_t i) { return piece.text.lines.begin() + static_cast<std::ptrdiff_t>(i); };
    part.text.lines.assign(at(from), at(to));
    part.text.box = {};
    for (const Line& line : part.text.lines)
        part.text.box = part.text.box.united(line.box);
    if (from > 0)
        part.text.firstLine = part.text.lines.front().box.left - (block.box.left + piece.text.indentStart);
    std::erase_if(part.text.hardBreaks, [&](std::size_t line) { return line < from || line + 1 >= to; });
    for (std::size_t& line : part.text.hardBreaks)
        line -= from;
    cut.box = part.text.box;
    DraftParagraph paragraph;
    paragraph.pieces.push_back(std::move(part));
    cut.value = std::move(paragraph);
    return cut;
}

class Matcher {
public:
    explicit Matcher(DocumentDraft& draft)
        : m_draft(draft) {}

    bool match(const FlatEntry& entry) {
        return !entry.title.empty() && (matchWhole(entry) || matchSeveral(entry) || matchPart(entry));
    }

private:
    bool isFree(const DraftParagraph& paragraph) const { return paragraph.role == ParagraphRole::Body; }

    static void makeHeading(DraftParagraph& paragraph, const FlatEntry& entry) {
        paragraph.role = ParagraphRole::Heading;
        paragraph.level = std::min(entry.level, kDeepestLevel);
    }

    bool isOnPage(const DraftBlock& block, const FlatEntry& entry) const {
        return m_draft.pages[block.page].number == entry.page;
    }

    bool matchWhole(const FlatEntry& entry) {
        bool isFound = false;
        forEachParagraph(m_draft.blocks, [&](DraftParagraph& paragraph) {
            if (isFound || m_draft.pages[paragraph.pieces.front().page].number != entry.page || !isFree(paragraph) ||
                !reads(orvane::layout::textOf(paragraph), entry))
                return;
            makeHeading(paragraph, entry);
            isFound = true;
        });
        return isFound;
    }

    /// A heading of several lines each of which was taken for a paragraph.
    bool matchSeveral(const FlatEntry& entry) {
        for (std::size_t i = 0; i < m_draft.blocks.size(); ++i) {
            if (!isOnPage(m_draft.blocks[i], entry))
                continue;
            std::string text;
            for (std::size_t j = i; j < m_draft.blocks.size(); ++j) {
                const DraftParagraph* paragraph = m_draft.blocks[j].paragraph();
                if (!paragraph || !isFree(*paragraph) || !isOnPage(m_draft.blocks[j], entry))
                    break;
                text += ' ';
                text += orvane::layout::textOf(*paragraph);
                const std::string key = comparable(text);
                if (!entry.title.starts_with(key))
                    break;
                if (key == entry.title) {
                    join(i, j);
                    makeHeading(*m_draft.blocks[i].paragraph(), entry);
                    return true;
                }
            }
        }
        return false;
    }

    /// Makes one paragraph of blocks `first` to `last`, its lines broken where they were.
    void join(std::size_t first, std::size_t last) {
        ParagraphDraft& target = m_draft.blocks[first].paragraph()->pieces.back().text;
        for (std::size_t i = first + 1; i <= last; ++i) {
            for (DraftPiece& piece : m_draft.blocks[i].paragraph()->pieces) {
                target.hardBreaks.push_back(target.lines.size() - 1);
                target.lines.insert(target.lines.end(), std::make_move_iterator(piece.text.lines.begin()),
                                    std::make_move_iterator(piece.text.lines.end()));
            }
            m_draft.blocks[first].box = m_draft.blocks[first].box.united(m_draft.blocks[i].box);
        }
        target.box = m_draft.blocks[first].box;
        const auto at = [&](std::size_t i) { return m_draft.blocks.begin() + static_cast<std::ptrdiff_t>(i); };
        m_draft.blocks.erase(at(first + 1), at(last + 1));
    }

    /// Lines of a longer paragraph.
    bool matchPart(const FlatEntry& entry) {
        for (std::size_t i = 0; i < m_draft.blocks.size(); ++i) {
            const DraftBlock& block = m_draft.blocks[i];
            const DraftParagraph* paragraph = block.paragraph();
            if (!paragraph || !isFree(*paragraph) || !isOnPage(block, entry) || paragraph->pieces.size() > 1)
                continue;
            const std::vector<Line>& lines = paragraph->pieces.front().text.lines;
            for (std::size_t from = 0; from < lines.size(); ++from) {
                for (std::size_t to = from + 1; to <= lines.size(); ++to) {
                    const std::string text = textOf(lines, from, to);
                    if (reads(text, entry)) {
                        split(i, from, to);
                        makeHeading(*m_draft.blocks[i + (from > 0 ? 1 : 0)].paragraph(), entry);
                        return true;
                    }
                    if (comparable(text).size() > entry.title.size())
                        break;
                }
            }
        }
        return false;
    }

    /// Parts a block before line `from` and behind line `to`.
    void split(std::size_t index, std::size_t from, std::size_t to) {
        const DraftBlock block = std::move(m_draft.blocks[index]);
        const DraftPiece& piece = block.paragraph()->pieces.front();
        std::vector<DraftBlock> parts;
        if (from > 0)
            parts.push_back(cutOut(block, piece, 0, from));
        parts.push_back(cutOut(block, piece, from, to));
        if (to < piece.text.lines.size())
            parts.push_back(cutOut(block, piece, to, piece.text.lines.size()));
        const auto place = m_draft.blocks.erase(m_draft.blocks.begin() + static_cast<std::ptrdiff_t>(index));
        m_draft.blocks.insert(place, std::make_move_iterator(parts.begin()), std::make_move_iterator(parts.end()));
    }

    DocumentDraft& m_draft;
};

} // namespace

OutlineMatch matchOutline(DocumentDraft& draft, const std::vector<pdf::OutlineEntry>& outline) {
    std::vector<FlatEntry> entries;
    flatten(outline, 1, entries);
    if (!agreesWithNumbers(entries))
        return {};
    DocumentDraft marked = draft;
    Matcher matcher(marked);
    OutlineMatch match;
    for (const FlatEntry& entry : entries) {
        if (entry.page == 0)
            continue;
        ++match.entries;
        match.found += matcher.match(entry);
    }
    if (match.isTrustworthy())
        draft = std::move(marked);
    return match;
}

} // namespace orvane::layout
