#include "layout/inspect/TableDump.h"

#include "layout/text/LineText.h"

#include <fmt/format.h>

#include <iterator>

namespace orvane::layout {
namespace {

/// Lines of a paragraph are parted by a blank, as reading joins them.
std::string joinedText(const ParagraphDraft& paragraph) {
    std::string text;
    for (const Line& line : paragraph.lines)
        text += fmt::format("{}{}", text.empty() ? "" : " ", textOf(line));
    return text;
}

std::string nameOf(document::Alignment alignment) {
    switch (alignment) {
    case document::Alignment::Start:
        return "";
    case document::Alignment::Center:
        return " centered";
    case document::Alignment::End:
        return " right";
    case document::Alignment::Justified:
        return " justified";
    case document::Alignment::Distributed:
        return " distributed";
    }
    return "";
}

std::string placeName(char letter, int first, int span) {
    return span == 1 ? fmt::format("{}{}", letter, first + 1) : fmt::format("{}{}-{}", letter, first + 1, first + span);
}

std::string nameOf(const document::Borders& borders) {
    std::string names;
    for (const auto& [border, letter] : {std::pair{&borders.top, 't'}, std::pair{&borders.bottom, 'b'},
                                         std::pair{&borders.left, 'l'}, std::pair{&borders.right, 'r'}}) {
        if (border->kind == document::BorderKind::None)
            continue;
        names += letter;
        if (border->kind == document::BorderKind::Double)
            names += '=';
        else if (border->kind != document::BorderKind::Single)
            names += '~';
    }
    return names.empty() ? "" : fmt::format(" borders {}", names);
}

std::string indented(const std::string& text, int by) {
    std::string result;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find('\n', start) + 1;
        result.append(static_cast<std::size_t>(by), ' ');
        result.append(text, start, end - start);
        start = end;
    }
    return result;
}

std::string dumpCell(const CellDraft& cell) {
    std::string out =
        fmt::format("  {} {}", placeName('r', cell.row, cell.rowSpan), placeName('c', cell.column, cell.columnSpan));
    std::string nested;
    document::Alignment alignment = document::Alignment::Start;
    for (const PageBlock& block : cell.blocks) {
        if (const auto* paragraph = std::get_if<ParagraphDraft>(&block.value)) {
            out += fmt::format(" \"{}\"", joinedText(*paragraph));
            alignment = paragraph->alignment;
        } else if (const auto* table = std::get_if<TableDraft>(&block.value)) {
            nested += indented(dumpTable(*table), 4);
        } else {
            out += std::get<FigureDraft>(block.value).isInline ? " picture" : " floating picture";
        }
    }
    out += nameOf(alignment);
    if (cell.alignment != document::CellAlignment::Top)
        out += cell.alignment == document::CellAlignment::Center ? " middle" : " bottom";
    if (cell.direction != document::TextDirection::Horizontal)
        out += cell.direction == document::TextDirection::Upwards ? " upwards" : " downwards";
    out += nameOf(cell.borders);
    if (cell.shading)
        out += fmt::format(" shading {}", toHex(*cell.shading));
    return fmt::format("{}\n{}", out, nested);
}

} // namespace

std::string dumpTable(const TableDraft& table) {
    std::string out = fmt::format("table {} {} columns {} rows", table.isRuled ? "ruled" : "aligned",
                                  table.columnEdges.size() - 1, table.rowEdges.size() - 1);
    if (table.headerRows > 0)
        out += fmt::format(" {} head", table.headerRows);
    if (table.isRightToLeft)
        out += " from the right";
    out += "\n";
    for (const CellDraft& cell : table.cells)
        out += dumpCell(cell);
    return out;
}

} // namespace orvane::layout
