#include "DocumentBuilder.h"
#include "WrittenRtf.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;
using testing::HasSubstr;

TEST(RtfSection, EndsWithItsLastParagraph) {
    Document document = documentOf("a");
    document.sections.push_back(section({{paragraph("b")}}));
    document.sections[1].start = SectionStart::Continuous;
    document.sections[1].columns = {{Twips(3000), Twips(400)}, {Twips(5000), {}}};
    document.sections[1].hasColumnSeparator = true;
    const WrittenRtf rtf(document);
    EXPECT_THAT(rtf.body(), HasSubstr("{a}{\\sect}\n\\sectd\\ltrsect\\sbknone"));
    EXPECT_TRUE(rtf.has("\\cols2\\colsx400\\colno1\\colw3000\\colsr400\\colno2\\colw5000\\linebetcol"));
}

TEST(RtfSection, HasItsPageAndNumbers) {
    Document document = documentOf("a");
    Section& page = document.sections[0];
    page.pageWidth = Twips(16838);
    page.pageHeight = Twips(11906);
    page.firstPageNumber = 5;
    page.pageNumberFormat = NumberFormat::LowerRoman;
    EXPECT_THAT(
        WrittenRtf(document).body(),
        HasSubstr("\\pgwsxn16838\\pghsxn11906\\lndscpsxn\\marglsxn1440\\margrsxn1440\\margtsxn1440\\margbsxn1440"
                  "\\headery720\\footery720\\pgnlcrm\\pgnstarts5\\pgnrestart"));
}

TEST(RtfSection, CountsNotesOnEachPage) {
    Document document = documentOf("a");
    EXPECT_FALSE(WrittenRtf(document).has("\\ftnrstpg"));
    document.footnoteNumbering.count = CountStart::EachPage;
    EXPECT_TRUE(WrittenRtf(document).has("\\ftnrstpg"));
    EXPECT_TRUE(WrittenRtf(document).has("\\sftnrstpg"));
}

TEST(RtfSection, CountsNotesInTheSignsOfTheDocument) {
    Document document = documentOf("a");
    document.footnoteNumbering = {NumberFormat::LowerLetter, CountStart::EachSection};
    document.endnoteNumbering = {NumberFormat::Symbols, CountStart::Continuous};
    const WrittenRtf rtf(document);
    EXPECT_TRUE(rtf.has("\\ftnnalc\\ftnrestart"));
    EXPECT_TRUE(rtf.has("\\sftnnalc\\sftnrestart"));
    EXPECT_TRUE(rtf.has("\\aftnnchi"));
    EXPECT_TRUE(rtf.has("\\saftnnchi"));
}

TEST(RtfSection, MirrorsMarginsAndNumbersLines) {
    Document document = documentOf("a");
    EXPECT_FALSE(WrittenRtf(document).has("\\margmirror"));
    document.hasMirroredMargins = true;
    document.sections[0].lineNumbers = LineNumbers{5, 1, CountStart::Continuous, Twips(200)};
    const WrittenRtf rtf(document);
    EXPECT_TRUE(rtf.has("\\facingp\\margmirror"));
    EXPECT_TRUE(rtf.has("\\linemod5\\linex200\\linecont"));
}

TEST(RtfSection, HasRunningTextsForKindsOfPages) {
    Document document = documentOf("a");
    Section& page = document.sections[0];
    page.header.standard = {{paragraph("odd")}};
    page.header.evenPages = {{paragraph("even")}};
    page.header.firstPage = {{paragraph("first")}};
    const WrittenRtf rtf(document);
    EXPECT_TRUE(rtf.has("\\facingp"));
    EXPECT_TRUE(rtf.has("\\titlepg"));
    EXPECT_THAT(rtf.between("{\\headerr", "}\n}"), HasSubstr("{odd}"));
    EXPECT_THAT(rtf.between("{\\headerl", "}\n}"), HasSubstr("{even}"));
    EXPECT_THAT(rtf.between("{\\headerf", "}\n}"), HasSubstr("{first}"));
}

TEST(RtfSection, TakesOverTheRunningTextsOfTheOneBefore) {
    Document document = documentOf("a");
    document.sections[0].footer.standard = {{paragraph("foot")}};
    document.sections.resize(3, document.sections[0]);
    document.sections[2].footer.standard.reset();
    const WrittenRtf rtf(document);
    EXPECT_EQ(rtf.count("{foot}"), 1u);
    EXPECT_EQ(rtf.count("{\\footer"), 2u) << "the last section has an empty one, else the first would go on";
}

TEST(RtfSection, TellsWhatTheDocumentSaysOfItself) {
    Document document = documentOf("a");
    document.metadata.title = "A {title}";
    document.metadata.author = "Ada";
    document.metadata.created = "2024-02-29T08:30:05Z";
    document.metadata.modified = "yesterday";
    EXPECT_TRUE(WrittenRtf(document).has(
        "{\\info{\\title A \\{title\\}}{\\author Ada}{\\creatim\\yr2024\\mo2\\dy29\\hr8\\min30\\sec5}}"));
}

TEST(RtfStyle, IsCompleteAndNamesItsParent) {
    Document document = documentOf("a");
    Style heading = document.styles[0];
    heading.id = "Heading1";
    heading.name = "heading 1";
    heading.basedOn = heading.next = "Normal";
    heading.run.isBold = true;
    document.styles.push_back(heading);
    EXPECT_THAT(WrittenRtf(document).text(), HasSubstr("\\b\\sbasedon0\\snext0\\sqformat heading 1;}"));
}

TEST(RtfStyle, TakesBackWhatItsParentHas) {
    Document document = documentOf("a");
    Style light = document.styles[0];
    light.id = light.name = "Light";
    light.basedOn = light.next = "Normal";
    document.styles.push_back(light);
    document.styles[0].run.isBold = true;
    document.styles[0].run.color = {255, 0, 0};
    EXPECT_THAT(WrittenRtf(document).text(), HasSubstr("\\b0\\cf2\\sbasedon0\\snext0\\sqformat Light;}"));
}

} // namespace
} // namespace orvane::tests
