#include "layout/DocumentAnalyser.h"

#include "engine/layout/TextBuilder.h"
#include "layout/text/LineText.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeLine;
using tests::makePage;

PageText pageOfText(int number, double size, double leading) {
    PageText page = makePage(number);
    page.lines.push_back(makeLine("A heading", 72, 72, {.size = 20}));
    for (int i = 0; i < 20; ++i)
        page.lines.push_back(makeLine("plain words that fill one line of text", 72, 110 + i * leading, {.size = size}));
    return page;
}

TEST(DocumentAnalyser, FindsSizeAndLeadingOfMostText) {
    const DocumentContext context = analyseDocument({pageOfText(1, 11, 14.5), pageOfText(2, 11, 14.5)}, {});
    EXPECT_EQ(context.pageCount, 2);
    EXPECT_NEAR(context.bodyFontSize, 11, 0.01);
    EXPECT_NEAR(context.bodyLeading, 14.5, 0.01);
}

TEST(DocumentAnalyser, MeasuresLeadingWithinColumns) {
    PageText page = makePage(1);
    for (int i = 0; i < 20; ++i) {
        page.lines.push_back(makeLine("left", 72, 100 + i * 12.0));
        page.lines.push_back(makeLine("right", 320, 103 + i * 12.0));
    }
    EXPECT_NEAR(analyseDocument({page}, {}).bodyLeading, 12, 0.01);
}

TEST(DocumentAnalyser, FindsTheTextAreaOfMostPages) {
    std::vector<PageText> pages;
    for (int i = 1; i <= 12; ++i)
        pages.push_back(pageOfText(i, 10, 12));
    pages.push_back(makePage(13));
    pages.back().lines.push_back(makeLine("out", 5, 20));
    const Rect area = analyseDocument(pages, {}).textArea;
    EXPECT_NEAR(area.left, 72, 0.01);
    EXPECT_NEAR(area.top, 72 - 16, 0.01);
    EXPECT_NEAR(area.bottom, 110 + 19 * 12 + 2, 0.01);
}

TEST(DocumentAnalyser, KeepsWordsThatStandWithinLines) {
    PageText page = makePage(1);
    page.lines.push_back(makeLine("hyphen (\xC3\x89tude) well-known of ation", 72, 72));
    const auto words = analyseDocument({page}, {}).vocabulary;
    EXPECT_TRUE(words.contains("\xC3\xA9tude")) << "without its brackets, in lower case";
    EXPECT_FALSE(words.contains("hyphen")) << "may be half a word";
    EXPECT_FALSE(words.contains("ation")) << "may be half a word";
    EXPECT_FALSE(words.contains("of")) << "too short to tell anything";
    EXPECT_TRUE(words.contains("well-known"));
}

TEST(DocumentAnalyser, SeesWhetherWordsAreDivided) {
    const struct {
        const char* why;
        std::vector<std::string> lines;
        WordDivision expected;
    } rows[] = {
        {"one compound",
         {"all of that is long-", "term work and goes on", "in the same way for us"},
         WordDivision::Never},
        {"a word that stands whole elsewhere",
         {"all of that is infor-", "mation on our work and", "more information for all of us"},
         WordDivision::Sometimes},
        {"many words, of which one stands whole elsewhere",
         {"all of that is infor-", "mation on our work re-", "ported as information co-", "operation for all of us"},
         WordDivision::Always},
        {"a compound that is also written in one",
         {"all of that is the non-", "clinical work and goes on", "with nonclinical and some clinical studies"},
         WordDivision::Never},
        {"many hyphens",
         {"all that is in a re-", "port on the world of co-", "operation in the place of ex-", "ile"},
         WordDivision::Sometimes},
        {"a list of prefixes", {"re-", "co-", "ex-", "un-"}, WordDivision::Never}};
    for (const auto& row : rows) {
        PageText page = makePage(1);
        for (const std::string& line : row.lines)
            page.lines.push_back(makeLine(line, 72, 72 + 12 * static_cast<double>(page.lines.size())));
        EXPECT_EQ(analyseDocument({page}, {}).division, row.expected) << row.why;
    }
}

TEST(DocumentAnalyser, SeesWhetherSentencesArePartedByTwoBlanks) {
    const struct {
        const char* why;
        int doubled;
        int single;
        bool expected;
    } rows[] = {{"two behind each sentence", 4, 0, true},
                {"nearly always two", 6, 1, true},
                {"now one, now two", 4, 4, false},
                {"hardly any sentences", 2, 0, false}};
    for (const auto& row : rows) {
        PageText page = makePage(1);
        for (int i = 0; i < row.doubled + row.single; ++i) {
            page.lines.push_back(makeLine("1. This ends here. Another one", 72, 72 + 12.0 * i));
            for (Word& word : page.lines.back().words)
                word.blanksBefore = textOf(word) == "Another" && i < row.doubled ? 2 : 1;
        }
        EXPECT_EQ(analyseDocument({page}, {}).doublesBlanks, row.expected) << row.why;
    }
}

TEST(DocumentAnalyser, SeesWhetherBlanksPartScripts) {
    PageText joined = makePage(1);
    joined.lines.push_back(makeLine("\u65E5ISO\u672C \u8A9E2018", 72, 72));
    EXPECT_FALSE(analyseDocument({joined}, {}).partsScripts);
    PageText parted = makePage(1);
    parted.lines.push_back(makeLine("\u65E5 ISO \u672C\u8A9E 2018", 72, 72));
    EXPECT_TRUE(analyseDocument({parted}, {}).partsScripts);
}

TEST(DocumentAnalyser, TellsRightToLeftDocuments) {
    struct Row {
        const char* text;
        bool expected;
        const char* why;
    };
    const Row rows[] = {
        {"one two three", false, "nothing is read from the right"},
        {"\u05D0\u05D1 \u05D2\u05D3 three", true, "most words are"},
        {"\u05D0\u05D1 two three", false, "few words are"},
        {"\u05D0\u05D1 12 345 678", true, "numbers do not count"},
        {"12 345", false, "nothing tells"},
    };
    for (const Row& row : rows) {
        PageText page = makePage(1);
        page.lines.push_back(makeLine(row.text, 72, 72));
        EXPECT_EQ(analyseDocument({page}, {}).isRightToLeft, row.expected) << row.why;
    }
}

TEST(DocumentAnalyser, CopesWithPagesWithoutText) {
    EXPECT_EQ(analyseDocument({}, {}).pageCount, 0);
    EXPECT_EQ(analyseDocument({makePage(1)}, {}).textArea, (Rect{0, 0, 595, 842}));
}

} // namespace
} // namespace orvane::layout
