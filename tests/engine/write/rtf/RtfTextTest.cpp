#include "DocumentBuilder.h"
#include "WrittenRtf.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;

/// What the text of a run becomes.
std::string written(const std::string& characters) {
    const WrittenRtf rtf(documentOf("<" + characters + ">"));
    const std::string run = rtf.between("<", ">");
    return run.size() < 2 ? run : run.substr(1, run.size() - 2);
}

TEST(RtfText, EscapesWhatBelongsToTheFormat) {
    EXPECT_EQ(written("a{b}c\\d"), "a\\{b\\}c\\\\d");
}

TEST(RtfText, WritesCharactersWithWhatOldReadersShow) {
    struct Row {
        const char* text;
        const char* expected;
        const char* why;
    };
    const Row rows[] = {
        {"\u00E9", "\\u233\\'e9", "in the code page"},
        {"\u2019", "\\u8217\\'92", "a typographer's apostrophe, in the upper part of the code page"},
        {"\u0159", "\\u345r", "a letter with an accent that the code page lacks"},
        {"\u4E2D", "\\u20013?", "nothing like it in the code page"},
        {"\uFB01", "\\u-1279f", "numbers are signed; the ligature begins with an f"},
        {"\U0001F600", "\\u-10179?\\u-8704?", "two units beyond the first plane"},
        {"\xFF", "\\u-3?", "an invalid byte is the replacement character"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(written(row.text), row.expected) << row.why;
}

TEST(RtfText, HasWordsForSpecialCharacters) {
    EXPECT_EQ(written("a\tb\nc\r\nd"), "a\\tab b\\line c\\line d");
    EXPECT_EQ(written("a\u00A0b\u00ADc\u2011d"), "a\\~b\\-c\\_d");
}

TEST(RtfText, HoldsBlanksThatFollowEachOtherApart) {
    EXPECT_EQ(written("a b  c   d"), "a b {} c {} {} d");
}

TEST(RtfText, LeavesOutControlCharacters) {
    EXPECT_EQ(written(std::string("a\x01\x1F\fb")), "ab");
}

TEST(RtfText, KeepsDigitsApartFromWords) {
    RunProperties look;
    look.isBold = true;
    EXPECT_TRUE(WrittenRtf(documentOf("12", look)).has("{\\b 12}"));
}

} // namespace
} // namespace orvane::tests
