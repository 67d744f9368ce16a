#include "layout/structure/NumeralHeadings.h"

#include "base/Utf8.h"
#include "layout/structure/DraftText.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace orvane::layout {
namespace {

constexpr int kGreatestNumeral = 39; ///< that is written with the parts below

/// The value of "IV."; 0 for what is none.
int numeralOf(const std::string& word) {
    static constexpr std::pair<int, std::string_view> kParts[] = {{10, "X"}, {9, "IX"}, {5, "V"}, {4, "IV"}, {1, "I"}};
    if (word.size() < 2 || word.back() != '.')
        return 0;
    std::string_view rest(word.data(), word.size() - 1);
    int value = 0;
    for (const auto& [part, letters] : kParts)
        for (int times = 0; times < 3 && rest.starts_with(letters); ++times) {
            value += part;
            rest.remove_prefix(letters.size());
        }
    return rest.empty() && value <= kGreatestNumeral ? value : 0;
}

/// The value of "C."; 0 for what is none.
int letterOf(const std::string& word) {
    return word.size() == 2 && word[1] == '.' && word[0] >= 'A' && word[0] <= 'Z' ? word[0] - 'A' + 1 : 0;
}

/// How the words from `first` on are set.
struct Setting {
    std::size_t letters = 0;
    std::size_t capitals = 0; ///< small ones among them
    std::size_t slanted = 0;

    bool isCapital() const { return letters > 2 && capitals == letters; }
    bool isSlanted() const { return letters > 2 && slanted == letters; }
};

Setting settingOf(const DraftParagraph& paragraph, std::size_t first) {
    Setting setting;
    for (const Line& line : paragraph.pieces.front().text.lines) {
        for (std::size_t i = first; i < line.words.size(); ++i)
            for (const Span& span : line.words[i].spans)
                for (const char32_t c : utf32FromUtf8(span.text)) {
                    if (!isLetter(c))
                        continue;
                    ++setting.letters;
                    setting.capitals += span.look.isSmallCaps || !isLowerCase(c);
                    setting.slanted += span.look.isItalic;
                }
        first = 0;
    }
    return setting;
}

class NumeralFinder {
public:
    NumeralFinder(DocumentDraft& draft, const StructureParameters::Headings& limits)
        : m_draft(draft)
        , m_limits(limits) {}

    void run() {
        findSections();
        if (m_lastNumeral < m_limits.fewestNumerals)
            return;
        findParts();
        for (const auto& [paragraph, level] : m_found) {
            paragraph->role = ParagraphRole::Heading;
            paragraph->level = level;
        }
    }

private:
    /// The sections by their numerals, and what is set as they are behind the first of them.
    void findSections() {
        for (std::size_t i = 0; i < m_draft.blocks.size(); ++i) {
            DraftParagraph* paragraph = shortParagraph(i);
            if (!paragraph)
                continue;
            const bool isNext = numeralOf(firstWord(*paragraph)) == m_lastNumeral + 1;
            if (!settingOf(*paragraph, isNext ? 1 : 0).isCapital())
                continue;
            if (isNext)
                ++m_lastNumeral;
            else if (m_lastNumeral == 0 || numeralOf(firstWord(*paragraph)) > 0 || !standsAsSections(*paragraph))
                continue;
            m_found.emplace_back(paragraph, 1);
            m_sections.push_back(i);
        }
    }

    /// The parts of sections by their letters.
    void findParts() {
        int last = 0;
        for (std::size_t i = m_sections.front(); i < m_draft.blocks.size(); ++i) {
            if (std::binary_search(m_sections.begin(), m_sections.end(), i))
                last = 0;
            DraftParagraph* paragraph = shortParagraph(i);
            if (!paragraph || letterOf(firstWord(*paragraph)) != last + 1 || !settingOf(*paragraph, 1).isSlanted())
                continue;
            ++last;
            m_found.emplace_back(paragraph, 2);
        }
    }

    /// Without a number it must be centred as the sections' headings are.
    static bool standsAsSections(const DraftParagraph& paragraph) {
        return paragraph.pieces.front().text.alignment == document::Alignment::Center;
    }

    DraftParagraph* shortParagraph(std::size_t block) {
        DraftParagraph* paragraph = m_draft.blocks[block].paragraph();
        if (!paragraph || paragraph->role != ParagraphRole::Body || paragraph->pieces.size() > 1 ||
            paragraph->pieces.front().text.lines.size() > static_cast<std::size_t>(m_limits.maximumLines) ||
            paragraph->firstLine().angle != 0)
            return nullptr;
        const std::string text = textOf(*paragraph);
        const bool isShort = text.size() <= static_cast<std::size_t>(m_limits.maximumLength);
        return isShort && !text.ends_with('.') && !text.ends_with(',') ? paragraph : nullptr;
    }

    static std::string firstWord(const DraftParagraph& paragraph) {
        return textOf(paragraph.firstLine().words.front());
    }

    DocumentDraft& m_draft;
    const StructureParameters::Headings& m_limits;
    int m_lastNumeral = 0;
    std::vector<std::size_t> m_sections; ///< indices of blocks
    std::vector<std::pair<DraftParagraph*, int>> m_found;
};

} // namespace

void findNumeralHeadings(DocumentDraft& draft, const StructureParameters::Headings& parameters) {
    NumeralFinder(draft, parameters).run();
}

} // namespace orvane::layout
