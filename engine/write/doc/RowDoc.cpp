#include "write/doc/RowDoc.h"

#include "write/doc/BorderDoc.h"

#include <algorithm>
#include <utility>

namespace orvane::write::doc {
namespace {

using namespace document;

constexpr int kTallestRow = 31680;
constexpr int kMostTwips = 31680;
/// The unit of a width: twips. Source: [MS-DOC] 2.9.97 (Fts).
constexpr int kTwipsUnit = 3;
/// How many cells the grounds of one property are for. Source: [MS-DOC] 2.9.54 (DefTableShdOperand).
constexpr std::size_t kCellsAShading = 22;

// Source: [MS-DOC] 2.9.316 (TCGRF).
constexpr int kTextFlowPlace = 2;
constexpr int kMergePlace = 5;
constexpr int kAlignPlace = 7;
constexpr int kUnitPlace = 9;

int textFlow(TextDirection direction) {
    switch (direction) {
    case TextDirection::Horizontal:
        return 0;
    case TextDirection::Downwards:
        return 1;
    case TextDirection::Upwards:
        return 3;
    }
    return 0;
}

int mergeNumber(VerticalMerge merge) {
    switch (merge) {
    case VerticalMerge::None:
        return 0;
    case VerticalMerge::Continues:
        return 1;
    case VerticalMerge::Starts:
        return 3;
    }
    return 0;
}

int alignNumber(CellAlignment alignment) {
    switch (alignment) {
    case CellAlignment::Top:
        return 0;
    case CellAlignment::Center:
        return 1;
    case CellAlignment::Bottom:
        return 2;
    }
    return 0;
}

/// Adds the properties of one row; each member adds those of one concern.
class RowAdder {
public:
    RowAdder(PropertyList& list, const PlacedRow& placed, const RowPlace& place)
        : m_list(list)
        , m_cells(placed.cells)
        , m_place(place) {}

    void add(const TableRow& row) {
        addStanding(row);
        addDefinition();
        addBorders();
        addShading();
        addMargins();
    }

private:
    bool isMirrored() const { return m_place.table.isRightToLeft; }

    Borders bordersOf(const PlacedCell& placed) const {
        Borders borders = placed.cell ? placed.cell->borders : Borders{};
        if (isMirrored())
            std::swap(borders.left, borders.right);
        return borders;
    }

    void addStanding(const TableRow& row) {
        const Alignment alignment = m_place.table.alignment;
        if (alignment == Alignment::Center || alignment == Alignment::End)
            m_list.add(sprm::kTJc90, alignment == Alignment::Center ? 1 : 2);
        if (isMirrored())
            m_list.add(sprm::kTFBiDi, 1);
        m_list.add(sprm::kTDxaGapHalf, 0);
        if (row.height > Twips(0)) {
            const int height = std::min(row.height.value, kTallestRow);
            m_list.add(sprm::kTDyaRowHeight, row.isExactHeight ? -height : height);
        }
        if (!row.mayBreakAcrossPages)
            m_list.add(sprm::kTFCantSplit90, 1);
        if (m_place.isRepeated)
            m_list.add(sprm::kTTableHeader, 1);
        m_list.add(sprm::kTFAutofit, 0);
    }

    void addCell(Bytes& bytes, const PlacedCell& placed) const {
        int bits = mergeNumber(placed.merge) << kMergePlace | kTwipsUnit << kUnitPlace;
        if (placed.cell)
            bits |= textFlow(placed.cell->direction) << kTextFlowPlace | alignNumber(placed.cell->alignment)
                                                                             << kAlignPlace;
        const Borders borders = bordersOf(placed);
        bytes.u16(bits).u16(std::min(m_place.grid.width(placed.column, placed.span).value, kMostTwips));
        for (const Border* border : {&borders.top, &borders.left, &borders.bottom, &borders.right})
            addShortBorder(bytes, *border);
    }

    /// Where the cells stand, with their merges and borders.
    void addDefinition() {
        const Alignment alignment = m_place.table.alignment;
        const bool isAligned = alignment == Alignment::Center || alignment == Alignment::End;
        const int start = isAligned ? 0 : m_place.table.indent.value;
        Bytes cells;
        cells.u8(static_cast<std::int64_t>(m_cells.size())).u16(std::clamp(start, -kMostTwips, kMostTwips));
        for (const PlacedCell& placed : m_cells)
            cells.u16(std::min(start + m_place.grid.width(0, placed.column + placed.span).value, kMostTwips));
        for (const PlacedCell& placed : m_cells)
            addCell(cells, placed);
        Bytes value;
        value.u16(static_cast<std::int64_t>(cells.size()) + 1).raw(cells.str());
        m_list.addRaw(sprm::kTDefTable, value);
    }

    /// The borders with their colours, one property for cells with the same border that follow each other.
    void addBorders() {
        // Source: [MS-DOC] 2.9.303 (TableBrcOperand).
        constexpr int kTop = 1;
        constexpr int kLeft = 2;
        constexpr int kBottom = 4;
        constexpr int kRight = 8;
        addBorders(kTop, &Borders::top);
        addBorders(kLeft, &Borders::left);
        addBorders(kBottom, &Borders::bottom);
        addBorders(kRight, &Borders::right);
    }

    void addBorders(int side, Border Borders::*member) {
        const auto borderAt = [&](std::size_t i) { return bordersOf(m_cells[i]).*member; };
        for (std::size_t first = 0; first < m_cells.size();) {
            const Border border = borderAt(first);
            std::size_t end = first + 1;
            while (end < m_cells.size() && borderAt(end) == border)
                ++end;
            if (border.kind != BorderKind::None) {
                Bytes value;
                value.u8(static_cast<std::int64_t>(first)).u8(static_cast<std::int64_t>(end)).u8(side);
                addBorder(value, border);
                m_list.addSized(sprm::kTSetBrc, value);
            }
            first = end;
        }
    }

    void addShading() {
        const auto isShaded = [](const PlacedCell& placed) { return placed.cell && placed.cell->shading; };
        if (std::none_of(m_cells.begin(), m_cells.end(), isShaded))
            return;
        constexpr std::uint16_t kProperties[] = {sprm::kTDefTableShd, sprm::kTDefTableShd2nd, sprm::kTDefTableShd3rd};
        for (std::size_t part = 0; part * kCellsAShading < m_cells.size(); ++part) {
            Bytes grounds;
            const std::size_t end = std::min(m_cells.size(), (part + 1) * kCellsAShading);
            for (std::size_t i = part * kCellsAShading; i < end; ++i)
                addGround(grounds, isShaded(m_cells[i]) ? &*m_cells[i].cell->shading : nullptr);
            m_list.addSized(kProperties[part], grounds);
        }
    }

    void addMargins() {
        // Source: [MS-DOC] 2.9.46 (CSSAOperand).
        constexpr int kTop = 1;
        constexpr int kLeft = 2;
        constexpr int kBottom = 4;
        constexpr int kRight = 8;
        addMargin(kTop, &TableCell::marginTop);
        addMargin(kLeft, isMirrored() ? &TableCell::marginRight : &TableCell::marginLeft);
        addMargin(kBottom, &TableCell::marginBottom);
        addMargin(kRight, isMirrored() ? &TableCell::marginLeft : &TableCell::marginRight);
    }

    /// One property for cells with the same margin that follow each other.
    void addMargin(int side, Twips TableCell::*margin) {
        const auto marginAt = [&](std::size_t i) {
            return m_cells[i].cell ? std::clamp((m_cells[i].cell->*margin).value, 0, kMostTwips) : 0;
        };
        for (std::size_t first = 0; first < m_cells.size();) {
            std::size_t end = first + 1;
            while (end < m_cells.size() && marginAt(end) == marginAt(first))
                ++end;
            if (marginAt(first) > 0) {
                Bytes value;
                value.u8(static_cast<std::int64_t>(first)).u8(static_cast<std::int64_t>(end)).u8(side);
                value.u8(kTwipsUnit).u16(marginAt(first));
                m_list.addSized(sprm::kTCellPadding, value);
            }
            first = end;
        }
    }

    PropertyList& m_list;
    const std::vector<PlacedCell>& m_cells;
    const RowPlace& m_place;
};

} // namespace

void addRowProperties(PropertyList& list, const TableRow& row, const PlacedRow& placed, const RowPlace& place) {
    RowAdder(list, placed, place).add(row);
}

} // namespace orvane::write::doc
