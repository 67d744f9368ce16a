#include "document/DocumentDump.h"

#include "document/FormulaText.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

namespace orvane::document {
namespace {

/// Collects "key=value" words and puts them into braces.
class Differences {
public:
    void add(std::string word) { m_words.push_back(std::move(word)); }
    void addFlag(const char* name, bool value, bool usual) {
        if (value != usual)
            add(value ? name : fmt::format("no-{}", name));
    }
    void addLength(const char* name, Twips value, Twips usual) {
        if (value != usual)
            add(fmt::format("{}={:g}pt", name, pointsFromTwips(value)));
    }
    template<typename T>
    void addValue(const char* name, const T& value, const T& usual) {
        if (value != usual)
            add(fmt::format("{}={}", name, value));
    }
    std::string text() const { return m_words.empty() ? "" : fmt::format("{{{}}}", fmt::join(m_words, " ")); }

private:
    std::vector<std::string> m_words;
};

const char* nameOf(Alignment alignment) {
    switch (alignment) {
    case Alignment::Start:
        return "start";
    case Alignment::Center:
        return "center";
    case Alignment::End:
        return "end";
    case Alignment::Justified:
        return "justified";
    case Alignment::Distributed:
        return "distributed";
    }
    return "start";
}

const char* nameOf(VerticalPosition position) {
    switch (position) {
    case VerticalPosition::Baseline:
        return "baseline";
    case VerticalPosition::Superscript:
        return "super";
    case VerticalPosition::Subscript:
        return "sub";
    }
    return "baseline";
}

std::string nameOf(const LineSpacing& spacing) {
    switch (spacing.rule) {
    case LineSpacingRule::Multiple:
        return fmt::format("{:.4g}", spacing.multiple);
    case LineSpacingRule::AtLeast:
        return fmt::format(">={:g}pt", pointsFromTwips(spacing.height));
    case LineSpacingRule::Exact:
        return fmt::format("{:g}pt", pointsFromTwips(spacing.height));
    }
    return "1";
}

std::string nameOf(const TabStop& tab) {
    constexpr const char* kLeaders[] = {"", ".", "-", "_", "·"};
    constexpr const char* kKinds[] = {"", "center", "end", "decimal"};
    return fmt::format("tab={:g}pt{}{}", pointsFromTwips(tab.position), kKinds[static_cast<int>(tab.alignment)],
                       kLeaders[static_cast<int>(tab.leader)]);
}

std::string differences(const RunProperties& run, const RunProperties& usual) {
    Differences out;
    out.addValue("font", run.fontFamily, usual.fontFamily);
    out.addValue("ea", run.eastAsianFontFamily, usual.eastAsianFontFamily);
    out.addValue("cs", run.complexFontFamily, usual.complexFontFamily);
    if (run.size != usual.size)
        out.add(fmt::format("size={:g}", run.size.value / 2.0));
    out.addValue("color", toHex(run.color), toHex(usual.color));
    if (run.highlight && run.highlight != usual.highlight)
        out.add(fmt::format("highlight={}", toHex(*run.highlight)));
    out.addFlag("b", run.isBold, usual.isBold);
    out.addFlag("i", run.isItalic, usual.isItalic);
    out.addFlag("u", run.underline != UnderlineKind::None, usual.underline != UnderlineKind::None);
    out.addFlag("strike", run.isStruck, usual.isStruck);
    out.addFlag("smallcaps", run.isSmallCaps, usual.isSmallCaps);
    out.addFlag("caps", run.isAllCaps, usual.isAllCaps);
    out.addFlag("outline", run.isOutlined, usual.isOutlined);
    out.addFlag("hidden", run.isHidden, usual.isHidden);
    out.addFlag("rtl", run.isRightToLeft, usual.isRightToLeft);
    if (run.verticalPosition != usual.verticalPosition)
        out.add(nameOf(run.verticalPosition));
    out.addLength("spacing", run.characterSpacing, usual.characterSpacing);
    out.addLength("raise", run.raise, usual.raise);
    out.addValue("width", run.widthPercent, usual.widthPercent);
    out.addValue("lang", run.language, usual.language);
    return out.text();
}

std::string differences(const ParagraphProperties& format, const ParagraphProperties& usual) {
    Differences out;
    if (format.alignment != usual.alignment)
        out.add(nameOf(format.alignment));
    out.addLength("start", format.indentStart, usual.indentStart);
    out.addLength("end", format.indentEnd, usual.indentEnd);
    out.addLength("first", format.firstLine, usual.firstLine);
    out.addLength("before", format.spaceBefore, usual.spaceBefore);
    out.addLength("after", format.spaceAfter, usual.spaceAfter);
    if (!(format.lineSpacing == usual.lineSpacing))
        out.add(fmt::format("line={}", nameOf(format.lineSpacing)));
    if (format.tabs != usual.tabs)
        for (const TabStop& tab : format.tabs)
            out.add(nameOf(tab));
    if (!(format.borders == usual.borders))
        out.add("borders");
    if (format.shading != usual.shading)
        out.add(fmt::format("shading={}", format.shading ? toHex(*format.shading) : "none"));
    out.addValue("outline", format.outlineLevel, usual.outlineLevel);
    out.addFlag("keepnext", format.keepWithNext, usual.keepWithNext);
    out.addFlag("keeplines", format.keepLinesTogether, usual.keepLinesTogether);
    out.addFlag("newpage", format.pageBreakBefore, usual.pageBreakBefore);
    out.addFlag("contextual", format.isContextualSpacing, usual.isContextualSpacing);
    out.addFlag("rtl", format.isRightToLeft, usual.isRightToLeft);
    return out.text();
}

/// Writes blocks and what is in them, each level two blanks further in.
class Dumper {
public:
    explicit Dumper(const Document& document)
        : m_document(document) {}

    std::string run() {
        for (const Style& style : m_document.styles)
            line(fmt::format("style {} \"{}\" {} {}", style.id, style.name, differences(style.paragraph, {}),
                             differences(style.run, {})));
        for (std::size_t i = 0; i < m_document.numberings.size(); ++i)
            dumpNumbering(i);
        if (m_document.pageColor)
            line(fmt::format("page color {}", toHex(*m_document.pageColor)));
        for (const Section& section : m_document.sections)
            dumpSection(section);
        if (m_document.footnoteNumbering.count == CountStart::EachPage)
            line("footnotes count on each page");
        for (std::size_t i = 0; i < m_document.notes.size(); ++i) {
            line(fmt::format("note {}", i));
            dumpBlocks(m_document.notes[i].blocks);
        }
        return std::move(m_text);
    }

    std::string paragraph(const Paragraph& paragraph) {
        const auto style = std::find_if(m_document.styles.begin(), m_document.styles.end(),
                                        [&](const Style& s) { return s.id == paragraph.style; });
        const Style usual = style == m_document.styles.end() ? Style{} : *style;
        std::string text = fmt::format("p {}", paragraph.style);
        if (paragraph.list)
            text += fmt::format(" list={}.{}", paragraph.list->numbering, paragraph.list->level);
        if (paragraph.dropCap)
            text += fmt::format(" dropcap={}{}", paragraph.dropCap->lines,
                                paragraph.dropCap->kind == DropCapKind::InMargin ? ":margin" : "");
        const std::string format = differences(paragraph.properties, usual.paragraph);
        if (!format.empty())
            text += fmt::format(" {}", format);
        return text + inlines(paragraph.inlines, usual.run);
    }

private:
    void line(const std::string& text) {
        m_text += std::string(m_depth * 2, ' ') + text;
        while (m_text.back() == ' ')
            m_text.pop_back();
        m_text += '\n';
    }

    void dumpNumbering(std::size_t index) {
        line(fmt::format("numbering {}", index));
        for (const NumberingLevel& level : m_document.numberings[index].levels)
            line(fmt::format("  \"{}\" format={} from={} start={:g}pt first={:g}pt", level.text,
                             static_cast<int>(level.format), level.start, pointsFromTwips(level.indentStart),
                             pointsFromTwips(level.firstLine)));
    }

    void dumpSection(const Section& section) {
        line(fmt::format("section {:g}x{:g} margins {:g} {:g} {:g} {:g} columns {}{}",
                         pointsFromTwips(section.pageWidth), pointsFromTwips(section.pageHeight),
                         pointsFromTwips(section.marginLeft), pointsFromTwips(section.marginTop),
                         pointsFromTwips(section.marginRight), pointsFromTwips(section.marginBottom),
                         std::max<std::size_t>(1, section.columns.size()),
                         section.start == SectionStart::Continuous ? " continuous" : ""));
        dumpRunning("header", section.header);
        dumpRunning("footer", section.footer);
        dumpBlocks(section.blocks);
    }

    void dumpRunning(const char* name, const RunningText& text) {
        const std::pair<const char*, const std::optional<std::vector<Block>>*> kinds[] = {
            {"standard", &text.standard}, {"first", &text.firstPage}, {"even", &text.evenPages}};
        for (const auto& [kind, blocks] : kinds) {
            if (!*blocks)
                continue;
            line(fmt::format("{} {}", name, kind));
            dumpBlocks(**blocks);
        }
    }

    void dumpBlocks(const std::vector<Block>& blocks) {
        ++m_depth;
        for (const Block& block : blocks)
            std::visit([this](const auto& value) { dumpBlock(value); }, block.value);
        --m_depth;
    }

    void dumpBlock(const Paragraph& value) { line(paragraph(value)); }
    void dumpBlock(const Table& table) {
        line(fmt::format("table {} columns", table.columnWidths.size()));
        ++m_depth;
        for (const TableRow& row : table.rows) {
            line(row.isHeader ? "row header" : "row");
            ++m_depth;
            for (const TableCell& cell : row.cells) {
                line(fmt::format("cell {} span {}x{}", cell.column, cell.columnSpan, cell.rowSpan));
                dumpBlocks(cell.blocks);
            }
            --m_depth;
        }
        --m_depth;
    }
    void dumpBlock(const Figure& figure) {
        line(fmt::format("figure at {:g} {:g}", static_cast<double>(figure.placement.x.value) / 12700,
                         static_cast<double>(figure.placement.y.value) / 12700));
    }
    void dumpBlock(const Frame& frame) {
        line("frame");
        dumpBlocks(frame.blocks);
    }
    void dumpBlock(const TableOfContents& contents) {
        line(fmt::format("contents of levels {} to {}", contents.firstLevel, contents.lastLevel));
        ++m_depth;
        for (const Paragraph& entry : contents.entries)
            dumpBlock(entry);
        --m_depth;
    }

    std::string inlines(const std::vector<Inline>& items, const RunProperties& usual) {
        std::string text;
        for (const Inline& item : items)
            text +=
                fmt::format(" {}", std::visit([&](const auto& value) { return describe(value, usual); }, item.value));
        return text;
    }

    std::string describe(const Text& text, const RunProperties& usual) {
        return fmt::format("\"{}\"{}", text.text, differences(text.properties, usual));
    }
    std::string describe(const Tab&, const RunProperties&) { return "tab"; }
    std::string describe(const Break& value, const RunProperties&) {
        return value.kind == BreakKind::Line ? "break" : value.kind == BreakKind::Page ? "pagebreak" : "columnbreak";
    }
    std::string describe(const Picture& picture, const RunProperties&) {
        return fmt::format("picture({})", picture.id.value);
    }
    std::string describe(const Formula& formula, const RunProperties& usual) {
        return fmt::format("formula(\"{}\"{}){}", linearText(formula.content),
                           formula.place == FormulaPlace::Displayed ? " displayed" : "",
                           differences(formula.properties, usual));
    }
    std::string describe(const Link& link, const RunProperties& usual) {
        return fmt::format("link({})[{} ]",
                           link.target.uri.empty() ? fmt::format("#{}", link.target.bookmark) : link.target.uri,
                           inlines(link.inlines, usual));
    }
    std::string describe(const Bookmark& bookmark, const RunProperties&) {
        return fmt::format("bookmark({})", bookmark.name);
    }
    std::string describe(const NoteReference& reference, const RunProperties&) {
        return fmt::format("note({})", reference.note);
    }
    std::string describe(const CommentReference& reference, const RunProperties&) {
        return fmt::format("comment({})", reference.comment);
    }
    std::string describe(const Field& field, const RunProperties& usual) {
        constexpr const char* kNames[] = {"page", "pages", "pageof"};
        return fmt::format("{}[{} ]", kNames[static_cast<int>(field.code)], inlines(field.result, usual));
    }
    std::string describe(const ContentControl& control, const RunProperties& usual) {
        return fmt::format("control({})[{} ]", control.name, inlines(control.content, usual));
    }

    const Document& m_document;
    std::string m_text;
    std::size_t m_depth = 0;
};

} // namespace

std::string dump(const Document& document) {
    return Dumper(document).run();
}

std::string dump(const Paragraph& paragraph, const Document& document) {
    return Dumper(document).paragraph(paragraph);
}

} // namespace orvane::document
