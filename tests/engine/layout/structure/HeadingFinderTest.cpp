#include "layout/structure/HeadingFinder.h"

#include "layout/structure/DraftText.h"

#include "engine/layout/DraftSupport.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::LineLook;
using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;

constexpr LineLook kBold{.size = 10, .isBold = true};

/// Sections of text, each below its heading.
DocumentDraft draftWith(const std::vector<std::pair<const char*, LineLook>>& headings) {
    DocumentDraft draft = makeDraft(1);
    double baseline = 60;
    for (const auto& [text, look] : headings) {
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine(text, 72, baseline += 30, look)})));
        std::vector<Line> lines;
        for (int i = 0; i < 6; ++i)
            lines.push_back(makeLine("many words of plain text that fill the lines below the heading, as text does", 72,
                                     baseline += 12));
        draft.blocks.push_back(makeBlock(makeParagraph(std::move(lines))));
    }
    return draft;
}

void find(DocumentDraft& draft, const DocumentFacts& facts = {}) {
    DocumentContext context;
    context.bodyFontSize = 10;
    Diagnostics diagnostics;
    findHeadings(draft, facts, context, {}, diagnostics);
}

/// Texts and levels of the headings, "T" for a title: "Aims 1|Means 2".
std::string headingsOf(const DocumentDraft& draft) {
    std::string text;
    for (const DraftBlock& block : draft.blocks) {
        const DraftParagraph& paragraph = *block.paragraph();
        if (paragraph.role == ParagraphRole::Heading)
            text += fmt::format("{}{} {}", text.empty() ? "" : "|", textOf(paragraph), paragraph.level);
        if (paragraph.role == ParagraphRole::Title)
            text += fmt::format("{}{} T", text.empty() ? "" : "|", textOf(paragraph));
    }
    return text;
}

TEST(HeadingFinder, RanksLooksBySizeAndWeight) {
    DocumentDraft draft =
        draftWith({{"Aims", {.size = 16}}, {"First aim", kBold}, {"Means", {.size = 16}}, {"First means", kBold}});
    find(draft);
    EXPECT_EQ(headingsOf(draft), "Aims 1|First aim 2|Means 1|First means 2");
}

TEST(HeadingFinder, NamesCentredBelowTheTitleAreNoHeadings) {
    const std::vector<std::pair<const char*, LineLook>> block = {{"On the Price of Paper", {.size = 12}},
                                                                 {"Jane Doe", kBold},
                                                                 {"University of Somewhere", {}},
                                                                 {"Summary", kBold}};
    DocumentDraft draft = draftWith({{"Aims", kBold}, {"Means", kBold}, {"Ends", kBold}});
    std::vector<DraftBlock> blocks;
    for (const auto& [text, look] : block) {
        blocks.push_back(makeBlock(makeParagraph({makeLine(text, 200, 20, look)})));
        blocks.back().paragraph()->pieces.front().text.alignment = document::Alignment::Center;
    }
    draft.blocks.erase(draft.blocks.begin()); // the text follows the last centred line
    draft.blocks.insert(draft.blocks.begin(), blocks.begin(), blocks.end());
    find(draft);
    EXPECT_EQ(headingsOf(draft), "On the Price of Paper 1|Summary 2|Means 2|Ends 2");
}

constexpr LineLook kItalic{.size = 10, .isItalic = true};

TEST(HeadingFinder, TellsHeadingsOfTheTextsSizeByNumerals) {
    DocumentDraft draft = draftWith({{"I. INTRODUCTION", {}},
                                     {"II. MEANS AND WAYS", {}},
                                     {"A. The means", kItalic},
                                     {"B. The ways", kItalic},
                                     {"III. RESULTS", {}},
                                     {"A. Of the means", kItalic}});
    find(draft);
    EXPECT_EQ(headingsOf(draft), "I. INTRODUCTION 1|II. MEANS AND WAYS 1|A. The means 2|B. The ways 2|III. RESULTS 1|"
                                 "A. Of the means 2");
}

TEST(HeadingFinder, DoubtsNumeralsThatDoNotCountOn) {
    const std::vector<std::pair<const char*, LineLook>> cases[] = {
        {{"I. INTRODUCTION", {}}, {"II. MEANS", {}}},                              // two only
        {{"I. INTRODUCTION", {}}, {"III. MEANS", {}}, {"IV. RESULTS", {}}},        // a gap
        {{"I. A name", {}}, {"II. Another name", {}}, {"III. The last name", {}}}, // set as text is
        {{"A. The means", kItalic}, {"B. The ways", kItalic}, {"C. The end", kItalic}}};
    for (const auto& headings : cases) {
        DocumentDraft draft = draftWith(headings);
        find(draft);
        EXPECT_EQ(headingsOf(draft), "") << headings.front().first;
    }
}

TEST(HeadingFinder, TakesNoAddressForAHeading) {
    DocumentDraft draft = draftWith({{"Aims", {.size = 16}}, {"somebody@example.org", kBold}, {"Means", {.size = 16}}});
    find(draft);
    EXPECT_EQ(headingsOf(draft), "Aims 1|Means 1");
}

TEST(HeadingFinder, TakesNoStampAtThePagesEdgeForTheTitle) {
    DocumentDraft draft =
        draftWith({{"Stamped 15 July", {.size = 24}}, {"The title", {.size = 18}}, {"Aims", {.size = 14}}});
    draft.blocks.front().paragraph()->pieces.front().text.lines.front().angle = 270;
    find(draft);
    EXPECT_EQ(headingsOf(draft), "The title T|Aims 1");
}

TEST(HeadingFinder, TakesLevelsFromNumbers) {
    DocumentDraft draft =
        draftWith({{"1 Aims", kBold}, {"1.1 First aim", kBold}, {"1.1.1 Details", kBold}, {"2 Means", kBold}});
    find(draft);
    EXPECT_EQ(headingsOf(draft), "1 Aims 1|1.1 First aim 2|1.1.1 Details 3|2 Means 1");
}

TEST(HeadingFinder, LeavesTextThatOnlyLooksLikeOne) {
    const std::pair<const char*, LineLook> cases[] = {
        {"A bold sentence that ends with a full stop.", kBold},
        {"Plain words of the size of the text", {}},
        {"12.50", {.size = 16}},
        {"\u2022 A bold item", kBold},
        {"Name:\tMiller\tTown:", kBold},
    };
    for (const auto& [text, look] : cases) {
        DocumentDraft draft = draftWith({{text, look}, {text, look}});
        find(draft);
        EXPECT_EQ(headingsOf(draft), "") << text;
    }
}

TEST(HeadingFinder, LeavesBlocksOfBoldLines) {
    DocumentDraft draft = draftWith({{"Aims", {.size = 10}}});
    for (int i = 0; i < 5; ++i)
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine("A line of an address", 72, 300 + i * 14, kBold)})));
    find(draft);
    EXPECT_EQ(headingsOf(draft), "");
}

TEST(HeadingFinder, FindsTheTitle) {
    DocumentDraft draft =
        draftWith({{"The whole report", {.size = 24}}, {"Aims", {.size = 14}}, {"Means", {.size = 14}}});
    find(draft);
    EXPECT_EQ(headingsOf(draft), "The whole report T|Aims 1|Means 1");
}

pdf::OutlineEntry entry(const char* title, std::vector<pdf::OutlineEntry> children = {}) {
    return {title, pdf::Destination{1, 10.0}, std::move(children)};
}

TEST(HeadingFinder, BelievesTheOutlineBeforeLooks) {
    DocumentDraft draft = draftWith({{"Aims", {}}, {"Only bold", kBold}, {"2.1 Means", {.size = 10}}});
    DocumentFacts facts;
    facts.outline = {entry("Aims", {entry("Means")})};
    find(draft, facts);
    EXPECT_EQ(headingsOf(draft), "Aims 1|2.1 Means 2");
}

TEST(HeadingFinder, MakesOneHeadingOfSeveralLines) {
    DocumentDraft draft = draftWith({{"A heading of", {.size = 14}}});
    draft.blocks.insert(draft.blocks.begin() + 1,
                        makeBlock(makeParagraph({makeLine("two lines", 72, 107, {.size = 14})})));
    DocumentFacts facts;
    facts.outline = {entry("A heading of two lines")};
    find(draft, facts);
    EXPECT_EQ(headingsOf(draft), "A heading of two lines 1");
    EXPECT_EQ(draft.blocks.size(), 2u);
}

TEST(HeadingFinder, CutsAHeadingOutOfAParagraph) {
    DocumentDraft draft = makeDraft(1);
    draft.blocks.push_back(makeBlock(
        makeParagraph({makeLine("Text above", 72, 100), makeLine("Aims", 72, 112), makeLine("Text below", 72, 124)})));
    DocumentFacts facts;
    facts.outline = {entry("Aims")};
    find(draft, facts);
    ASSERT_EQ(draft.blocks.size(), 3u);
    EXPECT_EQ(headingsOf(draft), "Aims 1");
    EXPECT_EQ(textOf(*draft.blocks[2].paragraph()), "Text below");
}

TEST(HeadingFinder, DistrustsAnOutlineWhoseLevelsContradictItsNumbers) {
    DocumentDraft draft = draftWith({{"1. Aims", kBold},
                                     {"1.1 First sentence", {.size = 10}},
                                     {"1.2 Second sentence", {.size = 10}},
                                     {"1.3 Third sentence", {.size = 10}},
                                     {"2. Means", kBold}});
    DocumentFacts facts;
    facts.outline = {entry("1. Aims"),
                     entry("1.1 First sentence",
                           {entry("1.2 Second sentence", {entry("1.3 Third sentence", {entry("2. Means")})})})};
    find(draft, facts);
    EXPECT_EQ(headingsOf(draft), "1. Aims 1|2. Means 1");
}

TEST(HeadingFinder, DistrustsAnOutlineThatTheTextDoesNotHave) {
    DocumentDraft draft = draftWith({{"Aims", kBold}, {"Means", kBold}});
    DocumentFacts facts;
    facts.outline = {entry("scan_0001"), entry("scan_0002"), entry("Aims")};
    find(draft, facts);
    EXPECT_EQ(headingsOf(draft), "Aims 1|Means 1");
}

/// Tags every paragraph: those in `headings` as H2, all others as P.
DocumentFacts tag(DocumentDraft& draft, const std::vector<std::size_t>& headings) {
    DocumentFacts facts;
    for (std::size_t i = 0; i < draft.blocks.size(); ++i) {
        const auto mark = static_cast<int>(draft.pages[0].marks.size());
        draft.pages[0].marks.emplace_back().mcid = mark;
        for (Line& line : draft.blocks[i].paragraph()->pieces[0].text.lines)
            for (Word& word : line.words)
                word.spans[0].mark = mark;
        pdf::StructureElement element;
        element.type = std::find(headings.begin(), headings.end(), i) == headings.end() ? "P" : "H2";
        element.content.push_back({1, mark});
        facts.structure.push_back(element);
    }
    return facts;
}

TEST(HeadingFinder, BelievesTagsBeforeLooks) {
    DocumentDraft draft = draftWith({{"Aims", {}}, {"Only bold", kBold}});
    const DocumentFacts facts = tag(draft, {0});
    find(draft, facts);
    EXPECT_EQ(headingsOf(draft), "Aims 2");
}

TEST(HeadingFinder, DistrustsTagsThatMakeEverythingAHeading) {
    DocumentDraft draft = draftWith({{"Aims", kBold}, {"Means", kBold}});
    const DocumentFacts facts = tag(draft, {0, 1, 2, 3});
    find(draft, facts);
    EXPECT_EQ(headingsOf(draft), "Aims 1|Means 1");
}

} // namespace
} // namespace orvane::layout
