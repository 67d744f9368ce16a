#include "layout/paragraphs/HyphenResolver.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

TEST(HyphenResolver, JoinsLineEnds) {
    struct Row {
        const char* last;
        const char* next;
        LineJoin expected;
        const char* why;
    };
    const std::unordered_set<std::string> vocabulary = {"information", "well-known", "real", "time", "x-ray"};
    const Row rows[] = {
        {"word", "next", LineJoin::Blank, "plain words"},
        {"infor-", "mation,", LineJoin::DropHyphen, "the joined word stands elsewhere in the document"},
        {"(well-", "known)", LineJoin::Nothing, "the compound stands elsewhere in the document"},
        {"real-", "time", LineJoin::Nothing, "both halves are words of the document"},
        {"conver-", "sion", LineJoin::DropHyphen, "a lower case continuation"},
        {"Nord-", "Ostsee", LineJoin::Nothing, "a capital behind the hyphen: a compound"},
        {"COVID-", "19", LineJoin::Nothing, "a number"},
        {"Ein-", "und", LineJoin::Blank, "the rest of the compound comes later"},
        {"e-", "mail", LineJoin::Nothing, "nobody divides a word behind one letter"},
        {"state-of-the-", "art", LineJoin::Nothing, "a compound of many parts"},
        {"con\xC2\xAD", "version", LineJoin::DropHyphen, "a soft hyphen"},
        {"\xE6\x97\xA5\xE6\x9C\xAC", "\xE8\xAA\x9E", LineJoin::Nothing, "East Asian text has no blanks"},
        {"\xE0\xB9\x80\xE0\xB8\x9B\xE0\xB9\x87\xE0\xB8\x99", "\xE0\xB9\x80\xE0\xB8\xA7\xE0\xB8\xA5\xE0\xB8\xB2",
         LineJoin::Nothing, "Thai has blanks between phrases"},
        {"-", "item", LineJoin::Blank, "a dash on its own"},
        {"1990-", "1999", LineJoin::Nothing, "a range"},
        {"", "next", LineJoin::Nothing, "nothing to join"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(resolveLineEnd(row.last, row.next, vocabulary), row.expected)
            << row.last << ' ' << row.next << ": " << row.why;
}

TEST(HyphenResolver, KeepsHyphensOfCompoundsLikeOthersInTheDocument) {
    const std::unordered_set<std::string> vocabulary = {"well-known", "multi-agent",     "multiple", "well",
                                                        "two-stage",  "low-dimensional", "high",     "non-root"};
    const CompoundWords compounds(vocabulary);
    const auto resolve = [&](const char* last, const char* next) {
        return resolveLineEnd(last, next, vocabulary, ScriptBoundary::Joined, HyphenSource::Divided, compounds);
    };
    EXPECT_EQ(resolve("well-", "studied"), LineJoin::Nothing) << "as in well-known; no other word starts so";
    EXPECT_EQ(resolve("Non-", "linear,"), LineJoin::Nothing) << "as in non-root";
    EXPECT_EQ(resolve("multi-", "plier"), LineJoin::DropHyphen) << "multiple is one word";
    EXPECT_EQ(resolve("high-", "dimensional"), LineJoin::Nothing) << "a word, and the end of low-dimensional";
    EXPECT_EQ(resolve("inter-", "dimensional"), LineJoin::DropHyphen) << "inter is no word here";
}

TEST(HyphenResolver, JoinsKoreanWordsThatALineCuts) {
    const std::unordered_set<std::string> vocabulary = {"\uAC10\uC5FC\uBCD1", "\uBCF4\uD5D8", "\uC57D\uAD00",
                                                        "\uBCF4\uD5D8\uC57D\uAD00"};
    EXPECT_EQ(resolveLineEnd("\uAC10\uC5FC", "\uBCD1,", vocabulary), LineJoin::Nothing) << "whole elsewhere";
    EXPECT_EQ(resolveLineEnd("\uBCF4\uD5D8", "\uC57D\uAD00", vocabulary), LineJoin::Blank) << "two words as well";
    EXPECT_EQ(resolveLineEnd("\uC0C8", "\uB9D0", vocabulary), LineJoin::Blank) << "nothing is known of them";
}

TEST(HyphenResolver, KeepsTheHyphensOfDocumentsThatDivideNoWords) {
    const std::unordered_set<std::string> vocabulary = {"information", "nonclinical", "clinical"};
    const auto resolve = [&](const char* last, const char* next) {
        return resolveLineEnd(last, next, vocabulary, ScriptBoundary::Joined, HyphenSource::Typed);
    };
    EXPECT_EQ(resolve("wide-", "ranging"), LineJoin::Nothing);
    EXPECT_EQ(resolve("infor-", "mation"), LineJoin::DropHyphen) << "here it was";
    EXPECT_EQ(resolve("non-", "clinical"), LineJoin::Nothing) << "the author writes it both ways";
    EXPECT_EQ(resolveLineEnd("non-", "clinical", vocabulary), LineJoin::DropHyphen)
        << "where words are divided, the way it stands elsewhere counts";
    EXPECT_EQ(resolve("con\xC2\xAD", "version"), LineJoin::DropHyphen) << "a soft hyphen";
}

TEST(HyphenResolver, JoinsEastAsianAndOtherTextAsTheDocumentDoes) {
    struct Row {
        const char* last;
        const char* next;
        ScriptBoundary boundary;
        LineJoin expected;
    };
    const char* const kHan = "\u65E5\u672C";
    const Row rows[] = {
        {"ISO", kHan, ScriptBoundary::Joined, LineJoin::Nothing},
        {"ISO", kHan, ScriptBoundary::Blank, LineJoin::Blank},
        {kHan, "2018", ScriptBoundary::Joined, LineJoin::Nothing},
        {kHan, "2018", ScriptBoundary::Blank, LineJoin::Blank},
        {"\u65E5\uFF0C", "ISO", ScriptBoundary::Blank, LineJoin::Nothing},
        {"\uAC00", "ISO", ScriptBoundary::Joined, LineJoin::Blank},
    };
    for (const Row& row : rows)
        EXPECT_EQ(resolveLineEnd(row.last, row.next, {}, row.boundary), row.expected) << row.last << ' ' << row.next;
}

} // namespace
} // namespace orvane::layout
