#include "write/rtf/ListTable.h"

#include "base/Utf8.h"
#include "write/ListLevels.h"
#include "write/rtf/RunRtf.h"

#include <algorithm>

#include <fmt/format.h>

namespace orvane::write::rtf {
namespace {

using namespace document;

// Source: RTF 1.9.1, \levelfollow.
constexpr int kTabFollows = 0;
constexpr int kBlankFollows = 1;

int alignmentNumber(Alignment alignment) {
    switch (alignment) {
    case Alignment::Center:
        return 1;
    case Alignment::End:
        return 2;
    case Alignment::Start:
    case Alignment::Justified:
    case Alignment::Distributed:
        return 0;
    }
    return 0;
}

void writeByte(RtfStream& rtf, std::size_t value) {
    rtf.raw(fmt::format("\\'{:02x}", value));
}

/// A label as the format has it: its length, its characters, a byte below 9 for each level's number; and where these
/// stand, counted from 1.
struct LevelText {
    std::u32string characters;
    std::vector<std::size_t> numbers;
};

LevelText levelText(const NumberingLevel& level, std::size_t index) {
    constexpr std::size_t kLongest = 255;
    const std::u32string text = utf32FromUtf8(level.text).substr(0, kLongest);
    if (level.format == NumberFormat::Bullet)
        return {text, {}};
    LevelText result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isNumber = text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9';
        // A level can show its own number and those above only.
        if (isNumber && text[i + 1] - U'1' <= index) {
            result.characters += text[++i] - U'1';
            result.numbers.push_back(result.characters.size());
        } else {
            result.characters += text[i];
        }
    }
    return result;
}

void writeLevelText(RtfStream& rtf, const LevelText& label) {
    {
        const RtfGroup text(rtf, "leveltext");
        writeByte(rtf, label.characters.size());
        for (const char32_t c : label.characters) {
            if (c < kMostListLevels)
                writeByte(rtf, c);
            else
                rtf.text(utf8FromUtf32({&c, 1}));
        }
        rtf.raw(";");
    }
    const RtfGroup numbers(rtf, "levelnumbers");
    for (const std::size_t place : label.numbers)
        writeByte(rtf, place);
    rtf.raw(";");
}

void writeLevel(RtfState& state, RtfStream& rtf, const NumberingLevel& level, std::size_t index) {
    const RtfGroup group(rtf, "listlevel");
    const int format = numberFormatCode(level.format);
    rtf.word("levelnfc", format);
    rtf.word("levelnfcn", format);
    rtf.word("leveljc", alignmentNumber(level.alignment));
    rtf.word("leveljcn", alignmentNumber(level.alignment));
    rtf.word("levelfollow", level.isTabBehindLabel() ? kTabFollows : kBlankFollows);
    rtf.word("levelstartat", std::max(0, level.start));
    rtf.word("levelspace", 0);
    rtf.word("levelindent", 0);
    if (level.isLegal)
        rtf.word("levellegal", 1);
    writeLevelText(rtf, levelText(level, index));
    if (level.run)
        writeRunProperties(state, rtf, *level.run, plainRun(), ScriptUse::Complex);
    if (level.textStart) {
        rtf.word("jclisttab");
        rtf.word("tx", level.textStart->value);
    }
    rtf.word("fi", level.firstLine.value);
    rtf.word("li", level.indentStart.value);
    rtf.word("lin", level.indentStart.value);
}

void writeList(RtfState& state, RtfStream& rtf, const Numbering& numbering, std::int64_t id) {
    const RtfGroup list(rtf, "list");
    rtf.word("listtemplateid", id);
    const std::size_t levels = std::min(numbering.levels.size(), kMostListLevels);
    if (levels <= 1)
        rtf.word("listsimple", 1);
    for (std::size_t i = 0; i < levels; ++i)
        writeLevel(state, rtf, numbering.levels[i], i);
    rtf.word("listid", id);
    rtf.newLine();
}

void writeOverride(RtfStream& rtf, std::int64_t id) {
    const RtfGroup group(rtf, "listoverride");
    rtf.word("listid", id);
    rtf.word("listoverridecount", 0);
    rtf.word("ls", id);
}

} // namespace

void writeListTables(RtfState& state, RtfStream& rtf) {
    const auto& numberings = state.document.numberings;
    if (numberings.empty())
        return;
    {
        const RtfDestination table(rtf, "listtable");
        for (std::size_t i = 0; i < numberings.size(); ++i)
            writeList(state, rtf, numberings[i], static_cast<std::int64_t>(i) + 1);
    }
    const RtfDestination table(rtf, "listoverridetable");
    for (std::size_t i = 0; i < numberings.size(); ++i)
        writeOverride(rtf, static_cast<std::int64_t>(i) + 1);
}

} // namespace orvane::write::rtf
