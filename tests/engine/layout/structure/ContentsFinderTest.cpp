#include "layout/structure/ContentsFinder.h"

#include "engine/layout/DraftSupport.h"
#include "layout/Layout.h"

#include <gtest/gtest.h>

namespace orvane::layout::tests {
namespace {

enum class Leader { Dots, None };

struct Row {
    const char* text;
    double left = 72;
    Leader leader = Leader::Dots;
};

DraftBlock rowAt(const Row& row, double baseline) {
    Line line = makeLine(row.text, row.left, baseline);
    for (Word& word : line.words)
        if (row.leader == Leader::Dots && word.gapBefore == Gap::Tab)
            word.leaderBefore = document::TabLeader::Dots;
    return makeBlock(makeParagraph({line}));
}

DocumentDraft draftOf(const std::vector<Row>& rows) {
    DocumentDraft draft = makeDraft(1);
    double baseline = 80;
    for (const Row& row : rows)
        draft.blocks.push_back(rowAt(row, baseline += 14));
    return draft;
}

/// The level of each paragraph that is an entry, "-" for the others.
std::string levelsOf(const std::vector<Row>& rows) {
    DocumentDraft draft = draftOf(rows);
    findContents(draft, {});
    std::string levels;
    for (const DraftBlock& block : draft.blocks) {
        const DraftParagraph& paragraph = *block.paragraph();
        levels += paragraph.role == ParagraphRole::ContentsEntry ? std::to_string(paragraph.level) : "-";
    }
    return levels;
}

TEST(ContentsFinder, TellsEntriesAndTheirLevels) {
    struct Case {
        const char* why;
        std::vector<Row> rows;
        const char* expected;
    };
    const Case cases[] = {
        {"entries with leaders", {{"Contents"}, {"Aims\t1"}, {"Means\t2", 84}, {"Ends\t5"}}, "-121"},
        {"numbers between dashes", {{"Aims\t- 1 -"}, {"Means\t- 2 -", 84}, {"Ends\t- 5 -"}}, "121"},
        {"numbers between dashes without leaders behind what stands elsewhere",
         {{"1 Aims\t\u2013 1 \u2013", 72, Leader::None},
          {"2 Means\t\u2013 2 \u2013", 72, Leader::None},
          {"3 Ends\t\u2013 3 \u2013", 72, Leader::None},
          {"Aims"},
          {"Means"},
          {"Ends"}},
         "111---"},
        {"words between dashes", {{"Aims\t- a -"}, {"Means\t- b -"}, {"Ends\t- c -"}}, "---"},
        {"numbers of a preface", {{"Preface\tiv"}, {"Aims\t1"}, {"Means\t2"}}, "111"},
        {"too few", {{"Aims\t1"}, {"Means\t2"}}, "--"},
        {"a price list, whose numbers are in no order", {{"Bread\t30"}, {"Milk\t12"}, {"Eggs\t25"}}, "---"},
        {"numbers without leaders that name nothing",
         {{"Bread\t1", 72, Leader::None}, {"Milk\t2", 72, Leader::None}, {"Eggs\t3", 72, Leader::None}},
         "---"},
        {"numbers without leaders behind what stands elsewhere",
         {{"1 Aims\t1", 72, Leader::None},
          {"2 Means\t2", 72, Leader::None},
          {"3 Ends\t3", 72, Leader::None},
          {"Aims"},
          {"Means"},
          {"Ends"}},
         "111---"},
        {"no number at the end", {{"Aims\tone"}, {"Means\ttwo"}, {"Ends\tthree"}}, "---"},
    };
    for (const Case& row : cases)
        EXPECT_EQ(levelsOf(row.rows), row.expected) << row.why;
}

TEST(ContentsFinder, EntriesBecomeATableOfContentsInTheirStyles) {
    DocumentDraft draft = draftOf({{"Contents"}, {"Aims\t1"}, {"Means\t2", 84}, {"Ends\t5"}, {"Aims"}});
    findContents(draft, {});
    const document::Document document = documentOf(std::move(draft));
    const auto& blocks = document.sections.at(0).blocks;
    ASSERT_EQ(blocks.size(), 3u);
    const auto& contents = std::get<document::TableOfContents>(blocks[1].value);
    EXPECT_EQ(contents.lastLevel, 2);
    ASSERT_EQ(contents.entries.size(), 3u);
    EXPECT_EQ(contents.entries[0].style, "TOC1");
    EXPECT_EQ(contents.entries[1].style, "TOC2");
}

} // namespace
} // namespace orvane::layout::tests
