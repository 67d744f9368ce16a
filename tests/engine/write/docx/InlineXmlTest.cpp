#include "DocumentBuilder.h"
#include "WrittenDocument.h"

#include <gtest/gtest.h>

namespace orvane::tests {
namespace {

using namespace document;

Inline link(std::string uri, std::string bookmark, std::string characters) {
    return {Link{{std::move(uri), std::move(bookmark)}, {text(std::move(characters))}}};
}

std::string targetsOf(const WrittenDocument& written) {
    return written.select("word/_rels/document.xml.rels", "//Relationship[@TargetMode='External']/@Target");
}

TEST(InlineXml, LeadsLinksOutsideThroughOneRelationshipATarget) {
    const WrittenDocument written(
        documentOf(paragraph({link("https://a.example/", "", "one"), text(" "), link("https://a.example/", "", "two"),
                              link("mailto:a@b.example", "", "three")})));
    EXPECT_EQ(targetsOf(written), "https://a.example/\nmailto:a@b.example\n");
    EXPECT_EQ(written.body("//w:hyperlink/w:r/w:t/text()"), "onetwothree");
    EXPECT_EQ(written.body("//w:hyperlink/@r:id"), "rId1\nrId1\nrId2\n");
}

TEST(InlineXml, LeadsLinksInsideToTheirBookmarkByOneName) {
    const WrittenDocument written(
        documentOf(paragraph({{Bookmark{"part 2 \u00A7"}}, link("", "part 2 \u00A7", "there")})));
    EXPECT_EQ(written.body("//w:bookmarkStart|//w:bookmarkEnd"),
              normalXml("<w:bookmarkStart w:id='1' w:name='part_2_\u00A7'/><w:bookmarkEnd w:id='1'/>"));
    EXPECT_EQ(written.body("//w:hyperlink/@w:anchor"), "part_2_\u00A7\n");
}

TEST(InlineXml, TakesTheTextOfALinkThatLeadsNowhere) {
    const WrittenDocument written(documentOf(paragraph({link("", "", "text")})));
    EXPECT_EQ(written.body("//w:p"), normalXml("<w:p><w:r><w:t>text</w:t></w:r></w:p>"));
}

TEST(InlineXml, EscapesWhatAnAddressMayNotHold) {
    struct Row {
        const char* uri;
        const char* address;
    };
    const Row rows[] = {
        {"https://a.example/b c", "https://a.example/b%20c"},
        {"https://a.example/\u00FC", "https://a.example/%C3%BC"},
        {"https://a.example/%41", "https://a.example/%41"},
        {"https://a.example/100%", "https://a.example/100%25"},
        {"https://a.example/\"<>\\", "https://a.example/%22%3C%3E%5C"},
        {"https://a.example/?q=1&r=2", "https://a.example/?q=1&r=2"},
        {"https://u:p@a.example:80/b:c", "https://u:p@a.example:80/b:c"},
        {"https://a.example:/", "https://a.example:/"},
        {"https://a:b.example/", "https://a%3Ab.example/"},
        {"https://[::1]:80/[b]?c[]=[d]", "https://[::1]:80/%5Bb%5D?c%5B%5D=%5Bd%5D"},
        {"https://[a:z]/", "https://%5Ba%3Az%5D/"},
        {"mailto:a@b.example?subject=[c]:d", "mailto:a@b.example?subject=%5Bc%5D:d"},
        {"c:report.pdf", "c:report.pdf"},
        {"1:report.pdf", "1%3Areport.pdf"},
        {"a b:c/d:e", "a%20b%3Ac/d:e"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(targetsOf(WrittenDocument(documentOf(paragraph({link(row.uri, "", "a")})))),
                  std::string(row.address) + "\n");
}

TEST(InlineXml, PartsThePlaceOffAnAddress) {
    struct Row {
        const char* uri;
        const char* address;
        const char* place;
    };
    const Row rows[] = {
        {"https://a.example/b#c", "https://a.example/b\n", "c\n"},
        {"https://a.example/#a#b", "https://a.example/\n", "a%23b\n"},
        {"https://a.example/b#", "https://a.example/b\n", ""},
        {"#c", "#c\n", ""},
    };
    for (const Row& row : rows) {
        const WrittenDocument written(documentOf(paragraph({link(row.uri, "", "a")})));
        EXPECT_EQ(targetsOf(written), row.address) << row.uri;
        EXPECT_EQ(written.body("//w:hyperlink/@w:anchor"), row.place) << row.uri;
    }
}

TEST(InlineXml, LeavesOutAnAddressThatIsTooLong) {
    const WrittenDocument written(documentOf(paragraph({link("https://a/" + std::string(3000, 'x'), "", "a")})));
    EXPECT_EQ(written.count("//w:hyperlink"), 0u);
    EXPECT_EQ(written.body("//w:t/text()"), "a");
    ASSERT_EQ(written.diagnostics().entries().size(), 1u);
    EXPECT_EQ(written.diagnostics().entries()[0].kind, DiagnosticKind::LinkUnresolved);
}

TEST(InlineXml, KeepsBookmarksOfOneNameApart) {
    const WrittenDocument written(documentOf(paragraph({{Bookmark{"a"}}, {Bookmark{"a"}}, {Bookmark{"2nd"}}})));
    EXPECT_EQ(written.body("//w:bookmarkStart/@w:name"), "a\n_2nd\n");
}

TEST(InlineXml, WritesFieldsWithTheirResult) {
    RunProperties bold;
    bold.isBold = true;
    const WrittenDocument written(documentOf(paragraph({{Field{FieldCode::Page, "", {text("7", bold)}}}})));
    EXPECT_EQ(written.body("//w:p"),
              normalXml("<w:p><w:r><w:rPr><w:b/></w:rPr><w:fldChar w:fldCharType='begin'/></w:r>"
                        "<w:r><w:rPr><w:b/></w:rPr><w:instrText xml:space='preserve'> PAGE </w:instrText></w:r>"
                        "<w:r><w:rPr><w:b/></w:rPr><w:fldChar w:fldCharType='separate'/></w:r>"
                        "<w:r><w:rPr><w:b/></w:rPr><w:t>7</w:t></w:r>"
                        "<w:r><w:rPr><w:b/></w:rPr><w:fldChar w:fldCharType='end'/></w:r></w:p>"));
}

TEST(InlineXml, WritesTheInstructionOfEachField) {
    const WrittenDocument written(documentOf(paragraph(
        {{Field{FieldCode::PageCount, "", {text("9")}}}, {Field{FieldCode::PageReference, "ch 1", {text("3")}}}})));
    EXPECT_EQ(written.body("//w:instrText/text()"), " NUMPAGES  PAGEREF ch_1 \\h ");
}

TEST(InlineXml, SpansATableOfContentsOverItsEntries) {
    TableOfContents contents{1, 2, {paragraph("one"), paragraph("two")}};
    const WrittenDocument written(documentOf({{contents}, {paragraph("after")}}));
    EXPECT_EQ(written.body("//w:instrText/text()"), " TOC \\o \"1-2\" \\h \\z \\u ");
    EXPECT_EQ(written.body("//w:p[1]//@w:fldCharType"), "begin\nseparate\n");
    EXPECT_EQ(written.body("//w:p[2]//@w:fldCharType"), "end\n");
    EXPECT_EQ(written.count("//w:p"), 3u);
}

TEST(InlineXml, WritesATextField) {
    ContentControl control{ControlKind::Text, "name", "Your name", {}, false, true, {text("Ada")}};
    const WrittenDocument written(documentOf(paragraph({{control}})));
    EXPECT_EQ(written.body("//w:sdt"),
              normalXml("<w:sdt><w:sdtPr><w:alias w:val='Your name'/><w:tag w:val='name'/><w:id w:val='1'/>"
                        "<w:text w:multiLine='1'/></w:sdtPr>"
                        "<w:sdtContent><w:r><w:t>Ada</w:t></w:r></w:sdtContent></w:sdt>"));
}

TEST(InlineXml, LetsATextFieldOfSeveralLooksOrLinesHaveThem) {
    ContentControl control{ControlKind::Text, "note", "", {}, false, true, {text("one")}};
    control.content.push_back({Break{BreakKind::Line}});
    control.content.push_back(text("two"));
    const WrittenDocument written(documentOf(paragraph({{control}})));
    EXPECT_EQ(written.count("//w:sdtPr/w:text"), 0u);
    EXPECT_EQ(written.count("//w:sdtContent//w:br"), 1u);
}

TEST(InlineXml, ShowsAnEmptyTextField) {
    const WrittenDocument written(documentOf(paragraph({{ContentControl{}}})));
    EXPECT_EQ(written.count("//w:sdtPr/w:showingPlcHdr"), 1u);
    EXPECT_EQ(written.body("//w:sdtContent//w:t/text()"), "\u00A0\u00A0\u00A0\u00A0\u00A0");
}

TEST(InlineXml, WritesACheckBoxWithItsState) {
    for (const bool isChecked : {true, false}) {
        ContentControl control;
        control.kind = ControlKind::CheckBox;
        control.name = "agreed";
        control.isChecked = isChecked;
        const WrittenDocument written(documentOf(paragraph({{control}})));
        EXPECT_EQ(written.body("//w14:checked/@w14:val"), isChecked ? "1\n" : "0\n");
        EXPECT_EQ(written.body("//w:sdtContent//w:t/text()"), isChecked ? "\u2612" : "\u2610");
    }
}

TEST(InlineXml, WritesADrawnBoxAsTheFieldThatLooksLikeOne) {
    for (const bool isChecked : {true, false}) {
        ContentControl control;
        control.kind = ControlKind::CheckBox;
        control.isChecked = isChecked;
        const WrittenDocument written(documentOf(paragraph({{control}})));
        EXPECT_EQ(written.body("//w:fldChar/@w:fldCharType"), "begin\nseparate\nend\n");
        EXPECT_EQ(written.body("//w:instrText/text()"), " FORMCHECKBOX ");
        EXPECT_EQ(written.body("//w:ffData/w:checkBox/w:default/@w:val"), isChecked ? "1\n" : "0\n");
        EXPECT_EQ(written.count("//w:t"), 0u);
    }
}

TEST(InlineXml, WritesARadioButtonAsARoundBox) {
    ContentControl control;
    control.kind = ControlKind::RadioButton;
    control.isChecked = true;
    const WrittenDocument written(documentOf(paragraph({{control}})));
    EXPECT_EQ(written.body("//w14:checkedState/@w14:val"), "25C9\n");
    EXPECT_EQ(written.body("//w14:uncheckedState/@w14:val"), "25CB\n");
    EXPECT_EQ(written.body("//w:sdtContent//w:t/text()"), "\u25C9");
}

TEST(InlineXml, WritesAListThatTakesOtherTextsAsACombination) {
    ContentControl control{ControlKind::ComboBox, "c", "", {"red", "green"}, false, false, {text("blue")}};
    const WrittenDocument written(documentOf(paragraph({{control}})));
    EXPECT_EQ(written.count("//w:comboBox/w:listItem"), 2u);
    EXPECT_EQ(written.body("//w:sdtContent//w:t/text()"), "blue");
}

TEST(InlineXml, WritesEachChoiceOnce) {
    ContentControl control{ControlKind::DropDown, "c", "", {"red", "", "green", "red"}, false, false, {text("green")}};
    const WrittenDocument written(documentOf(paragraph({{control}})));
    EXPECT_EQ(written.body("//w:listItem/@w:value"), "red\ngreen\n");
}

TEST(InlineXml, WritesWhatAChoiceStandsForBesideWhatItShows) {
    ContentControl control{ControlKind::DropDown, "c", "", {"Red", "Green", "Blue"}, false, false, {text("Green")},
                           {"r", "g", "g"}};
    const WrittenDocument written(documentOf(paragraph({{control}})));
    EXPECT_EQ(written.body("//w:listItem/@w:displayText"), "Red\nGreen\n") << "each value once";
    EXPECT_EQ(written.body("//w:listItem/@w:value"), "r\ng\n");
}

TEST(InlineXml, CutsNamesOfFieldsToWhatIsAllowed) {
    ContentControl control{ControlKind::Date, std::string(100, 'n'), "", {}, false, false, {text("today")}};
    const WrittenDocument written(documentOf(paragraph({{control}})));
    EXPECT_EQ(written.body("//w:tag/@w:val"), std::string(64, 'n') + "\n");
    EXPECT_EQ(written.count("//w:sdtPr/w:date"), 1u);
}

} // namespace
} // namespace orvane::tests
