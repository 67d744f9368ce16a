#include "DocumentBuilder.h"
#include "WrittenDocument.h"

#include "support/docx/DocxCheck.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;

RunProperties superscript() {
    RunProperties properties;
    properties.verticalPosition = VerticalPosition::Superscript;
    return properties;
}

Inline noteMark(std::size_t note, std::string customMark = {}) {
    return {NoteReference{note, superscript(), std::move(customMark)}};
}

Note note(std::string characters, NoteKind kind = NoteKind::Footnote) {
    return {kind, {{paragraph(std::move(characters))}}, {}};
}

TEST(Notes, StandInTheirPartWithAMark) {
    Document document = documentOf(paragraph({text("a"), noteMark(0)}));
    document.notes = {note("below")};
    const WrittenDocument written(document);
    EXPECT_EQ(written.body("//w:r[w:footnoteReference]"),
              normalXml("<w:r><w:rPr><w:vertAlign w:val='superscript'/></w:rPr><w:footnoteReference w:id='1'/></w:r>"));
    EXPECT_EQ(written.select("word/footnotes.xml", "//w:footnote[@w:id='1']"),
              normalXml("<w:footnote w:id='1'><w:p>"
                        "<w:r><w:rPr><w:vertAlign w:val='superscript'/></w:rPr><w:footnoteRef/></w:r>"
                        "<w:r><w:t xml:space='preserve'> </w:t></w:r><w:r><w:t>below</w:t></w:r></w:p></w:footnote>"));
}

TEST(Notes, AreSetOffByLinesThatTheSettingsName) {
    Document document = documentOf(paragraph({noteMark(0)}));
    document.notes = {note("end", NoteKind::Endnote)};
    const WrittenDocument written(document);
    EXPECT_EQ(written.select("word/endnotes.xml", "//w:endnote/@w:type"), "separator\ncontinuationSeparator\n");
    EXPECT_EQ(written.select("word/settings.xml", "//w:endnotePr/w:endnote/@w:id"), "-1\n0\n");
    EXPECT_EQ(written.part("word/footnotes.xml"), "");
}

TEST(Notes, CountOnEachPageWhereTheSettingsSaySo) {
    Document document = documentOf(paragraph({noteMark(0), noteMark(1)}));
    document.notes = {note("foot"), note("end", NoteKind::Endnote)};
    EXPECT_EQ(WrittenDocument(document).select("word/settings.xml", "//w:numRestart"), "");
    document.footnoteNumbering.count = CountStart::EachPage;
    EXPECT_EQ(WrittenDocument(document).select("word/settings.xml", "//*[w:numRestart/@w:val='eachPage']"),
              normalXml("<w:footnotePr><w:numRestart w:val='eachPage'/><w:footnote w:id='-1'/><w:footnote w:id='0'/>"
                        "</w:footnotePr>"));
}

TEST(Notes, CountInTheSignsOfTheDocument) {
    Document document = documentOf(paragraph({noteMark(0), noteMark(1)}));
    document.notes = {note("foot"), note("end", NoteKind::Endnote)};
    document.footnoteNumbering = {NumberFormat::Symbols, CountStart::EachSection};
    document.endnoteNumbering = {NumberFormat::Decimal, CountStart::Continuous};
    const WrittenDocument written(document);
    EXPECT_EQ(written.select("word/settings.xml", "//w:footnotePr/*[not(self::w:footnote)]"),
              normalXml("<w:numFmt w:val='chicago'/><w:numRestart w:val='eachSect'/>"));
    EXPECT_EQ(written.select("word/settings.xml", "//w:endnotePr/*[not(self::w:endnote)]"),
              normalXml("<w:numFmt w:val='decimal'/>"));
    EXPECT_EQ(written.body("//w:sectPr/w:footnotePr | //w:sectPr/w:endnotePr"),
              normalXml("<w:footnotePr><w:numFmt w:val='chicago'/><w:numRestart w:val='eachSect'/></w:footnotePr>"
                        "<w:endnotePr><w:numFmt w:val='decimal'/></w:endnotePr>"))
        << "some readers ask the section only";
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
}

TEST(Notes, KeepTheirOwnMarks) {
    Document document = documentOf(paragraph({noteMark(0, "*")}));
    document.notes = {note("starred")};
    const WrittenDocument written(document);
    EXPECT_EQ(written.body("//w:r/w:footnoteReference|//w:r/w:t"),
              normalXml("<w:footnoteReference w:customMarkFollows='1' w:id='1'/><w:t>*</w:t>"));
    EXPECT_EQ(written.select("word/footnotes.xml", "//w:footnote[@w:id='1']//w:t/text()"), "* starred");
    EXPECT_EQ(written.select("word/footnotes.xml", "//w:footnoteRef"), "");
}

TEST(Notes, ThatAreReferredToAgainStandOnce) {
    Document document = documentOf(paragraph({noteMark(0), noteMark(0)}));
    document.notes = {note("once")};
    const WrittenDocument written(document);
    EXPECT_EQ(written.count("//w:footnoteReference"), 1u);
    EXPECT_EQ(written.body("//w:t/text()"), "1");
}

TEST(Notes, OfATextBoxFollowItsText) {
    Frame box;
    box.blocks = {{paragraph({text("boxed"), noteMark(0)})}};
    Document document = documentOf({{box}, {paragraph("after")}});
    document.notes = {note("its note")};
    const WrittenDocument written(document);
    EXPECT_EQ(written.count("//w:footnoteReference"), 0u) << "text boxes have no notes";
    EXPECT_EQ(written.body("//w:txbxContent//w:t/text()"), "boxed1its note");
    EXPECT_EQ(written.select("word/footnotes.xml", "//w:footnote[not(@w:type)]"), "");
}

TEST(Notes, OfRunningTextsAndNotesFollowThem) {
    Document document = documentOf(paragraph({noteMark(0)}));
    document.notes = {note("outer"), note("inner"), note("of the head")};
    std::get<Paragraph>(document.notes[0].blocks[0].value).inlines.push_back(noteMark(1));
    // A note that refers to itself must not be written without end.
    std::get<Paragraph>(document.notes[1].blocks[0].value).inlines.push_back(noteMark(1));
    document.sections[0].header.standard = {{paragraph({text("head"), noteMark(2)})}};
    const WrittenDocument written(document);
    EXPECT_EQ(written.select("word/footnotes.xml", "//w:t/text()"), " outer2inner2");
    EXPECT_EQ(written.select("word/header1.xml", "//w:t/text()"), "head3of the head");
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
}

TEST(Notes, ThatNothingRefersToAreToldOf) {
    Document document = documentOf("a");
    document.notes = {note("lost")};
    const WrittenDocument written(document);
    ASSERT_EQ(written.diagnostics().entries().size(), 1u);
    EXPECT_EQ(written.diagnostics().entries()[0].kind, DiagnosticKind::LinkUnresolved);
}

TEST(Comments, StandInTheirPartWithAuthorAndDate) {
    Document document = documentOf(paragraph({text("a"), {CommentReference{0}}, {CommentReference{0}}}));
    document.comments = {{"Ada King Lovelace Byron", "2024-02-29T10:00:00Z", {{paragraph("why?")}}}};
    const WrittenDocument written(document);
    EXPECT_EQ(written.body("//w:commentReference"), normalXml("<w:commentReference w:id='0'/>"));
    EXPECT_EQ(written.select("word/comments.xml", "//w:comment"),
              normalXml("<w:comment w:id='0' w:author='Ada King Lovelace Byron' w:date='2024-02-29T10:00:00Z' "
                        "w:initials='AKL'><w:p><w:r><w:t>why?</w:t></w:r></w:p></w:comment>"));
}

TEST(Comments, HaveNoDateThatIsNone) {
    for (const char* date : {"", "2024", "2023-02-29T10:00:00Z", "2024-02-29T24:00:00Z", "2024-02-29T10:00:00+15:00",
                             "2024-02-29 10:00:00"}) {
        Document document = documentOf(paragraph({{CommentReference{0}}}));
        document.comments = {{"A", date, {{paragraph("c")}}}};
        EXPECT_EQ(WrittenDocument(document).select("word/comments.xml", "//w:comment/@w:date"), "") << date;
    }
}

TEST(Comments, OfATextBoxStandBesideIt) {
    Frame box;
    box.blocks = {{paragraph({text("boxed"), {CommentReference{0}}})}};
    Document document = documentOf({{box}, {paragraph("after")}});
    document.comments = {{"A", "", {{paragraph("c")}}}};
    const WrittenDocument written(document);
    EXPECT_EQ(written.count("//w:txbxContent//w:commentReference"), 0u);
    EXPECT_EQ(written.count("//w:body/w:p/w:r/w:commentReference"), 1u);
}

} // namespace
} // namespace orvane::tests
