#include "layout/assembly/PlainTextDocument.h"

#include "document/FormulaText.h"
#include "document/ListLabels.h"
#include "layout/assembly/ContinuousDocument.h"

#include <algorithm>
#include <utility>

namespace orvane::layout {
namespace {

using namespace document;

constexpr const char* kCheckedBox = "\u2612";
constexpr const char* kUncheckedBox = "\u2610";

/// A note's number where it is text.
std::string noteMark(std::size_t note, const std::string& customMark) {
    return customMark.empty() ? std::to_string(note + 1) : customMark;
}

/// Collects the text of inlines, tabulators and line ends as characters.
class TextCollector {
public:
    std::string collect(const std::vector<Inline>& inlines) {
        for (const Inline& item : inlines)
            std::visit([this](const auto& value) { add(value); }, item.value);
        return std::move(m_text);
    }

private:
    void addAll(const std::vector<Inline>& inlines) {
        for (const Inline& item : inlines)
            std::visit([this](const auto& value) { add(value); }, item.value);
    }

    void add(const Text& text) { m_text += text.text; }
    void add(const Tab&) { m_text += '\t'; }
    void add(const Break&) { m_text += '\n'; }
    void add(const Link& link) { addAll(link.inlines); }
    void add(const Field& field) { addAll(field.result); }
    void add(const NoteReference& reference) { m_text += noteMark(reference.note, reference.customMark); }
    void add(const ContentControl& control) {
        if (control.content.empty() &&
            (control.kind == ControlKind::CheckBox || control.kind == ControlKind::RadioButton))
            m_text += control.isChecked ? kCheckedBox : kUncheckedBox;
        addAll(control.content);
    }
    void add(const Formula& formula) { m_text += linearText(formula.content); }
    void add(const Picture&) {}
    void add(const Bookmark&) {}
    void add(const CommentReference&) {}

    std::string m_text;
};

bool isBlank(const std::string& text) {
    return text.find_first_not_of(" \t\n") == std::string::npos;
}

/// Writes blocks down as paragraphs of one style.
class PlainText {
public:
    PlainText(const Document& source, const Style& style)
        : m_labels(source)
        , m_style(style) {}

    void add(const std::vector<Block>& blocks) {
        for (const Block& block : blocks)
            std::visit([this](const auto& value) { addOne(value); }, block.value);
    }

    void addLine(const std::string& text, const Origin& origin) {
        if (isBlank(text))
            return;
        Paragraph paragraph;
        paragraph.style = m_style.id;
        paragraph.properties = m_style.paragraph;
        paragraph.markProperties = m_style.run;
        paragraph.origin = origin;
        paragraph.inlines = {{Text{text, m_style.run}}};
        m_blocks.push_back({std::move(paragraph)});
    }

    /// A paragraph with the label of its list.
    std::string lineOf(const Paragraph& paragraph) {
        const std::string label = paragraph.list ? m_labels.next(*paragraph.list) : std::string();
        const std::string text = TextCollector().collect(paragraph.inlines);
        return label.empty() ? text : label + "\t" + text;
    }

    std::vector<Block> take() { return std::move(m_blocks); }

private:
    void addOne(const Paragraph& paragraph) { addLine(lineOf(paragraph), paragraph.origin); }
    void addOne(const TableOfContents& contents) {
        for (const Paragraph& entry : contents.entries)
            addOne(entry);
    }
    void addOne(const Table& table) {
        for (const TableRow& row : table.rows)
            addLine(rowLine(row), table.origin);
    }
    void addOne(const Frame& frame) { add(frame.blocks); }
    void addOne(const Figure&) {}

    /// A row as one line; each column has its place, whether it has a cell of its own or not.
    std::string rowLine(const TableRow& row) {
        std::string line;
        int column = 0;
        for (const TableCell& cell : row.cells) {
            for (; column < cell.column; ++column)
                line += '\t';
            line += cellText(cell.blocks);
        }
        return line;
    }

    /// The paragraphs of a cell, and of tables in it, parted by blanks.
    std::string cellText(const std::vector<Block>& blocks) {
        std::string text;
        const auto join = [&text](const std::string& piece) {
            if (!isBlank(piece))
                text += (text.empty() ? "" : " ") + piece;
        };
        for (const Block& block : blocks) {
            if (const auto* paragraph = std::get_if<Paragraph>(&block.value))
                join(lineOf(*paragraph));
            else if (const auto* frame = std::get_if<Frame>(&block.value))
                join(cellText(frame->blocks));
            else if (const auto* table = std::get_if<Table>(&block.value))
                for (const TableRow& row : table->rows)
                    join(rowLine(row));
        }
        // A tabulator or line end within the cell would be taken for the end of it.
        std::replace_if(
            text.begin(), text.end(), [](char c) { return c == '\t' || c == '\n'; }, ' ');
        return text;
    }

    ListLabels m_labels;
    const Style& m_style;
    std::vector<Block> m_blocks;
};

/// The one style: the font and size of the document's running text.
Style plainStyle(const Document& source) {
    Style style;
    style.id = style.name = "Normal";
    if (source.styles.empty())
        return style;
    const RunProperties& standard = source.styles.front().run;
    style.run.fontFamily = standard.fontFamily;
    style.run.eastAsianFontFamily = standard.eastAsianFontFamily;
    style.run.complexFontFamily = standard.complexFontFamily;
    style.run.size = standard.size;
    return style;
}

} // namespace

Document plainTextDocument(Document flowing) {
    const Document source = continuousDocument(std::move(flowing));
    Document result;
    result.metadata = source.metadata;
    result.styles = {plainStyle(source)};
    PlainText text(source, result.styles.front());
    for (const Section& section : source.sections)
        text.add(section.blocks);
    for (std::size_t i = 0; i < source.notes.size(); ++i) {
        std::string line = noteMark(i, {});
        for (const Block& block : source.notes[i].blocks)
            if (const auto* paragraph = std::get_if<Paragraph>(&block.value))
                line += " " + text.lineOf(*paragraph);
        text.addLine(line, source.notes[i].origin);
    }
    result.sections = source.sections;
    result.sections.front().blocks = text.take();
    return result;
}

} // namespace orvane::layout
