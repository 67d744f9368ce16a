#include "write/rtf/RowRtf.h"

#include "write/rtf/BorderRtf.h"

#include <algorithm>
#include <utility>

namespace orvane::write::rtf {
namespace {

using namespace document;

constexpr int kTallestRow = 31680;
/// The unit of a width: twips. Source: RTF 1.9.1, \trftsWidth, \clpadfl and others.
constexpr int kTwipsUnit = 3;

void writeAlignment(RtfStream& rtf, const Table& table) {
    if (table.alignment == Alignment::Center)
        rtf.word("trqc");
    else if (table.alignment == Alignment::End)
        rtf.word("trqr");
}

void writeRowProperties(RtfStream& rtf, const TableRow& row, const RowPlace& place) {
    const Table& table = place.table;
    const Twips width = place.grid.width(0, static_cast<int>(place.grid.columnWidths().size()));
    rtf.word(table.isRightToLeft ? "rtlrow" : "ltrrow");
    rtf.word("trgaph", 0);
    writeAlignment(rtf, table);
    if (row.height > Twips(0)) {
        const int height = std::min(row.height.value, kTallestRow);
        rtf.word("trrh", row.isExactHeight ? -height : height);
    }
    if (place.isRepeated)
        rtf.word("trhdr");
    if (!row.mayBreakAcrossPages)
        rtf.word("trkeep");
    rtf.word("trftsWidth", kTwipsUnit);
    rtf.word("trwWidth", width.value);
    // Columns stand as they are and do not grow with their texts.
    rtf.word("trautofit", 0);
}

void writeMargin(RtfStream& rtf, const char* width, const char* unit, Twips margin) {
    rtf.word(width, std::max(0, margin.value));
    rtf.word(unit, kTwipsUnit);
}

/// The words for the left and the upper margin have changed places in the word processors that everybody follows.
void writeMargins(RtfStream& rtf, const TableCell& cell, bool isMirrored) {
    writeMargin(rtf, "clpadt", "clpadft", isMirrored ? cell.marginRight : cell.marginLeft);
    writeMargin(rtf, "clpadl", "clpadfl", cell.marginTop);
    writeMargin(rtf, "clpadb", "clpadfb", cell.marginBottom);
    writeMargin(rtf, "clpadr", "clpadfr", isMirrored ? cell.marginLeft : cell.marginRight);
}

void writeBorders(RtfState& state, RtfStream& rtf, Borders borders, bool isMirrored) {
    if (isMirrored)
        std::swap(borders.left, borders.right);
    const auto side = [&](const char* word, const Border& border) {
        if (border.kind != BorderKind::None)
            writeBorder(state, rtf, word, border);
    };
    side("clbrdrt", borders.top);
    side("clbrdrl", borders.left);
    side("clbrdrb", borders.bottom);
    side("clbrdrr", borders.right);
}

void writeTextPlace(RtfStream& rtf, const TableCell& cell) {
    switch (cell.alignment) {
    case CellAlignment::Top:
        rtf.word("clvertalt");
        break;
    case CellAlignment::Center:
        rtf.word("clvertalc");
        break;
    case CellAlignment::Bottom:
        rtf.word("clvertalb");
        break;
    }
    if (cell.direction != TextDirection::Horizontal)
        rtf.word(cell.direction == TextDirection::Downwards ? "cltxtbrl" : "cltxbtlr");
}

void writeCellDefinition(RtfState& state, RtfStream& rtf, const PlacedCell& placed, bool isMirrored, Twips width) {
    if (placed.merge == VerticalMerge::Starts)
        rtf.word("clvmgf");
    else if (placed.merge == VerticalMerge::Continues)
        rtf.word("clvmrg");
    if (placed.cell) {
        writeTextPlace(rtf, *placed.cell);
        writeBorders(state, rtf, placed.cell->borders, isMirrored);
        if (placed.cell->shading)
            rtf.word("clcbpat", state.colors.numberOf(*placed.cell->shading));
        writeMargins(rtf, *placed.cell, isMirrored);
    }
    rtf.word("clftsWidth", kTwipsUnit);
    rtf.word("clwWidth", width.value);
}

} // namespace

void writeRowDefinition(RtfState& state, RtfStream& rtf, const TableRow& row, const PlacedRow& placed,
                        const RowPlace& place) {
    rtf.word("trowd");
    writeRowProperties(rtf, row, place);
    const bool isAligned = place.table.alignment == Alignment::Center || place.table.alignment == Alignment::End;
    const Twips start = isAligned ? Twips(0) : place.table.indent;
    rtf.word("trleft", start.value);
    for (const PlacedCell& cell : placed.cells) {
        writeCellDefinition(state, rtf, cell, place.table.isRightToLeft, place.grid.width(cell.column, cell.span));
        rtf.word("cellx", (start + place.grid.width(0, cell.column + cell.span)).value);
    }
    rtf.newLine();
}

} // namespace orvane::write::rtf
