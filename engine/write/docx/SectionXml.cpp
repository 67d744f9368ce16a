#include "write/docx/SectionXml.h"

#include "write/docx/NotesPart.h"
#include "write/docx/NumberingPart.h"

#include <algorithm>

namespace orvane::write::docx {
namespace {

using namespace document;

/// The largest and smallest pages that word processors have: 22 inches and a tenth of one.
constexpr int kLargestPage = 31680;
constexpr int kSmallestPage = 144;

const char* nameOf(CountStart count) {
    switch (count) {
    case CountStart::Continuous:
        return "continuous";
    case CountStart::EachSection:
        return "newSection";
    case CountStart::EachPage:
        return "newPage";
    }
    return "continuous";
}

const char* nameOf(SectionStart start) {
    switch (start) {
    case SectionStart::NextPage:
        return "nextPage";
    case SectionStart::Continuous:
        return "continuous";
    case SectionStart::NextColumn:
        return "nextColumn";
    case SectionStart::EvenPage:
        return "evenPage";
    case SectionStart::OddPage:
        return "oddPage";
    }
    return "nextPage";
}

void writePage(DocumentState& state, XmlWriter& xml, const Section& section) {
    if (std::max(section.pageWidth.value, section.pageHeight.value) > kLargestPage)
        state.diagnostics.add(
            DiagnosticKind::FormatLimitReached, 0,
            "a page is larger than 22 inches, the most that word processors take, and was cut to that");
    const XmlElement pgSz(xml, "w:pgSz",
                          {{"w:w", std::clamp(section.pageWidth.value, kSmallestPage, kLargestPage)},
                           {"w:h", std::clamp(section.pageHeight.value, kSmallestPage, kLargestPage)}});
    if (section.pageWidth > section.pageHeight)
        xml.attribute({"w:orient", "landscape"});
}

void writeMargins(XmlWriter& xml, const Section& section) {
    const auto length = [](Twips value) { return std::clamp(value.value, 0, kLargestPage); };
    xml.leaf("w:pgMar", {{"w:top", std::clamp(section.marginTop.value, -kLargestPage, kLargestPage)},
                         {"w:right", length(section.marginRight)},
                         {"w:bottom", std::clamp(section.marginBottom.value, -kLargestPage, kLargestPage)},
                         {"w:left", length(section.marginLeft)},
                         {"w:header", length(section.headerDistance)},
                         {"w:footer", length(section.footerDistance)},
                         {"w:gutter", 0}});
}

/// Source: ECMA-376 part 1, 17.6.8 (lnNumType).
void writeLineNumbers(XmlWriter& xml, const LineNumbers& numbers) {
    const XmlElement lnNumType(xml, "w:lnNumType", {{"w:countBy", std::max(1, numbers.every)}});
    // One less than the first number, as it is counted on before each line.
    if (numbers.start != 1)
        xml.attribute({"w:start", std::max(0, numbers.start - 1)});
    if (numbers.distance > Twips(0))
        xml.attribute({"w:distance", std::min(numbers.distance.value, kLargestPage)});
    xml.attribute({"w:restart", nameOf(numbers.count)});
}

void writePageNumbers(XmlWriter& xml, const Section& section) {
    const XmlElement pgNumType(xml, "w:pgNumType", EmptyElement::Omit);
    if (section.pageNumberFormat != NumberFormat::Decimal)
        xml.attribute({"w:fmt", numberFormatName(section.pageNumberFormat)});
    if (section.firstPageNumber)
        xml.attribute({"w:start", std::max(0, *section.firstPageNumber)});
}

void writeColumns(XmlWriter& xml, const Section& section) {
    const auto& columns = section.columns;
    if (columns.size() < 2) {
        xml.leaf("w:cols", {{"w:space", 720}});
        return;
    }
    const XmlElement cols(xml, "w:cols", {{"w:num", columns.size()}});
    if (section.hasColumnSeparator)
        xml.attribute({"w:sep", 1});
    xml.attribute({"w:space", std::max(0, columns.front().spaceAfter.value)});
    xml.attribute({"w:equalWidth", 0});
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const XmlElement col(xml, "w:col", {{"w:w", std::max(1, columns[i].width.value)}});
        if (i + 1 < columns.size())
            xml.attribute({"w:space", std::max(0, columns[i].spaceAfter.value)});
    }
}

/// The settings say the same, which not all readers ask.
void writeNoteNumberings(XmlWriter& xml, const Document& document) {
    {
        const XmlElement footnotes(xml, "w:footnotePr", EmptyElement::Omit);
        writeNoteNumbering(xml, document.footnoteNumbering, NumberFormat::Decimal);
    }
    const XmlElement endnotes(xml, "w:endnotePr", EmptyElement::Omit);
    writeNoteNumbering(xml, document.endnoteNumbering, NumberFormat::LowerRoman);
}

} // namespace

void writeSection(DocumentState& state, XmlWriter& xml, Relationships& relationships, const Section& section) {
    const XmlElement sectPr(xml, "w:sectPr");
    state.runningTexts.writeReferences(state, xml, relationships, section);
    writeNoteNumberings(xml, state.document);
    if (section.start != SectionStart::NextPage)
        xml.leaf("w:type", {{"w:val", nameOf(section.start)}});
    writePage(state, xml, section);
    writeMargins(xml, section);
    if (section.lineNumbers)
        writeLineNumbers(xml, *section.lineNumbers);
    writePageNumbers(xml, section);
    writeColumns(xml, section);
    if (section.header.firstPage || section.footer.firstPage)
        xml.leaf("w:titlePg");
    if (section.hasVerticalText)
        xml.leaf("w:textDirection", {{"w:val", "tbRl"}});
    if (section.isRightToLeft)
        xml.leaf("w:bidi");
}

} // namespace orvane::write::docx
