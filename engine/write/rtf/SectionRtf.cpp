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
        return "pgndec";
    }
    return "pgndec";
}

int pageLength(Twips value) {
    return std::clamp(value.value, kSmallestPage, kLargestPage);
}

int margin(Twips value, int least = 0) {
    return std::clamp(value.value, least, kLargestPage);
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
    if (state.document.footnoteCount == NoteCount::EachPage)
        rtf.word("sftnrstpg");
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
    writeColumns(rtf, section);
    if (section.header.firstPage || section.footer.firstPage)
        rtf.word("titlepg");
    if (section.hasVerticalText)
        rtf.word("stextflow", 1);
    rtf.newLine();
}

} // namespace orvane::write::rtf
