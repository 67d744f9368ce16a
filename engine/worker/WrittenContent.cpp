#include "worker/WrittenContent.h"

#include "base/Utf8.h"
#include "document/FormulaText.h"
#include "document/ListLabels.h"
#include "layout/text/Characters.h"

#include <algorithm>
#include <optional>
#include <type_traits>
#include <variant>

namespace orvane::worker {
namespace {

using namespace document;

constexpr int kNoPage = 0;
constexpr std::size_t kLongestRoman = 7; // "xxxviii": no front matter is longer

std::size_t countCharacters(std::u32string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char32_t c) { return !layout::isBlank(c); }));
}

std::size_t lettersOf(const std::string& text) {
    return layout::countLetters(utf32FromUtf8(text));
}

/// Walks blocks and puts what stands in them to their pages.
class ContentSorter {
public:
    /// `lastPage` of the source: its number is the longest one.
    ContentSorter(const Document& document, int lastPage, WrittenContent& content)
        : m_document(document)
        , m_labels(document)
        , m_digitsOfPages(std::to_string(lastPage).size())
        , m_lettersOfNumber(m_digitsOfPages)
        , m_content(content) {}

    void add(const std::vector<Block>& blocks) {
        for (const Block& block : blocks)
            std::visit([this](const auto& value) { add(value); }, block.value);
    }

    /// All of it counts to one page, wherever it says that it came from.
    void addTo(int page, const std::vector<Block>& blocks) {
        m_only = page;
        add(blocks);
        m_only.reset();
    }

    /// A note with its mark. It may go on at the foot of the next page.
    void add(const Note& note, std::size_t index) {
        const std::size_t before = m_letters;
        turnTo(note.origin.page);
        addMark(m_marks[index]);
        add(note.blocks);
        turnTo(note.origin.page);
        page().letters -= m_letters - before;
        page().noteLetters += m_letters - before;
    }

    /// Pages are counted so in the heads and feet that are added from now on.
    void countPagesIn(NumberFormat format) {
        const bool isRoman = format == NumberFormat::LowerRoman || format == NumberFormat::UpperRoman;
        m_lettersOfNumber = isRoman ? kLongestRoman : m_digitsOfPages;
    }

    /// The letters of a head or foot, whose own page is none of the source.
    std::size_t addRunning(const std::optional<std::vector<Block>>& blocks) {
        const std::size_t before = m_letters;
        if (blocks)
            addTo(kNoPage, *blocks);
        return m_letters - before;
    }

private:
    void add(const Paragraph& paragraph) {
        m_paragraph = &paragraph;
        m_nextTurn = 0;
        m_lettersRead = 0;
        turnTo(paragraph.origin.page);
        if (paragraph.list)
            addLetters(m_labels.next(*paragraph.list));
        add(paragraph.inlines);
    }

    void add(const Table& table) {
        std::size_t headLetters = 0;
        std::set<int> pages;
        for (const TableRow& row : table.rows) {
            const std::size_t before = m_letters;
            for (const TableCell& cell : row.cells) {
                add(cell.blocks);
                if (!row.isHeader)
                    pages.insert(m_page);
            }
            headLetters += row.isHeader ? m_letters - before : 0;
        }
        for (const int page : pages)
            if (page != table.origin.page)
                m_content.pages[page].letters += headLetters;
    }

    void add(const Figure& figure) {
        turnTo(figure.origin.page);
        if (const auto* picture = std::get_if<Picture>(&figure.content))
            countPicture(*picture);
        addFigure(figure.origin);
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
        if constexpr (std::is_same_v<T, Text>)
            addRun(item);
        else if constexpr (std::is_same_v<T, Picture>)
            addPicture(item);
        else if constexpr (std::is_same_v<T, Formula>)
            m_content.characters += countCharacters(utf32FromUtf8(linearText(item.content)));
        else if constexpr (std::is_same_v<T, NoteReference>)
            addReference(item);
        else if constexpr (std::is_same_v<T, Link>)
            addLink(item);
        else if constexpr (std::is_same_v<T, Field>)
            addField(item);
        else if constexpr (std::is_same_v<T, ContentControl>)
            addControl(item);
    }

    void addRun(const Text& run) {
        const std::u32string characters = utf32FromUtf8(run.text);
        std::u32string part;
        for (const char32_t c : characters) {
            const bool isLetter = layout::countLetters({&c, 1}) > 0;
            if (isLetter && isAtTurn()) {
                addText(part, run.properties.isHidden);
                part.clear();
                turn();
            }
            m_lettersRead += isLetter ? 1 : 0;
            part += c;
        }
        addText(part, run.properties.isHidden);
    }

    bool isAtTurn() const {
        return m_paragraph && m_nextTurn < m_paragraph->turns.size() &&
               m_lettersRead >= m_paragraph->turns[m_nextTurn].letters;
    }

    void addText(std::u32string text, bool isHidden) {
        std::erase_if(text, [](char32_t c) { return layout::isBlank(c); });
        page().text += utf8FromUtf32(text);
        if (isHidden) // nor was it counted where it was read
            return;
        m_content.characters += text.size();
        addLetters(layout::countLetters(text));
    }

    void addLetters(const std::string& text) { addLetters(lettersOf(text)); }
    void addLetters(std::size_t letters) {
        m_letters += letters;
        page().letters += letters;
    }

    void addReference(const NoteReference& reference) {
        std::string& mark = m_marks[reference.note];
        mark = reference.customMark.empty() ? nextMark(m_document.notes[reference.note].kind) : reference.customMark;
        addMark(mark);
    }

    /// Counted on through the document; a count that starts anew gives shorter marks, not longer ones.
    std::string nextMark(NoteKind kind) {
        const bool isFootnote = kind == NoteKind::Footnote;
        return formatNumber(isFootnote ? ++m_footnotes : ++m_endnotes,
                            (isFootnote ? m_document.footnoteNumbering : m_document.endnoteNumbering).format);
    }

    /// A note's mark in the text, or at the note. Each leads to the other.
    void addMark(const std::string& mark) {
        addLetters(lettersOf(mark));
        ++page().innerLinks;
    }

    /// Fields may have more digits on other pages than where they were read.
    void addField(const Field& field) {
        const std::size_t before = m_letters;
        add(field.result);
        const bool isNumber = field.code == FieldCode::Page || field.code == FieldCode::PageCount;
        if (const std::size_t shown = m_letters - before; m_only == kNoPage && isNumber && shown < m_lettersOfNumber)
            addLetters(m_lettersOfNumber - shown);
    }

    void addPicture(const Picture& picture) {
        countPicture(picture);
        addFigure(picture.origin);
    }

    void countPicture(const Picture& picture) {
        ++m_content.pictures;
        if (picture.link)
            addTarget(*picture.link);
    }

    void addLink(const Link& link) {
        if (isAtTurn())
            turn();
        addTarget(link.target);
        add(link.inlines);
    }

    void addTarget(const LinkTarget& target) {
        ++m_content.links;
        if (!target.uri.empty())
            m_content.addresses.insert(target.uri);
        else
            ++page().innerLinks;
    }

    void addControl(const ContentControl& control) {
        if (control.isChecked)
            m_content.checkedNames.insert(control.name);
        add(control.content);
    }

    void addFigure(const Origin& origin) {
        if (m_only == kNoPage)
            m_content.runningFigures.push_back(origin.box);
        else
            m_content.pages[origin.page].figures.push_back(origin.box);
    }

    void turn() { turnTo(m_paragraph->turns[m_nextTurn++].page); }
    void turnTo(int page) { m_page = m_only.value_or(page); }
    WrittenPage& page() { return m_content.pages[m_page]; }

    const Document& m_document;
    ListLabels m_labels;
    int m_footnotes = 0; ///< that were counted
    int m_endnotes = 0;
    std::size_t m_digitsOfPages;
    std::size_t m_lettersOfNumber; ///< of a page, at most
    WrittenContent& m_content;
    std::map<std::size_t, std::string> m_marks; ///< of the notes that were referred to
    std::optional<int> m_only;
    const Paragraph* m_paragraph = nullptr; ///< that is being read
    std::size_t m_nextTurn = 0;
    std::size_t m_lettersRead = 0; ///< of its runs
    std::size_t m_letters = 0;     ///< of all
    int m_page = 0;
};

/// The first page that the blocks came from; 0 when they came from none.
int firstPageOf(const std::vector<Block>& blocks) {
    for (const Block& block : blocks) {
        const int page = std::visit(
            [](const auto& value) {
                if constexpr (std::is_same_v<std::decay_t<decltype(value)>, TableOfContents>)
                    return value.entries.empty() ? 0 : value.entries.front().origin.page;
                else
                    return value.origin.page;
            },
            block.value);
        if (page > 0)
            return page;
    }
    return 0;
}

/// The pages of each section; a page on which one ends and the next one starts is of both.
std::vector<PageSpan> pagesOf(const std::vector<Section>& sections, const PageSpan& source) {
    std::vector<PageSpan> spans(sections.size());
    int last = source.last;
    for (std::size_t i = sections.size(); i-- > 0;) {
        const int first = i == 0 ? source.first : firstPageOf(sections[i].blocks);
        spans[i] = {first == kNoPage ? last : first, last};
        last = spans[i].first;
    }
    return spans;
}

/// The letters of a head or foot by the kinds of pages.
struct RunningLetters {
    RunningLetters(ContentSorter& sorter, const RunningText& text)
        : others(std::max(sorter.addRunning(text.standard), sorter.addRunning(text.evenPages))) {
        const std::size_t ofFirst = sorter.addRunning(text.firstPage);
        first = text.firstPage ? ofFirst : others;
    }

    std::size_t others;
    std::size_t first = 0;
};

void addRunningTexts(const std::vector<Section>& sections, const PageSpan& source, ContentSorter& sorter,
                     WrittenContent& content) {
    const std::vector<PageSpan> spans = pagesOf(sections, source);
    std::map<int, std::size_t> letters;
    for (std::size_t i = 0; i < sections.size(); ++i) {
        sorter.countPagesIn(sections[i].pageNumberFormat);
        const RunningLetters header(sorter, sections[i].header);
        const RunningLetters footer(sorter, sections[i].footer);
        for (int page = spans[i].first; page <= spans[i].last; ++page) {
            const bool isFirst = page == spans[i].first;
            const std::size_t all = isFirst ? header.first + footer.first : header.others + footer.others;
            letters[page] = std::max(letters[page], all);
            if (sections[i].lineNumbers)
                content.pages[page].numbersEvery = std::max(1, sections[i].lineNumbers->every);
        }
    }
    for (const auto& [page, count] : letters)
        content.pages[page].letters += count;
}

} // namespace

WrittenContent contentOf(const Document& document, const PageSpan& source) {
    WrittenContent content;
    ContentSorter sorter(document, source.last, content);
    for (const Section& section : document.sections)
        sorter.add(section.blocks);
    for (std::size_t i = 0; i < document.notes.size(); ++i)
        sorter.add(document.notes[i], i);
    for (const Comment& comment : document.comments)
        sorter.addTo(kNoPage, comment.blocks);
    addRunningTexts(document.sections, source, sorter, content);
    return content;
}

} // namespace orvane::worker
