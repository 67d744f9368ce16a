#include "write/doc/DocStyles.h"

#include "write/doc/ParagraphPropertiesDoc.h"
#include "write/doc/RunDoc.h"

#include <algorithm>
#include <iterator>

namespace orvane::write::doc {
namespace {

using namespace document;

// Source: [MS-DOC] 2.9.259 (StdfBase), 2.9.273 (Stshif).
constexpr int kFixedStyles = 15;
constexpr int kDefaultCharacterStyle = 10;
constexpr int kNoStyle = 0x0FFF;
constexpr int kParagraphKind = 1;
constexpr int kCharacterKind = 2;
constexpr int kBaseSize = 10;
constexpr int kUserStyle = 0x0FFE;
constexpr int kDefaultCharacterName = 65;
constexpr int kKnownNames = 0x5B;

struct BuiltInName {
    std::string_view name;
    int number;
};

/// Source: [MS-DOC] 2.9.260 (sti).
constexpr BuiltInName kBuiltInNames[] = {
    {"Normal", 0},         {"toc 1", 19},           {"toc 2", 20},       {"toc 3", 21},  {"toc 4", 22},
    {"toc 5", 23},         {"toc 6", 24},           {"toc 7", 25},       {"toc 8", 26},  {"toc 9", 27},
    {"footnote text", 29}, {"annotation text", 30}, {"header", 31},      {"footer", 32}, {"caption", 34},
    {"endnote text", 43},  {"List Bullet", 48},     {"List Number", 49}, {"Title", 62},  {"Body Text", 66},
    {"Subtitle", 74},
};

/// The level of a heading's style by its name; 0 for another style.
int headingLevel(const std::string& name) {
    const bool isHeading = name.size() == 9 && name.starts_with("heading ") && name[8] >= '1' && name[8] <= '9';
    return isHeading ? name[8] - '0' : 0;
}

int builtInNumber(const std::string& name) {
    if (const int level = headingLevel(name); level > 0)
        return level;
    const auto* const found = std::find_if(std::begin(kBuiltInNames), std::end(kBuiltInNames),
                                           [&](const BuiltInName& row) { return row.name == name; });
    return found == std::end(kBuiltInNames) ? kUserStyle : found->number;
}

/// A list of properties with its length, filled up to pairs of bytes.
std::string sizedList(const std::string& list) {
    Bytes bytes;
    bytes.u16(static_cast<std::int64_t>(list.size())).raw(list).padTo(2);
    return bytes.str();
}

/// The record of a style. `lists` are its lists of properties, each with its length.
std::string styleRecord(int builtIn, int kind, int base, int next, const std::string& name,
                        const std::vector<std::string>& lists) {
    Bytes rest;
    const std::u16string characters = utf16FromUtf8(name);
    rest.u16(static_cast<std::int64_t>(characters.size())).characters(characters).u16(0);
    for (const std::string& list : lists)
        rest.raw(sizedList(list));
    Bytes record;
    record.u16(builtIn).u16(kind | base << 4).u16(static_cast<std::int64_t>(lists.size()) | next << 4);
    record.u16(static_cast<std::int64_t>(kBaseSize + rest.size())).u16(0).raw(rest.str());
    return record.str();
}

std::string sizedRecord(const std::string& record) {
    Bytes bytes;
    bytes.u16(static_cast<std::int64_t>(record.size())).raw(record).padTo(2);
    return bytes.str();
}

} // namespace

DocStyles::DocStyles(const Document& document, const StyleIndex& styles)
    : m_document(document)
    , m_styles(styles) {
    int next = kFixedStyles;
    const auto give = [this](const Style& style, int number) {
        m_numbers[&style] = number;
        m_byNumber[number] = &style;
    };
    give(styles.defaultStyle(), 0);
    for (const Style& style : document.styles) {
        if (&styles.at(style.id) != &style || &style == &styles.defaultStyle())
            continue;
        const int level = headingLevel(style.name);
        give(style, level > 0 && m_byNumber.count(level) == 0 ? level : next++);
    }
    m_count = next;
}

int DocStyles::numberOf(const Style& style) const {
    const auto found = m_numbers.find(&style);
    return found == m_numbers.end() ? 0 : found->second;
}

std::string DocStyles::record(const Style& style, DocFonts& fonts) const {
    static const ParagraphProperties kPlainParagraph;
    const Style* parent = m_styles.parentOf(style);
    const Style& next = m_styles.isKnown(style.next) ? m_styles.at(style.next) : style;
    PropertyList paragraph;
    // Readers differ in what they take for the default.
    if (!parent)
        paragraph.add(sprm::kPFWidowControl, style.paragraph.hasWidowControl ? 1 : 0);
    addParagraphProperties(paragraph, style.paragraph, parent ? parent->paragraph : kPlainParagraph);
    PropertyList run;
    addRunProperties(run, fonts, style.run, parent ? parent->run : plainRun());
    const int number = numberOf(style);
    const std::string numbered = Bytes().u16(number).raw(paragraph.bytes()).str();
    return styleRecord(builtInNumber(style.name), kParagraphKind, parent ? numberOf(*parent) : kNoStyle, numberOf(next),
                       style.name.empty() ? style.id : style.name, {numbered, run.bytes()});
}

std::string DocStyles::table(DocFonts& fonts) const {
    const int font = fonts.numberOf(m_styles.defaultStyle().run.fontFamily);
    Bytes table;
    table.u16(18).u16(m_count).u16(kBaseSize).u16(1).u16(kKnownNames).u16(kFixedStyles).u16(0);
    table.u16(font).u16(font).u16(font);
    for (int number = 0; number < m_count; ++number) {
        if (number == kDefaultCharacterStyle)
            table.raw(sizedRecord(styleRecord(kDefaultCharacterName, kCharacterKind, kNoStyle, kDefaultCharacterStyle,
                                              "Default Paragraph Font", {std::string()})));
        else if (const auto found = m_byNumber.find(number); found != m_byNumber.end())
            table.raw(sizedRecord(record(*found->second, fonts)));
        else
            table.u16(0);
    }
    return table.str();
}

} // namespace orvane::write::doc
