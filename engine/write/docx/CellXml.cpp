#include "write/docx/CellXml.h"

#include "write/docx/BlockXml.h"
#include "write/docx/BorderXml.h"
#include "write/docx/ParagraphXml.h"

#include <algorithm>
#include <utility>

namespace orvane::write::docx {
namespace {

using namespace document;

void writeBorders(XmlWriter& xml, Borders borders, CellSides sides) {
    if (borders == Borders{})
        return;
    if (sides == CellSides::Mirrored)
        std::swap(borders.left, borders.right);
    const XmlElement tcBorders(xml, "w:tcBorders");
    writeBorder(xml, "w:top", borders.top);
    writeBorder(xml, "w:left", borders.left);
    writeBorder(xml, "w:bottom", borders.bottom);
    writeBorder(xml, "w:right", borders.right);
}

void writeAlignment(XmlWriter& xml, const TableCell& cell) {
    if (cell.direction != TextDirection::Horizontal)
        xml.leaf("w:textDirection", {{"w:val", cell.direction == TextDirection::Downwards ? "tbRl" : "btLr"}});
    if (cell.alignment != CellAlignment::Top)
        xml.leaf("w:vAlign", {{"w:val", cell.alignment == CellAlignment::Center ? "center" : "bottom"}});
}

void writeMerge(XmlWriter& xml, VerticalMerge merge) {
    if (merge == VerticalMerge::None)
        return;
    const XmlElement vMerge(xml, "w:vMerge");
    if (merge == VerticalMerge::Starts)
        xml.attribute({"w:val", "restart"});
}

void writeProperties(XmlWriter& xml, const PlacedCell& placed, Twips width, const CellDefaults& defaults) {
    const XmlElement tcPr(xml, "w:tcPr");
    xml.leaf("w:tcW", {{"w:w", width.value}, {"w:type", "dxa"}});
    if (placed.span > 1)
        xml.leaf("w:gridSpan", {{"w:val", placed.span}});
    writeMerge(xml, placed.merge);
    if (!placed.cell)
        return;
    const TableCell& cell = *placed.cell;
    writeBorders(xml, cell.borders, defaults.sides);
    if (cell.shading)
        writeShading(xml, cell.shading);
    if (const CellMargins margins = marginsOf(cell); margins != defaults.margins)
        writeCellMargins(xml, "w:tcMar", margins, defaults.sides);
    writeAlignment(xml, cell);
}

} // namespace

CellMargins marginsOf(const TableCell& cell) {
    return {cell.marginTop, cell.marginLeft, cell.marginBottom, cell.marginRight};
}

void writeCellMargins(XmlWriter& xml, std::string_view element, CellMargins margins, CellSides sides) {
    if (sides == CellSides::Mirrored)
        std::swap(margins.left, margins.right);
    const XmlElement item(xml, element);
    const auto write = [&](std::string_view side, Twips value) {
        xml.leaf(side, {{"w:w", std::max(0, value.value)}, {"w:type", "dxa"}});
    };
    write("w:top", margins.top);
    write("w:left", margins.left);
    write("w:bottom", margins.bottom);
    write("w:right", margins.right);
}

void writeCell(Story& story, const PlacedCell& placed, Twips width, const CellDefaults& defaults) {
    const XmlElement tc(story.xml, "w:tc");
    writeProperties(story.xml, placed, width, defaults);
    const bool hasContent = placed.cell && placed.merge != VerticalMerge::Continues;
    if (hasContent)
        writeBlocks(story, placed.cell->blocks);
    for (const TableCell* cell : placed.appended)
        writeBlocks(story, cell->blocks);
    if (!hasContent && placed.appended.empty())
        writeThinParagraph(story, {});
}

} // namespace orvane::write::docx
