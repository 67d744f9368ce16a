#include "write/doc/SectionDoc.h"

#include "write/ListLevels.h"
#include "write/doc/PropertyList.h"

#include <algorithm>

namespace orvane::write::doc {
namespace {

using namespace document;

/// The largest and smallest pages that word processors have: 22 inches and a tenth of one.
constexpr int kLargestPage = 31680;
constexpr int kSmallestPage = 144;
constexpr int kLandscape = 2;
constexpr int kDownwards = 1;
constexpr int kUsualSpace = 720;

/// Source: [MS-DOC] 2.6.4 (sprmSBkc).
int startNumber(SectionStart start) {
    switch (start) {
    case SectionStart::Continuous:
        return 0;
    case SectionStart::NextColumn:
        return 1;
    case SectionStart::NextPage:
        return 2;
    case SectionStart::EvenPage:
        return 3;
    case SectionStart::OddPage:
        return 4;
    }
    return 2;
}

int pageLength(Twips value) {
    return std::clamp(value.value, kSmallestPage, kLargestPage);
}

int margin(Twips value, int least = 0) {
    return std::clamp(value.value, least, kLargestPage);
}

void addColumns(PropertyList& list, const Section& section) {
    const auto& columns = section.columns;
    if (columns.size() < 2) {
        list.add(sprm::kSDxaColumns, kUsualSpace);
        return;
    }
    list.add(sprm::kSCcolumns, static_cast<std::int64_t>(columns.size()) - 1);
    list.add(sprm::kSDxaColumns, std::max(0, columns.front().spaceAfter.value));
    list.add(sprm::kSFEvenlySpaced, 0);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        Bytes width;
        width.u8(static_cast<std::int64_t>(i)).u16(std::max(1, columns[i].width.value));
        list.addRaw(sprm::kSDxaColWidth, width);
        if (i + 1 == columns.size())
            break;
        Bytes space;
        space.u8(static_cast<std::int64_t>(i)).u16(std::max(0, columns[i].spaceAfter.value));
        list.addRaw(sprm::kSDxaColSpacing, space);
    }
    if (section.hasColumnSeparator)
        list.add(sprm::kSLBetween, 1);
}

void addPageNumbers(PropertyList& list, const Section& section) {
    if (section.pageNumberFormat != NumberFormat::Decimal)
        list.add(sprm::kSNfcPgn, numberFormatCode(section.pageNumberFormat));
    if (!section.firstPageNumber)
        return;
    list.add(sprm::kSFPgnRestart, 1);
    list.add(sprm::kSPgnStart97, std::max(0, *section.firstPageNumber));
}

void addNoteNumbering(PropertyList& list, const Document& document) {
    const NoteNumbering &footnotes = document.footnoteNumbering, &endnotes = document.endnoteNumbering;
    if (footnotes.count != CountStart::Continuous)
        list.add(sprm::kSRncFtn, countStartCode(footnotes.count));
    if (footnotes.format != NumberFormat::Decimal)
        list.add(sprm::kSNfcFtnRef, numberFormatCode(footnotes.format));
    if (endnotes.count != CountStart::Continuous)
        list.add(sprm::kSRncEdn, countStartCode(endnotes.count));
    if (endnotes.format != NumberFormat::LowerRoman)
        list.add(sprm::kSNfcEdnRef, numberFormatCode(endnotes.format));
}

/// Source: [MS-DOC] 2.6.4 (sprmSLnc and those beside it).
void addLineNumbers(PropertyList& list, const LineNumbers& numbers) {
    // 0 counts anew on each page, 1 in each section, 2 never.
    const int count = numbers.count == CountStart::EachPage ? 0 : numbers.count == CountStart::EachSection ? 1 : 2;
    list.add(sprm::kSLnc, count).add(sprm::kSNLnnMod, std::max(1, numbers.every));
    list.add(sprm::kSDxaLnn, std::clamp(numbers.distance.value, 0, kLargestPage));
    if (numbers.start != 1)
        list.add(sprm::kSLnnMin, std::max(0, numbers.start - 1));
}

} // namespace

std::string sectionProperties(const Section& section, const Document& document, Diagnostics& diagnostics) {
    if (std::max(section.pageWidth.value, section.pageHeight.value) > kLargestPage)
        diagnostics.add(DiagnosticKind::FormatLimitReached, 0,
                        "a page is larger than 22 inches, the most that word processors take, and was cut to that");
    PropertyList list;
    list.add(sprm::kSBkc, startNumber(section.start));
    if (section.header.firstPage || section.footer.firstPage)
        list.add(sprm::kSFTitlePage, 1);
    addColumns(list, section);
    addPageNumbers(list, section);
    if (section.pageWidth > section.pageHeight)
        list.add(sprm::kSBOrientation, kLandscape);
    list.add(sprm::kSXaPage, pageLength(section.pageWidth)).add(sprm::kSYaPage, pageLength(section.pageHeight));
    list.add(sprm::kSDxaLeft, margin(section.marginLeft)).add(sprm::kSDxaRight, margin(section.marginRight));
    list.add(sprm::kSDyaTop, margin(section.marginTop, -kLargestPage));
    list.add(sprm::kSDyaBottom, margin(section.marginBottom, -kLargestPage));
    list.add(sprm::kSDyaHdrTop, margin(section.headerDistance));
    list.add(sprm::kSDyaHdrBottom, margin(section.footerDistance));
    addNoteNumbering(list, document);
    if (section.lineNumbers)
        addLineNumbers(list, *section.lineNumbers);
    if (section.isRightToLeft)
        list.add(sprm::kSFBiDi, 1);
    if (section.hasVerticalText)
        list.add(sprm::kSTextFlow, kDownwards);
    return list.bytes();
}

} // namespace orvane::write::doc
