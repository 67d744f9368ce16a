#include "read/doc/DocDump.h"

#include "DocumentBuilder.h"
#include "SampleDocument.h"
#include "TestPicture.h"

#include "support/Files.h"
#include "support/TemporaryFolder.h"
#include "write/doc/DocWriter.h"

#include <gmock/gmock.h>

namespace orvane::read::doc {
namespace {

using namespace document;
using namespace tests;
using testing::HasSubstr;

std::string written(const Document& document, const PictureStore& pictures) {
    const TemporaryFolder folder;
    Diagnostics diagnostics;
    write::writeDoc(document, pictures, folder.path() / "a.doc", diagnostics);
    return readFile(folder.path() / "a.doc");
}

std::string written(const Document& document) {
    const TemporaryFolder folder;
    return written(document, PictureStore(folder.path()));
}

/// A whole document's dump from the line `title` to the next title.
std::string part(const Dump& dump, const std::string& title) {
    EXPECT_EQ(dump.damage, "");
    const std::string lines = '\n' + dump.text;
    const std::size_t start = lines.find('\n' + title + '\n');
    if (start == std::string::npos)
        return {};
    std::size_t end = lines.find('\n', start + title.size() + 2);
    while (end != std::string::npos && end + 1 < lines.size() && lines[end + 1] == ' ')
        end = lines.find('\n', end + 1);
    const std::size_t first = start + title.size() + 2;
    return lines.substr(first, end == std::string::npos ? end : end + 1 - first);
}

std::string partOf(const Document& document, const std::string& title) {
    return part(dumpDoc(written(document)), title);
}

TEST(DocDump, ShowsWhatTheFileIsMadeOf) {
    const Document document = documentOf("words");
    EXPECT_THAT(partOf(document, "streams"), HasSubstr("  1Table: "));
    EXPECT_THAT(partOf(document, "streams"), HasSubstr("  <05>SummaryInformation: "));
    EXPECT_EQ(partOf(document, "file information"), "  edition 00c1, table stream 1Table\n  body: 6 characters\n");
    EXPECT_EQ(partOf(document, "pieces"), "  0 to 6: UTF-16 at 1536\n");
}

TEST(DocDump, ShowsParagraphsAndTheirCharacters) {
    RunProperties bold;
    bold.isBold = true;
    bold.color = Color{255, 0, 0};
    Paragraph centred = paragraph({text("plain "), text("bold", bold), {Tab{}}});
    centred.properties.alignment = Alignment::Center;
    centred.properties.spaceAfter = Twips(120);
    EXPECT_EQ(partOf(documentOf({{centred}, {paragraph("a \"b\" <c>\nd")}}), "text: body"),
              "  0 style 0: side=1 alignment=1 space-after=120\n"
              "    \"plain \"\n"
              "    \"bold\" bold=1 complex-bold=1 color=000000ff\n"
              "    \"<tab><end>\"\n"
              "  12 style 0\n"
              "    \"a \\\"b\\\" \\<c><line>d<end>\"\n");
}

TEST(DocDump, ShowsStylesFontsAndLists) {
    Document document = documentOf("a");
    document.styles[0].run.fontFamily = "Georgia";
    Style heading = document.styles[0];
    heading.id = "Heading1";
    heading.name = "heading 1";
    heading.basedOn = "Normal";
    heading.run.isItalic = true;
    document.styles.push_back(heading);
    document.numberings = {
        {{{NumberFormat::Decimal, "%1.", 3, Alignment::Start, Twips(360), Twips(-360), false, {}, {}}}}};
    EXPECT_THAT(partOf(document, "styles"), HasSubstr("  1 \"heading 1\" paragraph based on 0 next 1\n"
                                                      "    characters: italic=1 complex-italic=1\n"));
    EXPECT_EQ(partOf(document, "fonts"), "  0 \"Georgia\"\n");
    EXPECT_EQ(partOf(document, "lists"),
              "  list 1\n"
              "    level: start 3 format 0 label \"%1.\"\n"
              "      paragraph: left-indent-97=360 first-line-97=-360 left-indent=360 first-line=-360\n"
              "  reference 1: list 1\n");
}

TEST(DocDump, ShowsSectionsAndRunningTexts) {
    Document document = documentOf("a");
    document.sections[0].columns = {{Twips(4000), Twips(500)}, {Twips(4000), Twips(0)}};
    document.sections[0].header.standard = {{paragraph("head")}};
    const std::string sections = partOf(document, "sections");
    EXPECT_THAT(sections, HasSubstr("  0 to 2: "));
    EXPECT_THAT(sections, HasSubstr("width=11906 height=16838"));
    EXPECT_THAT(sections, HasSubstr("columns=1"));
    EXPECT_THAT(partOf(document, "text: headers and footers"), HasSubstr("\"head<end>\""));
    EXPECT_THAT(partOf(document, "running texts"), HasSubstr("  texts: 0 3 6 "));
}

TEST(DocDump, ShowsTablesByTheirMarks) {
    Table table;
    table.columnWidths = {Twips(256), Twips(512)};
    table.rows.resize(1);
    table.rows[0].cells = {cell("a"), cell("b", 1)};
    const std::string body = partOf(documentOf({{table}}), "text: body");
    EXPECT_THAT(body, HasSubstr("  0 style 0: in-table=1 table-depth=1\n    \"a<cell>\"\n"
                                "  2 style 0: in-table=1 table-depth=1\n    \"b<cell>\"\n"
                                "  4 style 0: in-table=1 table-depth=1 row-end=1 "));
    EXPECT_THAT(body, HasSubstr(" cells=3000020000000100030006"));
}

TEST(DocDump, ShowsFieldsBookmarksNotesAndComments) {
    Document document = documentOf(paragraph({text("a"),
                                              {Field{FieldCode::Page, "", {text("7")}}},
                                              {Bookmark{"place"}},
                                              {NoteReference{0, {}, "*"}},
                                              {CommentReference{0}}}));
    document.notes = {{NoteKind::Footnote, {{paragraph("foot")}}, {}}};
    document.comments = {{"Ada B\u00F6ll", "2024-02-29T08:31:00Z", {{paragraph("why")}}}};
    const Dump dump = dumpDoc(written(document));
    EXPECT_EQ(part(dump, "text: body"), "  0 style 0\n    \"a\"\n    \"<field>\" special=1\n    \" PAGE \"\n"
                                        "    \"<result>\" special=1\n    \"7\"\n    \"</field>\" special=1\n"
                                        "    \"*\"\n    \"<comment>\" special=1\n    \"<end>\"\n");
    EXPECT_EQ(part(dump, "fields"), "  body 1: character 13 kind 33\n  body 8: character 14 kind 255\n"
                                    "  body 10: character 15 kind 128\n");
    EXPECT_EQ(part(dump, "bookmarks"), "  \"place\" from 11 to 11\n");
    EXPECT_EQ(part(dump, "notes"), "  footnote at 11: text from 0, a mark of its own\n");
    EXPECT_EQ(part(dump, "comments"),
              "  author 0 \"Ada B\u00F6ll\"\n  comment at 12: text from 0, author 0 \"AB\", made 2024-02-29 08:31\n");
    EXPECT_EQ(part(dump, "text: comments"), "  0 style 0\n    \"<comment>\" special=1\n    \"why<end>\"\n"
                                            "  5 style 0\n    \"<end>\"\n");
}

TEST(DocDump, ShowsPicturesShapesAndTextBoxes) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    Picture picture;
    picture.id = pictures.add(pngPicture(2, 2, kBlack));
    picture.width = picture.height = Emu(635 * 300);
    Frame frame;
    frame.placement.x = Emu(6350);
    frame.width = frame.height = Emu(63500);
    frame.blocks = {{paragraph("boxed")}};
    const Dump dump =
        dumpDoc(written(documentOf({{Figure{picture, {}, {}}}, {frame}, {paragraph({{picture}})}}), pictures));
    EXPECT_EQ(part(dump, "anchors"), "  body 0: shape 1026 from 0,0 to 300,300 flags 004a\n"
                                     "  body 1: shape 1027 from 10,0 to 110,100 flags 004a\n");
    EXPECT_EQ(part(dump, "text boxes"), "  box 1: text from 0, shape 1027\n");
    EXPECT_THAT(part(dump, "text: text boxes"), HasSubstr("\"boxed<end>\""));
    EXPECT_THAT(part(dump, "shapes"), HasSubstr("shape's head kind 75 number 1026"));
    EXPECT_THAT(part(dump, "shapes"), HasSubstr("shape's head kind 202 number 1027"));
    EXPECT_THAT(part(dump, "pictures"), HasSubstr("300 by 300 twips, scaled 1000 by 1000\n"));
    EXPECT_THAT(part(dump, "pictures"), HasSubstr("PNG, "));
}

TEST(DocDump, ShowsWhatTheDocumentSaysOfItself) {
    Document document = documentOf("a");
    document.metadata.title = "A title";
    document.metadata.created = "1601-01-01T00:00:01Z";
    EXPECT_EQ(partOf(document, "document information"),
              "  code page: 65001\n  title: \"A title\"\n  created: 10000000 (100 ns since 1601)\n");
}

TEST(DocDump, IsWholeForADocumentThatHasOneOfEverything) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    const Document document = sampleDocument(pictures);
    const Dump dump = dumpDoc(written(document, pictures));
    EXPECT_EQ(dump.damage, "");
    for (const char* title : {"styles", "fonts", "lists", "sections", "text: footnotes", "text: comments", "fields",
                              "text boxes", "shapes", "pictures", "document information"})
        EXPECT_NE(part(dump, title), "") << title;
    EXPECT_NE(part(dump, "pictures").find("bytes of a form field"), std::string::npos);
}

TEST(DocDump, TellsOfWhatIsNoDocument) {
    EXPECT_THAT(dumpDoc("").damage, HasSubstr("no compound file"));
    EXPECT_THAT(dumpDoc("{\\rtf1}").damage, HasSubstr("no compound file"));
    const std::string signature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
    EXPECT_THAT(dumpDoc(signature).damage, HasSubstr("beyond the 8 of the file"));
}

TEST(DocDump, SurvivesDamageAnywhere) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    const std::string whole = written(sampleDocument(pictures), pictures);
    int damaged = 0;
    std::uint32_t state = 1;
    for (int i = 0; i < 300; ++i) {
        std::string bytes = whole;
        for (int change = 0; change < 8; ++change) {
            state = state * 1664525 + 1013904223;
            bytes[(state >> 8) % bytes.size()] = static_cast<char>(state);
        }
        if (i % 3 == 0)
            bytes.resize((state >> 7) % bytes.size());
        damaged += dumpDoc(bytes).damage.empty() ? 0 : 1;
    }
    EXPECT_GT(damaged, 100) << "what is cut is told of";
}

} // namespace
} // namespace orvane::read::doc
