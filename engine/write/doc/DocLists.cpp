#include "write/doc/DocLists.h"

#include "base/Utf8.h"
#include "write/ListLevels.h"
#include "write/doc/PropertyList.h"
#include "write/doc/RunDoc.h"

#include <algorithm>

namespace orvane::write::doc {
namespace {

using namespace document;

// Source: [MS-DOC] 2.9.150 (LVLF).
constexpr int kLegal = 0x04;
constexpr int kTabFollows = 0;
constexpr int kBlankFollows = 1;
constexpr int kNoStyle = 0x0FFF;
constexpr int kSimpleList = 0x01;
constexpr std::size_t kLongestLabel = 200;

int alignmentNumber(Alignment alignment) {
    if (alignment == Alignment::Center)
        return 1;
    return alignment == Alignment::End ? 2 : 0;
}

/// A label as the format has it: a character below 9 for each level's number; and where these stand, counted from 1.
struct Label {
    std::u16string characters;
    std::string places;
};

Label labelOf(const NumberingLevel& level, std::size_t index) {
    const std::u16string text = utf16FromUtf8(level.text).substr(0, kLongestLabel);
    if (level.format == NumberFormat::Bullet)
        return {text, std::string(kMostListLevels, '\0')};
    Label label;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isNumber = text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9' &&
                              text[i + 1] - u'1' <= static_cast<int>(index);
        if (!isNumber) {
            label.characters += text[i];
            continue;
        }
        label.characters += static_cast<char16_t>(text[++i] - u'1');
        label.places += static_cast<char>(label.characters.size());
    }
    label.places.resize(kMostListLevels, '\0');
    return label;
}

/// One stop added, none taken away. Source: [MS-DOC] PChgTabsPapxOperand, TBD.
Bytes tabStopBehindLabel(Twips position) {
    constexpr int kListTab = 6;
    return Bytes().u8(0).u8(1).u16(position.value).u8(kListTab);
}

std::string levelRecord(const NumberingLevel& level, std::size_t index, DocFonts& fonts) {
    PropertyList paragraph;
    paragraph.add(sprm::kPDxaLeft80, level.indentStart.value).add(sprm::kPDxaLeft180, level.firstLine.value);
    paragraph.add(sprm::kPDxaLeft, level.indentStart.value).add(sprm::kPDxaLeft1, level.firstLine.value);
    if (level.textStart)
        paragraph.addSized(sprm::kPChgTabsPapx, tabStopBehindLabel(*level.textStart));
    PropertyList run;
    if (level.run)
        addRunProperties(run, fonts, *level.run, plainRun());
    const Label label = labelOf(level, index);
    Bytes bytes;
    bytes.u32(std::max(0, level.start)).u8(numberFormatCode(level.format));
    bytes.u8(alignmentNumber(level.alignment) | (level.isLegal ? kLegal : 0)).raw(label.places);
    bytes.u8(level.isTabBehindLabel() ? kTabFollows : kBlankFollows).zeros(8);
    bytes.u8(static_cast<std::int64_t>(run.bytes().size())).u8(static_cast<std::int64_t>(paragraph.bytes().size()));
    bytes.u16(0).raw(paragraph.bytes()).raw(run.bytes());
    bytes.u16(static_cast<std::int64_t>(label.characters.size())).characters(label.characters);
    return bytes.str();
}

} // namespace

DocLists makeLists(const Document& document, DocFonts& fonts) {
    const auto& numberings = document.numberings;
    if (numberings.empty())
        return {};
    Bytes lists;
    Bytes levels;
    Bytes references;
    lists.u16(static_cast<std::int64_t>(numberings.size()));
    references.u32(static_cast<std::int64_t>(numberings.size()));
    for (std::size_t i = 0; i < numberings.size(); ++i) {
        const auto id = static_cast<std::int64_t>(i) + 1;
        const auto& own = numberings[i].levels;
        // A list has one level or all nine; those that the document does not have repeat the last.
        const bool isSimple = own.size() <= 1;
        lists.u32(id).u32(id);
        for (std::size_t level = 0; level < kMostListLevels; ++level)
            lists.u16(kNoStyle);
        lists.u8(isSimple ? kSimpleList : 0).u8(0);
        for (std::size_t level = 0; level < (isSimple ? 1 : kMostListLevels); ++level)
            levels.raw(
                levelRecord(own.empty() ? NumberingLevel{} : own[std::min(level, own.size() - 1)], level, fonts));
        references.u32(id).zeros(12);
    }
    for (std::size_t i = 0; i < numberings.size(); ++i)
        references.u32(0xFFFFFFFF);
    return {lists.str(), levels.str(), references.str()};
}

} // namespace orvane::write::doc
