#include "layout/assembly/TextAssembler.h"

#include "engine/layout/DraftSupport.h"

#include <gmock/gmock.h>

#include <initializer_list>

namespace orvane::layout {
namespace {

using tests::makeBlock;
using tests::makeLine;
using tests::makeParagraph;

DocumentDraft draftOf(std::vector<Line> lines) {
    DocumentDraft draft = tests::makeDraft(1);
    draft.blocks.push_back(makeBlock(makeParagraph(std::move(lines))));
    return draft;
}

ParagraphDraft& paragraphOf(DocumentDraft& draft) {
    return draft.blocks[0].paragraph()->pieces[0].text;
}

std::string text(const DocumentDraft& draft) {
    return tests::textOfParagraph(draft, 0);
}

TEST(TextAssembler, JoinsWordsAndLinesWithBlanks) {
    EXPECT_EQ(text(draftOf({makeLine("one two", 72, 100), makeLine("three", 72, 112)})), "p Normal \"one two three\"");
}

TEST(TextAssembler, KeepsBlanksThatWereTypedTwice) {
    DocumentDraft draft = draftOf({makeLine("End. New end.", 72, 100), makeLine("Next", 72, 112)});
    for (Line& line : paragraphOf(draft).lines)
        for (Word& word : line.words)
            if (word.gapBefore == Gap::Space || &word == &line.words.front())
                word.blanksBefore = 2;
    EXPECT_EQ(text(draft), "p Normal \"End.  New  end. Next\"") << "one is enough where a line ends";
}

TEST(TextAssembler, WritesTheBlanksThatWerePaintedAtALinesEnd) {
    DocumentDraft draft = draftOf({makeLine("one.", 72, 100), makeLine("Two", 72, 112)});
    Word& last = paragraphOf(draft).lines[0].words.back();
    last.blanksAfter = 2;
    EXPECT_EQ(text(draft), "p Normal \"one.  Two\"");
    last.blanksAfter = 9;
    EXPECT_EQ(text(draft), "p Normal \"one. Two\"") << "they filled the line";
}

/// The only paragraph of the document that the whole assembly makes of the draft.
std::string assembled(const DocumentDraft& draft) {
    const document::Document document = tests::documentOf(draft);
    return document::dump(tests::paragraphAt(document, 0), document);
}

TEST(TextAssembler, JoinsKoreanWordsWhereLinesPaintBlanksOnlyBetweenWords) {
    std::vector<Line> lines;
    for (const char* word : {"이슈", "감염", "병의", "예방", "법", "관리", "제도"})
        lines.push_back(makeLine(word, 72, 100 + 12 * static_cast<double>(lines.size())));
    DocumentDraft draft = draftOf(std::move(lines));
    EXPECT_THAT(assembled(draft), testing::HasSubstr("\"이슈 감염 병의 예방 법 관리 제도\"")) << "nothing is known";
    for (const std::size_t line : {0u, 1u, 2u})
        paragraphOf(draft).lines[line].words.back().blanksAfter = 1;
    EXPECT_THAT(assembled(draft), testing::HasSubstr("\"이슈 감염 병의 예방법관리 제도\""))
        << "longer parts may be words";
}

TEST(TextAssembler, PutsTwoBlanksBehindSentencesAsTheDocumentDoes) {
    DocumentDraft draft = draftOf({makeLine("of one.", 72, 100), makeLine("Two", 72, 112), makeLine("three", 72, 124)});
    DocumentContext context;
    context.doublesBlanks = true;
    EXPECT_EQ(tests::textOfParagraph(draft, 0, {}, context), "p Normal \"of one.  Two three\"");
    paragraphOf(draft).lines[0].words.back().blanksAfter = 1;
    EXPECT_EQ(tests::textOfParagraph(draft, 0, {}, context), "p Normal \"of one. Two three\"")
        << "what is painted is known";
}

TEST(TextAssembler, WritesBlanksThatWereTypedInPlaceOfATabulator) {
    DocumentDraft draft = draftOf({makeLine("Class\tNames\tDate", 72, 100)});
    Word& names = paragraphOf(draft).lines[0].words[1];
    names.isTypedBefore = true;
    names.blanksBefore = 4;
    EXPECT_EQ(text(draft), "p Normal \"Class    Names\" tab \"Date\"");
}

TEST(TextAssembler, ResolvesHyphensAtLineEnds) {
    EXPECT_EQ(text(draftOf({makeLine("con-", 72, 100), makeLine("version", 72, 112)})), "p Normal \"conversion\"");
    EXPECT_EQ(text(draftOf({makeLine("East-", 72, 100), makeLine("West", 72, 112)})), "p Normal \"East-West\"");
    EXPECT_EQ(text(draftOf({makeLine("soft\u00AD", 72, 100), makeLine("ness", 72, 112)})), "p Normal \"softness\"");
}

TEST(TextAssembler, KeepsThePlacesOfHyphensWhereWordsAreDividedThroughout) {
    const DocumentDraft draft =
        draftOf({makeLine("A line that ends with a conver-", 72, 100), makeLine("sion of it", 72, 112)});
    DocumentContext divided;
    divided.division = WordDivision::Always;
    EXPECT_EQ(tests::textOfParagraph(draft, 0, {}, divided),
              "p Normal \"A line that ends with a conver\u00ADsion of it\"");
    EXPECT_EQ(tests::textOfParagraph(draft, 0, {.mode = LayoutMode::PlainText}, divided),
              "p Normal \"A line that ends with a conversion of it\"");
    divided.division = WordDivision::Sometimes;
    EXPECT_EQ(tests::textOfParagraph(draft, 0, {}, divided), "p Normal \"A line that ends with a conversion of it\"");
}

TEST(TextAssembler, SetsNoBlankBetweenEastAsianLines) {
    EXPECT_EQ(text(draftOf({makeLine("\u6771\u4EAC", 72, 100), makeLine("\u90FD", 72, 112)})),
              "p Normal \"\u6771\u4EAC\u90FD\"{ea=Calibri}");
}

TEST(TextAssembler, KeepsDividedWordsWholeWhereTheirLineWraps) {
    DocumentDraft draft = draftOf({makeLine("a divi-", 72, 100), makeLine("ded word", 72, 112)});
    paragraphOf(draft).hardBreaks = {0};
    paragraphOf(draft).wrappingLines = {0};
    EXPECT_EQ(text(draft), "p Normal \"a divi\u00ADded word\"");
}

TEST(TextAssembler, KeepsBreaksMadeByHand) {
    DocumentDraft draft = draftOf({makeLine("Street 1", 72, 100), makeLine("Town", 72, 112)});
    paragraphOf(draft).hardBreaks = {0};
    EXPECT_EQ(text(draft), "p Normal \"Street 1\" break \"Town\"");
}

TEST(TextAssembler, PartsRunsWhereTheLookChanges) {
    DocumentDraft draft = draftOf({makeLine("a bold word", 72, 100)});
    paragraphOf(draft).lines[0].words[1].spans[0].look.isBold = true;
    EXPECT_EQ(text(draft), "p Normal \"a \" \"bold \"{b} \"word\"");
}

const document::Text& textAt(const std::vector<document::Inline>& inlines, std::size_t index) {
    return std::get<document::Text>(inlines.at(index).value);
}

/// Sets words of the first line in a font of their own.
void setInFont(DocumentDraft& draft, const std::string& name, std::initializer_list<std::size_t> words) {
    pdf::Font font;
    font.name = name;
    draft.pages[0].fonts.push_back(font);
    for (const std::size_t word : words)
        paragraphOf(draft).lines[0].words[word].spans[0].look.font =
            static_cast<std::uint32_t>(draft.pages[0].fonts.size() - 1);
}

TEST(TextAssembler, GivesEachScriptTheFontOfTheParagraph) {
    DocumentDraft draft = draftOf({makeLine("\u05D0\u05D1 , \u05D2\u05D3", 72, 100)});
    for (Word& word : paragraphOf(draft).lines[0].words)
        word.spans[0].isRightToLeft = true;
    setInFont(draft, "David", {0, 2});
    const auto inlines = tests::inlinesOfParagraph(draft, 0);
    ASSERT_EQ(inlines.size(), 1u) << "the comma, of another font, is no run of its own";
    EXPECT_TRUE(textAt(inlines, 0).properties.isRightToLeft);
    EXPECT_EQ(textAt(inlines, 0).properties.complexFontFamily, "David");
    EXPECT_EQ(textAt(inlines, 0).properties.fontFamily, "Calibri");
}

/// The runs of three words of which the second is in a font of signs.
std::vector<document::Inline> inlinesAroundSign(const std::string& sign) {
    DocumentDraft draft = draftOf({makeLine("stored " + sign + " warm", 72, 100)});
    setInFont(draft, "OpenSymbol", {1});
    return tests::inlinesOfParagraph(draft, 0);
}

TEST(TextAssembler, SetsWhatFontsOfTextHaveInTheFontOfTheText) {
    for (const char* sign : {"\u00B0", "\u2264", "\u03B1"})
        EXPECT_EQ(inlinesAroundSign(sign).size(), 1u) << sign;
    for (const char* sign : {"\u2713", "\u2022", "\u2192"}) {
        const auto inlines = inlinesAroundSign(sign);
        ASSERT_EQ(inlines.size(), 3u) << sign;
        EXPECT_EQ(textAt(inlines, 1).properties.fontFamily, "OpenSymbol");
        EXPECT_FALSE(textAt(inlines, 1).properties.isEastAsian);
    }
}

TEST(TextAssembler, TakesNoFontOfSignsForThatOfEastAsianText) {
    DocumentDraft draft =
        draftOf({makeLine("done \u2713 or \u2B1C not", 72, 100)}); // the square is as wide as ideographs
    setInFont(draft, "OpenSymbol", {1, 3});
    const auto inlines = tests::inlinesOfParagraph(draft, 0);
    EXPECT_FALSE(textAt(inlines, 1).properties.isEastAsian);
    EXPECT_EQ(textAt(inlines, 1).properties.fontFamily, "OpenSymbol");
}

TEST(TextAssembler, TellsEastAsianTextFromLatinText) {
    const DocumentDraft draft = draftOf({makeLine("\u6771\u4EAC Tokyo", 72, 100)});
    const auto inlines = tests::inlinesOfParagraph(draft, 0);
    ASSERT_EQ(inlines.size(), 2u);
    EXPECT_TRUE(textAt(inlines, 0).properties.isEastAsian);
    EXPECT_FALSE(textAt(inlines, 1).properties.isEastAsian);
}

TEST(TextAssembler, UnderlinesBlanksOnlyBetweenUnderlinedWords) {
    DocumentDraft draft = draftOf({makeLine("a b c", 72, 100)});
    for (const std::size_t word : {0u, 1u})
        paragraphOf(draft).lines[0].words[word].spans[0].look.underline = document::UnderlineKind::Single;
    EXPECT_EQ(text(draft), "p Normal \"a b\"{u} \" c\"");
}

TEST(TextAssembler, MakesTabs) {
    EXPECT_EQ(text(draftOf({makeLine("Name:\tMiller", 72, 100)})), "p Normal \"Name:\" tab \"Miller\"");
}

TEST(TextAssembler, JoinsOneLinkOverItsLines) {
    DocumentDraft draft = draftOf({makeLine("see the", 72, 100), makeLine("site now", 72, 112)});
    draft.pages[0].links.push_back({{}, "http://example.org/", {}});
    draft.pages[0].links.push_back({{}, "http://example.org/", {}});
    paragraphOf(draft).lines[0].words[1].spans[0].look.link = 0;
    paragraphOf(draft).lines[1].words[0].spans[0].look.link = 1;
    EXPECT_EQ(text(draft), "p Normal \"see \" link(http://example.org/)[ \"the site\" ] \" now\"");
}

TEST(TextAssembler, LeadsInnerLinksToBookmarks) {
    DocumentDraft draft = draftOf({makeLine("go on", 72, 100)});
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("target", 72, 300)})));
    draft.pages[0].links.push_back({{}, "", pdf::Destination{1, 290.0}});
    paragraphOf(draft).lines[0].words[1].spans[0].look.link = 0;
    EXPECT_EQ(text(draft), "p Normal \"go \" link(#_Ref000001)[ \"on\" ]");
    EXPECT_EQ(tests::textOfParagraph(draft, 1), "p Normal bookmark(_Ref000001) \"target\"");
}

TEST(TextAssembler, JoinsAddressesThatALinesEndCut) {
    const struct {
        const char* why;
        const char* first;
        const char* second;
        const char* shown;
    } rows[] = {{"at a sign", "http://a.example/b/", "report", "http://a.example/b/report"},
                {"at a hyphen", "http://a.example/b/re-", "port", "http://a.example/b/re-port"},
                {"words that the address has too", "the", "report", "the report"}};
    for (const auto& row : rows) {
        DocumentDraft draft = draftOf({makeLine(row.first, 72, 100), makeLine(row.second, 72, 114)});
        draft.pages[0].links.push_back({{}, "http://a.example/b/report+http://a.example/b/re-port+thereport", {}});
        for (Line& line : paragraphOf(draft).lines)
            line.words[0].spans[0].look.link = 0;
        EXPECT_NE(text(draft).find(std::string("[ \"") + row.shown + "\" ]"), std::string::npos) << row.why;
    }
}

TEST(TextAssembler, RefersToNotes) {
    DocumentDraft draft = draftOf({makeLine("see 1 there", 72, 100)});
    Span& mark = paragraphOf(draft).lines[0].words[1].spans[0];
    mark.look.verticalPosition = document::VerticalPosition::Superscript;
    draft.noteReferences.push_back({0, mark.box, 4, {}});
    EXPECT_EQ(text(draft), "p Normal \"see \" note(4) \" there\"");
}

TEST(TextAssembler, LeavesLabelsToTheNumbering) {
    DocumentDraft draft = draftOf({makeLine("1.\tFirst item", 72, 100)});
    draft.blocks[0].paragraph()->labelWords = 1;
    EXPECT_EQ(text(draft), "p Normal \"First item\"");
}

TEST(TextAssembler, SetsCharacterSpacingOnlyWhenAsked) {
    DocumentDraft draft = draftOf({makeLine("wide", 72, 100)});
    paragraphOf(draft).lines[0].words[0].spans[0].look.characterSpacing = 1.5;
    EXPECT_EQ(text(draft), "p Normal \"wide\"");
    EXPECT_EQ(tests::textOfParagraph(draft, 0, {.keepCharacterSpacing = true}), "p Normal \"wide\"{spacing=1.5pt}");
}

} // namespace
} // namespace orvane::layout
