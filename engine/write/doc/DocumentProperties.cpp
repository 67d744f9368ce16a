#include "write/doc/DocumentProperties.h"

#include "write/IsoDate.h"
#include "write/ListLevels.h"
#include "write/doc/Bytes.h"

#include <chrono>
#include <utility>
#include <vector>

namespace orvane::write::doc {
namespace {

constexpr std::size_t kPropertiesSize = 594; ///< Source: [MS-DOC] 2.7.7 (Dop2002)
constexpr int kFacingPages = 0x01;
constexpr int kNotesAtPageBottom = 1 << 5;
constexpr int kFirstNote = 1 << 2;
constexpr int kDividesWords = 0x18 << 8; ///< Source: [MS-DOC] 2.7.2 (DopBase, fAutoHyphen, fHyphCapitals)
constexpr int kMirroredMargins = 1 << 5; ///< Source: [MS-DOC] 2.7.2 (DopBase, fMirrorMargins)
constexpr int kDefaultTab = 720;
constexpr int kHyphenationZone = 360;
constexpr int kEndnotesAtDocumentEnd = 3;
constexpr int kSpreadsBrokenLines = 1 << 13; ///< Source: [MS-DOC] 2.9.34 (Copts60, fExpShRtn)
constexpr std::size_t kNoteNumbers = 492;    ///< where the formats of the notes' numbers stand
constexpr std::size_t kCompatibility = 508;  ///< Source: [MS-DOC] 2.7.6 (Dop2000, copts)
constexpr std::size_t kTableStyle = 550;     ///< Source: [MS-DOC] 2.7.7 (Dop2002, istdTableDflt)
constexpr int kNoStyle = 0x0FFF;
constexpr int kFootnoteFormatPlace = 2; ///< Source: [MS-DOC] 2.7.2 (DopBase, nfcFtnRef and nfcEdnRef)
constexpr int kEndnoteFormatPlace = 6;
constexpr int kSize100 = 100 << 3;

// Source: [MS-OLEPS] 2.15 (types), 3.1 (properties).
constexpr int kShortType = 2;
constexpr int kTextType = 0x1E;
constexpr int kTimeType = 0x40;
constexpr int kUtf8 = 65001;
constexpr int kCodePage = 1;
constexpr int kTitle = 2;
constexpr int kSubject = 3;
constexpr int kAuthor = 4;
constexpr int kKeywords = 5;
constexpr int kCreated = 12;
constexpr int kModified = 13;

using Property = std::pair<int, std::string>;

void addText(std::vector<Property>& properties, int number, const std::string& text) {
    if (text.empty())
        return;
    Bytes value;
    value.u32(kTextType).u32(static_cast<std::int64_t>(text.size()) + 1).raw(text).u8(0).padTo(4);
    properties.emplace_back(number, value.str());
}

/// Steps of 100 nanoseconds since the year 1601. Source: [MS-DTYP] 2.3.3 (FILETIME).
void addTime(std::vector<Property>& properties, int number, const std::string& date) {
    const auto time = dateTimeFromIso(date);
    if (!time)
        return;
    namespace chrono = std::chrono;
    const chrono::sys_days day =
        chrono::year_month_day{chrono::year(time->year), chrono::month(static_cast<unsigned>(time->month)),
                               chrono::day(static_cast<unsigned>(time->day))};
    const chrono::sys_days start = chrono::year_month_day{chrono::year(1601), chrono::January, chrono::day(1)};
    const std::int64_t seconds =
        (day - start).count() * std::int64_t{86400} + time->hour * 3600 + time->minute * 60 + time->second;
    constexpr std::int64_t kStepsASecond = 10000000;
    properties.emplace_back(number, Bytes().u32(kTimeType).u64(seconds * kStepsASecond).str());
}

std::string propertySet(const std::vector<Property>& properties) {
    Bytes index;
    Bytes values;
    const std::size_t head = 8 + 8 * properties.size();
    for (const auto& [number, value] : properties) {
        index.u32(number).u32(static_cast<std::int64_t>(head + values.size()));
        values.raw(value);
    }
    Bytes set;
    set.u32(static_cast<std::int64_t>(head + values.size())).u32(static_cast<std::int64_t>(properties.size()));
    return set.raw(index.str()).raw(values.str()).str();
}

} // namespace

std::string documentProperties(const document::Document& document, Pages pages) {
    const int compatibility = document.spreadsBrokenLines ? kSpreadsBrokenLines : 0;
    Bytes bytes;
    const bool isMirrored = document.hasMirroredMargins;
    bytes.u16(kNotesAtPageBottom | (pages == Pages::Facing || isMirrored ? kFacingPages : 0));
    const document::NoteNumbering &footnotes = document.footnoteNumbering, &endnotes = document.endnoteNumbering;
    bytes.u16(kFirstNote | countStartCode(footnotes.count));
    bytes.u16(document.dividesWords ? kDividesWords : 0).u16(isMirrored ? kMirroredMargins : 0);
    bytes.u16(compatibility).u16(kDefaultTab).u16(0).u16(kHyphenationZone).zeros(52 - bytes.size());
    bytes.u16(kFirstNote | countStartCode(endnotes.count));
    bytes.u16(kEndnotesAtDocumentEnd | numberFormatCode(footnotes.format) << kFootnoteFormatPlace |
              numberFormatCode(endnotes.format) << kEndnoteFormatPlace);
    bytes.zeros(82 - bytes.size());
    bytes.u16(kSize100).u16(compatibility).zeros(kNoteNumbers - bytes.size());
    bytes.u16(numberFormatCode(footnotes.format)).u16(numberFormatCode(endnotes.format));
    bytes.zeros(kCompatibility - bytes.size());
    // What is not set here counts too: of the spaces between two paragraphs the larger is kept, not both.
    bytes.u16(compatibility).zeros(kTableStyle - bytes.size());
    bytes.u16(kNoStyle).zeros(kPropertiesSize - bytes.size());
    return bytes.str();
}

std::string summaryInformation(const document::Metadata& metadata) {
    // {F29F85E0-4FF9-1068-AB91-08002B27B3D9}
    constexpr unsigned char kFormat[] = {0xE0, 0x85, 0x9F, 0xF2, 0xF9, 0x4F, 0x68, 0x10,
                                         0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9};
    constexpr int kHeadSize = 48;
    std::vector<Property> properties;
    properties.emplace_back(kCodePage, Bytes().u32(kShortType).u16(kUtf8).u16(0).str());
    addText(properties, kTitle, metadata.title);
    addText(properties, kSubject, metadata.subject);
    addText(properties, kAuthor, metadata.author);
    addText(properties, kKeywords, metadata.keywords);
    addTime(properties, kCreated, metadata.created);
    addTime(properties, kModified, metadata.modified);
    Bytes bytes;
    bytes.u16(0xFFFE).u16(0).u32(0x00020005).zeros(16).u32(1);
    for (const unsigned char byte : kFormat)
        bytes.u8(byte);
    return bytes.u32(kHeadSize).raw(propertySet(properties)).str();
}

} // namespace orvane::write::doc
