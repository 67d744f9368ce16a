#include "write/rtf/SectionRtf.h"

#include <algorithm>

namespace orvane::write::rtf {
namespace {

using namespace document;

/// The largest and smallest pages that word processors have: 22 inches and a tenth of one.
constexpr int kLargestPage = 31680;
constexpr int kSmallestPage = 144;

const char* wordFor(SectionStart start) {
    switch (start) {
    case SectionStart::NextPage:
        return "sbkpage";
    case SectionStart::Continuous:
        return "sbknone";
    case SectionStart::NextColumn:
        return "sbkcol";
    case SectionStart::EvenPage:
        return "sbkeven";
    case SectionStart::OddPage:
        return "sbkodd";
    }
    return "sbkpage";
}

const char* wordFor(NumberFormat format) {
    switch (format) {
    case NumberFormat::LowerRoman:
        return "pgnlcrm";
    case NumberFormat::UpperRoman:
        return "pgnucrm";
    case NumberFormat::LowerLetter:
        return "pgnlcltr";
    case NumberFormat::UpperLetter:
        return "pgnucltr";
    case NumberFormat::Decimal:
    case NumberFormat::Bullet:
    case NumberFormat::None:
    case NumberFormat::DecimalZero:
    case NumberFormat::Symbols:
        return "pgndec";
    }
    return "pgndec";
}

/// The signs of notes; the kind of note stands before it.
const char* wordFor(const NoteNumbering& numbering) {
    switch (numbering.format) {
    case NumberFormat::LowerRoman:
        return "nrlc";
    case NumberFormat::UpperRoman:
        return "nruc";
    case NumberFormat::LowerLetter:
        return "nalc";
    case NumberFormat::UpperLetter:
        return "nauc";
    case NumberFormat::Symbols:
        return "nchi";
    case NumberFormat::Decimal:
    case NumberFormat::Bullet:
    case NumberFormat::None:
    case NumberFormat::DecimalZero:
        return "nar";
    }
    return "nar";
}

int pageLength(Twips value) {
    return std::clamp(value.value, kSmallestPage, kLargestPage);
}

int margin(Twips value, int least = 0) {
    return std::clamp(value.value, least, kLargestPage);
}

/// Source: RTF 1.9.1, "Section Formatting Properties" (line numbering).
void writeLineNumbers(RtfStream& rtf, const LineNumbers& numbers) {
    rtf.word("linemod", std::max(1, numbers.every));
    rtf.word("linex", std::clamp(numbers.distance.value, 0, kLargestPage));
    if (numbers.start != 1)
        rtf.word("linestarts", numbers.start);
    switch (numbers.count) {
    case CountStart::Continuous:
        rtf.word("linecont");
        return;
    case CountStart::EachSection:
        rtf.word("linerestart");
        return;
    case CountStart::EachPage:
        rtf.word("lineppage");
        return;
    }
}

void writeColumns(RtfStream& rtf, const Section& section) {
    const auto& columns = section.columns;
    if (columns.size() < 2)
        return;
    rtf.word("cols", static_cast<std::int64_t>(columns.size()));
    rtf.word("colsx", std::max(0, columns.front().spaceAfter.value));
    for (std::size_t i = 0; i < columns.size(); ++i) {
        rtf.word("colno", static_cast<std::int64_t>(i) + 1);
        rtf.word("colw", std::max(1, columns[i].width.value));
        if (i + 1 < columns.size())
            rtf.word("colsr", std::max(0, columns[i].spaceAfter.value));
    }
    if (section.hasColumnSeparator)
        rtf.word("linebetcol");
}

} // namespace

void writeNoteNumbering(RtfStream& rtf, const std::string& kind, const NoteNumbering& numbering) {
    rtf.word(kind + wordFor(numbering));
    if (numbering.count == CountStart::EachPage)
        rtf.word(kind + "rstpg");
    else if (numbering.count == CountStart::EachSection)
        rtf.word(kind + "restart");
}

namespace {

/// Only what differs from how sections count by themselves.
void writeNoteNumberings(RtfStream& rtf, const Document& document) {
    const Document usual;
    if (document.footnoteNumbering != usual.footnoteNumbering)
        writeNoteNumbering(rtf, "sftn", document.footnoteNumbering);
    if (document.endnoteNumbering != usual.endnoteNumbering)
        writeNoteNumbering(rtf, "saftn", document.endnoteNumbering);
}

} // namespace

void writeDocumentPage(RtfStream& rtf, const Section& section) {
    rtf.word("paperw", pageLength(section.pageWidth));
    rtf.word("paperh", pageLength(section.pageHeight));
    rtf.word("margl", margin(section.marginLeft));
    rtf.word("margr", margin(section.marginRight));
    rtf.word("margt", margin(section.marginTop, -kLargestPage));
    rtf.word("margb", margin(section.marginBottom, -kLargestPage));
}

void writeSectionProperties(RtfState& state, RtfStream& rtf, const Section& section) {
    if (std::max(section.pageWidth.value, section.pageHeight.value) > kLargestPage)
        state.diagnostics.add(
            DiagnosticKind::FormatLimitReached, 0,
            "a page is larger than 22 inches, the most that word processors take, and was cut to that");
    rtf.word("sectd");
    writeNoteNumberings(rtf, state.document);
    rtf.word(section.isRightToLeft ? "rtlsect" : "ltrsect");
    rtf.word(wordFor(section.start));
    rtf.word("pgwsxn", pageLength(section.pageWidth));
    rtf.word("pghsxn", pageLength(section.pageHeight));
    if (section.pageWidth > section.pageHeight)
        rtf.word("lndscpsxn");
    rtf.word("marglsxn", margin(section.marginLeft));
    rtf.word("margrsxn", margin(section.marginRight));
    rtf.word("margtsxn", margin(section.marginTop, -kLargestPage));
    rtf.word("margbsxn", margin(section.marginBottom, -kLargestPage));
    rtf.word("headery", margin(section.headerDistance));
    rtf.word("footery", margin(section.footerDistance));
    rtf.word(wordFor(section.pageNumberFormat));
    if (section.firstPageNumber) {
        rtf.word("pgnstarts", std::max(0, *section.firstPageNumber));
        rtf.word("pgnrestart");
    }
    if (section.lineNumbers)
        writeLineNumbers(rtf, *section.lineNumbers);
    writeColumns(rtf, section);
    if (section.header.firstPage || section.footer.firstPage)
        rtf.word("titlepg");
    if (section.hasVerticalText)
        rtf.word("stextflow", 1);
    rtf.newLine();
}

} // namespace orvane::write::rtf
