#include "layout/inspect/PageLayoutDump.h"

#include "layout/inspect/TableDump.h"
#include "layout/text/LineText.h"

#include <fmt/format.h>

namespace orvane::layout {
namespace {

const char* nameOf(document::Alignment alignment) {
    switch (alignment) {
    case document::Alignment::Start:
        return "start";
    case document::Alignment::Center:
        return "centered";
    case document::Alignment::End:
        return "end";
    case document::Alignment::Justified:
        return "justified";
    case document::Alignment::Distributed:
        return "distributed";
    }
    return "";
}

std::string describe(const ParagraphDraft& paragraph) {
    std::string out =
        fmt::format("{} {:.0f}-{:.0f}", nameOf(paragraph.alignment), paragraph.box.left, paragraph.box.right);
    if (paragraph.indentStart != 0)
        out += fmt::format(" indent {:.1f}", paragraph.indentStart);
    if (paragraph.indentEnd != 0)
        out += fmt::format(" indent at end {:.1f}", paragraph.indentEnd);
    if (paragraph.firstLine != 0)
        out += fmt::format(" first {:.1f}", paragraph.firstLine);
    out += fmt::format(" leading {:.1f}: \"{}\"", paragraph.leading, textOf(paragraph));
    std::string notes;
    const auto note = [&notes](const std::string& text) { notes += notes.empty() ? text : ", " + text; };
    if (paragraph.lines.size() > 1)
        note(fmt::format("{} lines", paragraph.lines.size()));
    for (const std::size_t line : paragraph.hardBreaks)
        note(fmt::format("broken after line {}", line + 1));
    if (!paragraph.startsParagraph)
        note("continues");
    if (!paragraph.endsParagraph)
        note("goes on");
    return notes.empty() ? out : fmt::format("{} ({})", out, notes);
}

std::string describe(const FigureDraft& figure) {
    const Rect& box = figure.figure.box;
    const char* place = figure.figure.isBackground ? "background" : figure.isInline ? "inline" : "floating";
    return fmt::format("figure {} {:.0f} {:.0f} {:.0f} {:.0f}", place, box.left, box.top, box.right, box.bottom);
}

std::string describe(const Band& band) {
    std::string out = fmt::format("band {:.0f}-{:.0f}:", band.top, band.bottom);
    for (const ColumnSpan& column : band.columns)
        out += fmt::format(" {:.0f}-{:.0f}", column.left, column.right);
    if (band.hasSeparator)
        out += " with a rule between";
    return out;
}

std::string indented(const std::string& text, const std::string& by) {
    std::string out;
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        out += by + text.substr(from, end - from) + "\n";
        from = end + 1;
    }
    return out;
}

std::string describe(const PageBlock& block) {
    if (const auto* paragraph = std::get_if<ParagraphDraft>(&block.value))
        return describe(*paragraph);
    if (const auto* table = std::get_if<TableDraft>(&block.value))
        return dumpTable(*table);
    return describe(std::get<FigureDraft>(block.value));
}

} // namespace

std::string textOf(const ParagraphDraft& paragraph) {
    std::string text;
    for (const Line& line : paragraph.lines) {
        if (!text.empty())
            text += ' ';
        text += textOf(line);
    }
    return text;
}

std::string dumpPageLayout(const PageLayout& layout) {
    std::string out = fmt::format("page {}, {:.0f} x {:.0f}\n", layout.number, layout.width, layout.height);
    int band = -1;
    int column = -1;
    for (const PageBlock& block : layout.blocks) {
        if (block.band != band && static_cast<std::size_t>(block.band) < layout.bands.size())
            out += describe(layout.bands[static_cast<std::size_t>(block.band)]) + "\n";
        if (block.band != band || block.column != column)
            out += fmt::format("  column {}\n", block.column + 1);
        band = block.band;
        column = block.column;
        out += indented(describe(block), "    ");
    }
    return out;
}

} // namespace orvane::layout
