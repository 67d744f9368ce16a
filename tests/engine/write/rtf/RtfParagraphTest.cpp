#include "DocumentBuilder.h"
#include "WrittenRtf.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;
using testing::HasSubstr;
using testing::Not;

TEST(RtfRun, WritesWhatDiffersFromTheStyle) {
    Document document = documentOf("plain");
    document.styles[0].run.isBold = true;
    RunProperties look = document.styles[0].run;
    look.isBold = false;
    look.isItalic = true;
    look.underline = UnderlineKind::Wavy;
    look.color = {255, 0, 0};
    look.raise = Twips(60);
    document.sections[0].blocks = {{paragraph({text("other", look)})}};
    const WrittenRtf rtf(document);
    EXPECT_THAT(rtf.body(), HasSubstr("{\\b0\\i\\cf1\\up6\\ulwave other}"));
    EXPECT_THAT(rtf.text(), HasSubstr("{\\colortbl;\\red255\\green0\\blue0;}"));
}

TEST(RtfRun, NamesFontsByScript) {
    RunProperties look;
    look.fontFamily = "Liberation Serif";
    look.eastAsianFontFamily = "Noto Serif CJK JP";
    const WrittenRtf rtf(documentOf("\u4E2D", look));
    EXPECT_THAT(rtf.text(), HasSubstr("{\\f1\\froman\\fcharset0\\fprq2 Liberation Serif;}"));
    EXPECT_THAT(rtf.body(), HasSubstr("\\loch\\af1\\hich\\af1\\dbch\\af2\\loch\\f1\\u20013?"));
}

TEST(RtfRun, TellsFontsOfSignsApart) {
    RunProperties look;
    look.fontFamily = "Symbol";
    EXPECT_THAT(WrittenRtf(documentOf("\uF0B7", look)).text(), HasSubstr("\\fcharset2\\fprq2 Symbol;}"));
}

TEST(RtfRun, GivesRightToLeftTextTheLookOfComplexScripts) {
    RunProperties look;
    look.fontFamily = "Carlito";
    look.complexFontFamily = "David CLM";
    look.isRightToLeft = true;
    look.language = "he-IL";
    EXPECT_THAT(WrittenRtf(documentOf("\u05E9", look)).body(),
                HasSubstr("\\ltrch\\fcs0\\f1\\rtlch\\fcs1\\af2\\afs22\\lang1037\\u1513?"));
}

TEST(RtfRun, JoinsTextOfOneLook) {
    EXPECT_THAT(WrittenRtf(documentOf(paragraph({text("a"), text("b"), {Tab{}}, text("c")}))).body(),
                HasSubstr("{ab\\tab c}"));
}

TEST(RtfParagraph, WritesHowItStands) {
    Paragraph one = paragraph("a");
    one.properties.alignment = Alignment::Justified;
    one.properties.indentStart = Twips(720);
    one.properties.firstLine = Twips(-360);
    one.properties.spaceAfter = Twips(120);
    one.properties.lineSpacing = {LineSpacingRule::Exact, 1, Twips(280)};
    one.properties.tabs = {{Twips(9000), TabAlignment::End, TabLeader::Dots}};
    one.properties.keepWithNext = true;
    one.properties.outlineLevel = 2;
    EXPECT_THAT(
        WrittenRtf(documentOf(one)).body(),
        HasSubstr("\\pard\\plain\\s0\\ltrpar\\qj\\fi-360\\li720\\lin720\\sa120\\sl-280\\slmult0\\widctlpar\\keepn"
                  "\\tqr\\tldot\\tx9000\\outlinelevel1"));
}

TEST(RtfParagraph, HasADropCapInAFrameBeforeTheTextItBegins) {
    RunProperties large;
    large.size = HalfPoints(80);
    Paragraph one = paragraph({text("O", large), text("nce")});
    one.dropCap = DropCap{DropCapKind::Dropped, 3, Twips(720), Twips(40)};
    const std::string body = WrittenRtf(documentOf(one)).body();
    EXPECT_THAT(body, HasSubstr("\\pvpara\\phcol\\wraparound\\dfrmtxtx40\\dropcapli3\\dropcapt1"));
    EXPECT_THAT(body, HasSubstr("\\sl-720\\slmult0"));
    EXPECT_LT(body.find("O}"), body.find("nce}"));
    EXPECT_EQ(body.find("\\dropcapli", body.find("O}")), std::string::npos) << "the rest is no frame";
}

TEST(RtfParagraph, TakesBackWhatItsStyleHas) {
    Document document = documentOf("a");
    document.styles[0].paragraph.spaceAfter = Twips(200);
    document.styles[0].paragraph.keepWithNext = true;
    const std::string body = WrittenRtf(document).body();
    EXPECT_THAT(body, HasSubstr("\\sa0\\widctlpar"));
    EXPECT_THAT(body, Not(HasSubstr("\\keepn"))) << "readers take it for on, whatever its number";
}

TEST(RtfParagraph, SaysItsLineSpacingWhereTheDefaultStyleHasAnother) {
    Document document = documentOf("a");
    EXPECT_THAT(WrittenRtf(document).body(), Not(HasSubstr("\\sl")));
    Style single = document.styles[0];
    single.id = single.name = "Single";
    single.basedOn = "Normal";
    document.styles.push_back(single);
    document.styles[0].paragraph.lineSpacing.multiple = 1.5;
    std::get<Paragraph>(document.sections[0].blocks[0].value).style = "Single";
    EXPECT_THAT(WrittenRtf(document).body(), HasSubstr("\\sl240\\slmult1"));
}

TEST(RtfParagraph, HasMultiplesThatReadersMayCutDownToPercents) {
    struct Row {
        int parts;
        const char* written;
        const char* why;
    };
    const Row rows[] = {
        {259, "\\sl260\\", "107.9 percent become 108 and not 107"},
        {257, "\\sl257\\", "107.1 percent"},
        {258, "\\sl258\\", "107.5 percent: the next part is not enough for 108"},
        {264, "\\sl264\\", "110 percent"},
    };
    for (const Row& row : rows) {
        Paragraph one = paragraph("a");
        one.properties.lineSpacing.multiple = row.parts / 240.0;
        EXPECT_THAT(WrittenRtf(documentOf(one)).body(), HasSubstr(row.written)) << row.why;
    }
}

TEST(RtfParagraph, MeansSidesOfThePageByLeftAndRight) {
    Paragraph one = paragraph("a");
    one.properties.isRightToLeft = true;
    one.properties.indentStart = Twips(500);
    EXPECT_THAT(WrittenRtf(documentOf(one)).body(), HasSubstr("\\rtlpar\\qr\\ri500\\lin500"));
}

TEST(RtfParagraph, BringsItsLabelAsTextForReadersThatDoNotCount) {
    Document document = documentOf("");
    NumberingLevel level;
    level.text = "%1.";
    level.firstLine = Twips(-360);
    level.indentStart = Twips(360);
    document.numberings = {{{level}}};
    Paragraph item = paragraph("item");
    item.list = ListReference{0, 0};
    document.sections[0].blocks = {{item}, {item}};
    const WrittenRtf rtf(document);
    EXPECT_THAT(rtf.text(), HasSubstr("{\\leveltext\\'02\\'00.;}{\\levelnumbers\\'01;}\\fi-360\\li360\\lin360"));
    EXPECT_THAT(rtf.text(), HasSubstr("{\\listoverride\\listid1\\listoverridecount0\\ls1}"));
    EXPECT_THAT(rtf.body(), HasSubstr("\\ls1\\ilvl0"));
    EXPECT_THAT(rtf.body(), HasSubstr("1.\\tab}{item}"));
    EXPECT_THAT(rtf.body(), HasSubstr("2.\\tab}{item}"));
}

TEST(RtfParagraph, LinksAndPlacesAreFieldsAndBookmarks) {
    const Link outside{{"http://example.org/a b", ""}, {text("out")}};
    const Link inside{{"", "place"}, {text("in")}};
    const std::string body = WrittenRtf(documentOf(paragraph({{outside}, {Bookmark{"place"}}, {inside}}))).body();
    EXPECT_THAT(body, HasSubstr("{\\field{\\*\\fldinst  HYPERLINK \"http://example.org/a%20b\" }{\\fldrslt{out}}}"));
    EXPECT_THAT(body, HasSubstr("{\\*\\bkmkstart place}{\\*\\bkmkend place}"));
    EXPECT_THAT(body, HasSubstr("{\\field{\\*\\fldinst  HYPERLINK \\\\l \"place\" }{\\fldrslt{in}}}"));
}

TEST(RtfParagraph, HasFieldsWithWhatTheyShow) {
    EXPECT_THAT(WrittenRtf(documentOf(paragraph({{Field{FieldCode::Page, "", {text("7")}}}}))).body(),
                HasSubstr("{\\field{\\*\\fldinst  PAGE }{\\fldrslt{7}}}"));
}

TEST(RtfParagraph, HasAContentsFieldOverItsEntries) {
    TableOfContents contents;
    contents.entries = {paragraph("one"), paragraph("two")};
    const std::string body = WrittenRtf(documentOf({{contents}})).body();
    EXPECT_THAT(body, HasSubstr("{\\field{\\*\\fldinst  TOC \\\\o \"1-3\" \\\\h \\\\z \\\\u }{\\fldrslt{one}{\\par}"));
    EXPECT_THAT(body, HasSubstr("{two}}}\\pard\\plain\\s0")) << "the last entry's properties are not the first one's";
}

TEST(RtfNote, StandsWhereItsMarkIs) {
    Document document = documentOf(paragraph({text("a"), {NoteReference{0, {}, ""}}, text("b")}));
    document.notes = {{NoteKind::Endnote, {{paragraph("note")}}, {}}};
    const std::string body = WrittenRtf(document).body();
    EXPECT_THAT(body, HasSubstr("{a}{\\chftn{\\footnote\\ftnalt\\pard\\plain\\s0"));
    EXPECT_THAT(body, HasSubstr("{\\super\\chftn}{ }{note}}}{b}"));
}

TEST(RtfNote, IsTextInAHeader) {
    Document document = documentOf("body");
    document.notes = {{NoteKind::Footnote, {{paragraph("note")}}, {}}};
    document.sections[0].header.standard = {{paragraph({text("a"), {NoteReference{0, {}, "*"}}})}};
    const WrittenRtf rtf(document);
    EXPECT_FALSE(rtf.has("\\footnote"));
    EXPECT_THAT(rtf.between("{\\header", "{\\par}\n}"), testing::AllOf(HasSubstr("{a}{*}"), HasSubstr("{note}")));
}

TEST(RtfNote, ReportsOneThatNothingLeadsTo) {
    Document document = documentOf("body");
    document.notes.resize(1);
    EXPECT_EQ(WrittenRtf(document).diagnostics().entries().size(), 1u) << "once, not for each pass over the text";
}

TEST(RtfFormField, HasKindsOfItsOwn) {
    const ContentControl name{ControlKind::Text, "name", "", {}, false, false, {text("Ada")}};
    const ContentControl box{ControlKind::CheckBox, "", "", {}, true, false, {}};
    const ContentControl list{ControlKind::DropDown, "", "", {"red", "green"}, false, false, {text("green")}};
    const std::string body = WrittenRtf(documentOf(paragraph({{name}, {box}, {list}}))).body();
    EXPECT_THAT(body, HasSubstr("{\\*\\formfield{\\fftype0{\\*\\ffname name}}}}{\\fldrslt{Ada}}"));
    EXPECT_THAT(body, HasSubstr("{\\*\\formfield{\\fftype1\\ffres1}}"));
    EXPECT_THAT(body, HasSubstr("{\\fftype2\\ffres1\\ffhaslistbox{\\*\\ffl red}{\\*\\ffl green}}"));
}

TEST(RtfComment, CarriesItsAuthorAndTime) {
    Document document = documentOf(paragraph({text("a"), {CommentReference{0}}}));
    document.comments = {{"Ada Lovelace", "2024-02-29T08:30:00Z", {{paragraph("why")}}}};
    EXPECT_THAT(
        WrittenRtf(document).body(),
        HasSubstr("{\\*\\atnid AL}{\\*\\atnauthor Ada Lovelace}{\\chatn{\\*\\annotation{\\*\\atndate -2017269218}"));
}

} // namespace
} // namespace orvane::tests
