#include "DocumentBuilder.h"
#include "TestPicture.h"
#include "WrittenDoc.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

namespace orvane::tests {
namespace {

using namespace document;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr std::size_t kBody = 3;
constexpr std::size_t kFootnotes = 4;
constexpr std::size_t kRunningTexts = 5;
constexpr std::size_t kEndnotes = 8;
constexpr std::size_t kTextBoxes = 9;
constexpr std::size_t kRunningTextBoxes = 10;

TEST(DocField, IsMarkedByThreeCharacters) {
    const WrittenDoc doc(documentOf(paragraph({text("a"), {Field{FieldCode::Page, "", {text("7")}}}})));
    EXPECT_EQ(doc.read().text(), "a\\13 PAGE \\147\\15\\0d");
    EXPECT_EQ(doc.read().table(16), std::string("\1\0\0\0\x8\0\0\0\xA\0\0\0\xC\0\0\0\x13\x21\x14\xFF\x15\x80", 22));
}

TEST(DocField, LinksToPlacesAndAddresses) {
    const Link outside{{"http://example.org", ""}, {text("out")}};
    const Link inside{{"", "place"}, {text("in")}};
    const WrittenDoc doc(documentOf(paragraph({{outside}, {Bookmark{"place"}}, {inside}})));
    EXPECT_THAT(doc.read().text(), HasSubstr("\\13 HYPERLINK \"http://example.org\" \\14out\\15"));
    EXPECT_THAT(doc.read().text(), HasSubstr("\\13 HYPERLINK \\l \"place\" \\14in\\15"));
    EXPECT_EQ(doc.read().numbers(22)[0], std::string("s HYPERLINK \"http://example.org\" sout").size() + 1);
    EXPECT_EQ(doc.read().table(21), std::string("\xFF\xFF\1\0\0\0\5\0p\0l\0a\0c\0e\0", 18));
}

TEST(DocNote, StandsInATextOfItsKind) {
    Document document =
        documentOf(paragraph({text("a"), {NoteReference{0, {}, ""}}, text("b"), {NoteReference{1, {}, "*"}}}));
    document.notes = {{NoteKind::Footnote, {{paragraph("foot")}}, {}}, {NoteKind::Endnote, {{paragraph("end")}}, {}}};
    const WrittenDoc doc(document);
    EXPECT_EQ(doc.read().text(), "a\\02b*\\0d\\02 foot\\0d\\0d* end\\0d\\0d\\0d");
    EXPECT_EQ(doc.read().length(kBody), 5u);
    EXPECT_EQ(doc.read().length(kFootnotes), 8u);
    EXPECT_EQ(doc.read().length(kEndnotes), 7u);
    EXPECT_EQ(doc.read().table(2), std::string("\1\0\0\0\5\0\0\0\1\0", 10));
    EXPECT_EQ(doc.read().table(46), std::string("\3\0\0\0\5\0\0\0\0\0", 10)) << "a mark of its own is not counted";
    EXPECT_THAT(doc.read().numbers(3), ElementsAre(0, 7, 8));
}

TEST(DocNote, IsTextInAHeader) {
    Document document = documentOf("body");
    document.notes = {{NoteKind::Footnote, {{paragraph("note")}}, {}}};
    document.sections[0].header.standard = {{paragraph({text("a"), {NoteReference{0, {}, "*"}}})}};
    const WrittenDoc doc(document);
    EXPECT_EQ(doc.read().length(kFootnotes), 0u);
    EXPECT_THAT(doc.read().text(), HasSubstr("a*\\0dnote\\0d"));
}

TEST(DocComment, StandsBesideTheBoxThatItIsIn) {
    Frame frame;
    frame.blocks = {{paragraph({text("boxed"), {CommentReference{0}}})}};
    Document document = documentOf({{frame}, {paragraph("a")}});
    document.comments = {{"Ada", "", {{paragraph("why")}}}};
    EXPECT_EQ(WrittenDoc(document).read().text(), "\\08\\05a\\0d\\05why\\0d\\0dboxed\\0d\\0d\\0d");
}

TEST(DocComment, TellsWhenItWasMade) {
    Document document = documentOf(paragraph({text("a"), {CommentReference{0}}, {CommentReference{1}}}));
    document.comments = {{"Ada", "2024-02-29T08:31:00Z", {{paragraph("why")}}},
                         {"Ada", "yesterday", {{paragraph("so")}}}};
    const std::string details = WrittenDoc(document).read().table(112);
    ASSERT_EQ(details.size(), 2 * 18u);
    // Minute 31, hour 8, day 29, month 2, 124 years after 1900, a Thursday.
    constexpr std::uint32_t kMoment = 31u | 8u << 6 | 29u << 11 | 2u << 16 | 124u << 20 | 4u << 29;
    EXPECT_EQ(details.substr(0, 4),
              (std::string{static_cast<char>(kMoment & 0xFF), static_cast<char>(kMoment >> 8 & 0xFF),
                           static_cast<char>(kMoment >> 16 & 0xFF), static_cast<char>(kMoment >> 24)}));
    EXPECT_EQ(details.substr(18, 18), std::string(18, '\0')) << "no date";
}

TEST(DocComment, IsToldOfWhereTheFormatHasNone) {
    Document document = documentOf("body");
    document.comments = {{"Ada", "", {{paragraph("why")}}}};
    document.sections[0].header.standard = {{paragraph({text("head"), {CommentReference{0}}})}};
    const WrittenDoc doc(document);
    EXPECT_EQ(doc.read().text().find("why"), std::string::npos);
    EXPECT_EQ(doc.diagnostics().entries().size(), 1u);
}

TEST(DocSection, HasRunningTextsForKindsOfPages) {
    Document document = documentOf("body");
    Section& page = document.sections[0];
    page.header.standard = {{paragraph("odd")}};
    page.header.evenPages = {{paragraph("even")}};
    page.footer.firstPage = {{paragraph("first")}};
    const WrittenDoc doc(document);
    // Two separators for each kind of notes come first.
    EXPECT_THAT(doc.read().numbers(11), ElementsAre(0, 3, 6, 6, 9, 12, 12, 18, 23, 25, 27, 32, 39, 40));
    EXPECT_EQ(doc.read().length(kRunningTexts), 40u);
    EXPECT_THAT(doc.read().text(), HasSubstr("even\\0d\\0dodd\\0d\\0d\\0d\\0d\\0d\\0dodd\\0d\\0dfirst\\0d\\0d"))
        << "footers of other pages than the first are blank";
}

TEST(DocSection, HasNoHeaderWhereAllKindsOfItAreBlank) {
    Document document = documentOf("body");
    document.sections[0].header.firstPage = std::vector<Block>{};
    document.sections[0].footer.standard = {{paragraph("foot")}};
    const WrittenDoc doc(document);
    EXPECT_THAT(doc.read().numbers(11), ElementsAre(0, 3, 6, 6, 9, 12, 12, 12, 12, 12, 18, 18, 24, 25));
}

TEST(DocSection, TakesOverTheRunningTextsOfTheOneBefore) {
    Document document = documentOf("a");
    document.sections[0].footer.standard = {{paragraph("foot")}};
    document.sections.resize(3, document.sections[0]);
    document.sections[2].footer.standard.reset();
    const std::string text = WrittenDoc(document).read().text();
    EXPECT_EQ(text.find("foot"), text.rfind("foot"));
    EXPECT_THAT(text, HasSubstr("foot\\0d\\0d\\0d\\0d\\0d")) << "the last section has an empty one";
}

TEST(DocSection, EndsWithACharacterOfItsOwn) {
    Document document = documentOf("a");
    document.sections.push_back(section({{paragraph("b")}}));
    const WrittenDoc doc(document);
    EXPECT_EQ(doc.read().text(), "a\\0cb\\0d");
    EXPECT_THAT(doc.read().numbers(6), testing::Contains(2u));
    EXPECT_EQ(doc.read().numbers(6)[2], 4u);
}

TEST(DocTable, EndsCellsAndRowsWithMarks) {
    Table table;
    table.columnWidths = {Twips(256), Twips(512)};
    table.rows.resize(1);
    table.rows[0].isHeader = true;
    table.rows[0].height = Twips(300);
    table.rows[0].cells = {cell("a"), cell("b", 1)};
    const std::string dump = WrittenDoc(documentOf({{table}})).dump();
    EXPECT_THAT(dump, HasSubstr("0 2416=01 6649=01000000 \"a\\07\"\n0 2416=01 6649=01000000 \"b\\07\"\n"));
    EXPECT_THAT(dump, HasSubstr("0 2416=01 6649=01000000 2417=01 9602=0000 9407=2c01 3404=01 3615=00 "
                                "d608=3000020000000100030006"));
}

TEST(DocTable, HasMergesAndBordersOfItsCells) {
    Table table;
    table.columnWidths = {Twips(256)};
    table.rows.resize(2);
    table.rows[0].cells = {cell("tall")};
    table.rows[0].cells[0].rowSpan = 2;
    table.rows[0].cells[0].borders.top = {BorderKind::Single, EighthPoints(8), {1, 2, 3}, 0};
    table.rows[0].cells[0].shading = Color{4, 5, 6};
    table.rows[0].cells[0].marginLeft = Twips(9);
    const std::string dump = WrittenDoc(documentOf({{table}})).dump();
    EXPECT_THAT(dump, HasSubstr("d608=1a000100000001600600010801"));
    EXPECT_THAT(dump, HasSubstr("d608=1a00010000000120060001"));
    EXPECT_THAT(dump, HasSubstr("d62f=0b000101010203000801"));
    EXPECT_THAT(dump, HasSubstr("d612=0a000000ff040506000000"));
    EXPECT_THAT(dump, HasSubstr("d632=060001020309"));
}

TEST(DocTable, StandsWithinACell) {
    Table inner;
    inner.rows.resize(1);
    inner.rows[0].cells = {cell("in")};
    Table outer;
    outer.rows.resize(1);
    outer.rows[0].cells = {cell("out")};
    outer.rows[0].cells[0].blocks.push_back({inner});
    const std::string dump = WrittenDoc(documentOf({{outer}})).dump();
    EXPECT_THAT(dump, HasSubstr("0 2416=01 6649=02000000 244b=01 \"in\\0d\"\n"));
    EXPECT_THAT(dump, HasSubstr("0 2416=01 6649=02000000 244b=01 244c=01 "));
}

TEST(DocTable, HasPropertiesElsewhereWhenTheyAreLong) {
    Table table;
    table.rows.resize(1);
    for (int column = 0; column < 60; ++column) {
        table.rows[0].cells.push_back(cell("x", column));
        table.rows[0].cells.back().borders.top = {BorderKind::Single, EighthPoints(8 + column), kBlack, 0};
    }
    const WrittenDoc doc(documentOf({{table}}));
    EXPECT_THAT(doc.read().stream(u"Data").size(), testing::Gt(1200u));
    EXPECT_THAT(doc.dump(), HasSubstr("d608="));
}

TEST(DocPicture, IsTheFileItself) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    Picture picture;
    picture.id = pictures.add(jpegPicture(8, 4, kBlack));
    picture.width = emuFromPoints(100);
    picture.height = emuFromPoints(50);
    const WrittenDoc doc(documentOf(paragraph({{picture}, {picture}})), pictures);
    EXPECT_THAT(doc.dump(), HasSubstr("6a03=00000000 0855=01 \"\\01\\01\""));
    std::ifstream in(pictures.at(picture.id).file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    const std::string& data = doc.read().stream(u"Data");
    EXPECT_EQ(data.find(bytes), data.rfind(bytes)) << "once, though it is shown twice";
    EXPECT_EQ(data.substr(28, 4), std::string("\xD0\x07\xE8\x03", 4)) << "2000 by 1000 twips";
}

TEST(DocPicture, FloatsWhereItIsPlaced) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    Picture picture;
    picture.id = pictures.add(pngPicture(8, 4, kBlack));
    picture.width = emuFromPoints(100);
    picture.height = emuFromPoints(50);
    Figure figure{picture, {}, {}};
    figure.placement.x = emuFromPoints(10);
    figure.placement.y = emuFromPoints(20);
    figure.placement.wrapping = Wrapping::TopAndBottom;
    const WrittenDoc doc(documentOf({{paragraph("a")}, {figure}, {paragraph("b")}}), pictures);
    EXPECT_EQ(doc.read().text(), "a\\0d\\08b\\0d");
    // The character's place, the end of the body; then shape, left, top, right, bottom, and how it is anchored.
    const std::string anchors = doc.read().table(40);
    EXPECT_EQ(anchors.substr(0, 8), std::string("\2\0\0\0\5\0\0\0", 8)) << "the mark of the last paragraph too";
    EXPECT_EQ(anchors.substr(8, 20), std::string("\2\4\0\0\xC8\0\0\0\x90\1\0\0\x98\x8\0\0\x78\5\0\0", 20));
    EXPECT_EQ(anchors.substr(28, 2), std::string("\x2A\0", 2)) << "from the page both ways, text above and below";
    std::ifstream in(pictures.at(picture.id).file, std::ios::binary);
    EXPECT_THAT(doc.read().stream(u"WordDocument"), HasSubstr(std::string(std::istreambuf_iterator<char>(in), {})));
}

TEST(DocPicture, TellsOfItsLinkWhereItFloats) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    Picture picture;
    picture.id = pictures.add(pngPicture(8, 4, kBlack));
    picture.link = LinkTarget{"https://example.org/", ""};
    Figure figure{picture, {}, {}};
    figure.origin.page = 3;
    const WrittenDoc doc(documentOf({{figure}, {paragraph("b")}}), pictures);
    ASSERT_EQ(doc.diagnostics().entries().size(), 1u);
    EXPECT_EQ(doc.diagnostics().entries()[0].kind, DiagnosticKind::ContentLeftOut);
    EXPECT_EQ(doc.diagnostics().entries()[0].page, 3);
}

/// A picture beside the text and one behind it.
struct TwoFloats {
    TemporaryFolder folder;
    PictureStore pictures{folder.path()};
    Figure beside, behind;

    TwoFloats() {
        Picture picture;
        picture.id = pictures.add(pngPicture(8, 4, kBlack));
        beside.content = behind.content = picture;
        behind.placement.wrapping = Wrapping::BehindText;
    }
};

TEST(DocPicture, FloatsOverAHeader) {
    TwoFloats floats;
    Document document = documentOf("a");
    document.sections[0].header.standard = {{floats.beside}, {floats.behind}, {paragraph("head")}};
    const WrittenDoc doc(document, floats.pictures);
    EXPECT_THAT(doc.read().text(), HasSubstr("\\08\\08head\\0d"));
    EXPECT_THAT(doc.diagnostics().entries(), IsEmpty());
    EXPECT_EQ(doc.read().table(40), "") << "nothing floats over the body";
    // Two anchors: where each stands, counted from the start of the headers, then its shape.
    const std::vector<std::uint32_t> anchors = doc.read().numbers(41);
    ASSERT_EQ(doc.read().table(41).size(), 3 * 4u + 2 * 26);
    EXPECT_EQ(anchors[1], anchors[0] + 1);
    EXPECT_EQ(anchors[2], doc.read().length(kRunningTexts));
    EXPECT_EQ(anchors[3], 2 * 1024u + 1) << "a block of numbers of its own, behind its root";
    const std::string shapes = doc.read().table(50);
    EXPECT_THAT(shapes, HasSubstr(std::string("\x01\x0F\x00\x02\xF0", 5))) << "the drawing of the headers";
    EXPECT_THAT(shapes, HasSubstr(std::string("\x20\0\x08\xF0\x08\0\0\0\3\0\0\0\2\x08\0\0", 16))) << "three shapes";
}

TEST(DocPicture, IsPartOfTheTextOfANote) {
    TwoFloats floats;
    Document document = documentOf(paragraph({{NoteReference{0, {}, ""}}}));
    document.notes = {{NoteKind::Footnote, {{floats.beside}, {floats.behind}, {paragraph("note")}}, {}}};
    const WrittenDoc doc(document, floats.pictures);
    EXPECT_THAT(doc.read().text(), HasSubstr("\\01\\0d"));
    EXPECT_EQ(doc.diagnostics().entries().size(), 1u) << "the one behind the text is told of";
}

TEST(DocRunningText, IsTakenOverWhereTheSameFloatsOverIt) {
    Shape box;
    box.width = box.height = Emu(12700);
    box.fill = Color{255, 0, 0};
    Frame frame;
    frame.blocks = {{paragraph("boxed")}};
    const Figure logo{Drawing{box.width, box.height, {box}, ""}, {}, {}};
    Document document = documentOf("a");
    document.sections[0].header.standard = {{logo}, {frame}, {paragraph("head")}};
    document.sections.push_back(document.sections[0]);
    const WrittenDoc same(document);
    EXPECT_EQ(same.read().table(41).size(), 3 * 4u + 2 * 26) << "the objects stand in the file once";
    EXPECT_EQ(same.read().length(kRunningTextBoxes), 7u) << "one box, and the mark that ends them";
    EXPECT_EQ(same.read().table(58).size(), 3 * 4u + 2 * 22);

    auto& other = std::get<Figure>(document.sections[1].header.standard->at(0).value);
    std::get<Drawing>(other.content).shapes[0].fill = Color{0, 0, 255};
    const WrittenDoc changed(document);
    EXPECT_EQ(changed.read().table(41).size(), 5 * 4u + 4 * 26) << "the second header has another colour in it";
    EXPECT_EQ(changed.read().length(kRunningTextBoxes), 13u);
}

TEST(DocRunningText, HasDrawingsAtNumbersOfTheirOwn) {
    Shape box;
    box.width = box.height = Emu(12700);
    const Figure figure{Drawing{box.width, box.height, {box}, ""}, {}, {}};
    std::vector<Block> many(1022, Block{figure});
    many.push_back({paragraph("a")});
    Document document = documentOf(std::move(many));
    document.sections[0].footer.standard = {{figure}, {paragraph("foot")}};
    const WrittenDoc doc(document);
    // The body takes a whole block with its root and background, the footers the one behind the next.
    EXPECT_EQ(doc.read().numbers(41)[2], 3 * 1024u + 1);
    EXPECT_EQ(doc.read().numbers(40)[1023], 1024u + 2) << "the first of the body's";
}

TEST(DocShape, IsFilledWithALinearGradient) {
    Shape box;
    box.width = box.height = Emu(12700);
    box.gradient = Gradient{GradientKind::Linear, 270, {{0, {255, 0, 0}}, {0.5, {0, 255, 0}}, {1, {0, 0, 255}}}};
    const Figure figure{Drawing{box.width, box.height, {box}, ""}, {}, {}};
    const WrittenDoc doc(documentOf({{figure}, {paragraph("a")}}));
    const std::string shapes = doc.read().table(50);
    EXPECT_THAT(shapes, HasSubstr(std::string("\x80\1\7\0\0\0\x81\1\xFF\0\0\0\x83\1\0\0\xFF\0", 18)));
    EXPECT_THAT(shapes, HasSubstr(std::string("\3\0\3\0\x8\0\xFF\0\0\0\0\0\0\0\0\xFF\0\0\0\x80\0\0", 22)))
        << "the list of its stops";
}

TEST(DocShape, IsAPathOrTheWordProcessorsOwn) {
    const Emu side(1000);
    Shape line{{}, {}, side, side, {{Shape::Verb::Move, {}}, {Shape::Verb::Line, {side, side}}}, {}, {}, {}, 1};
    Shape drop = line;
    drop.segments[1] = {Shape::Verb::Curve, {side, Emu(0), side, side, Emu(0), side}};
    drop.fill = Color{1, 2, 3};
    const WrittenDoc doc(documentOf({{Figure{Drawing{side, side, {line}, ""}, {}, {}}},
                                     {Figure{Drawing{side, side, {drop, line}, ""}, {}, {}}},
                                     {paragraph("a")}}));
    EXPECT_EQ(doc.read().text(), "\\08\\08a\\0d");
    const std::string shapes = doc.read().table(50);
    EXPECT_THAT(shapes, HasSubstr(std::string("\x42\1\x0A\xF0\x8\0\0\0\2\4\0\0\0\x0A\0\0", 16))) << "a line";
    EXPECT_THAT(shapes, HasSubstr(std::string("\3\0\3\0\2\0\0\x40\1\x20\0\x80", 12))) << "segments of a path";
    EXPECT_THAT(shapes, HasSubstr(std::string("\x81\1\1\2\3\0", 6))) << "its fill";
}

TEST(DocFrame, HasItsTextBehindAllOthers) {
    Frame inner;
    inner.blocks = {{paragraph("inner")}};
    Frame outer;
    outer.blocks = {{inner}, {paragraph("outer")}};
    outer.insetLeft = Emu(635);
    const WrittenDoc doc(documentOf({{outer}, {inner}, {paragraph("a")}}));
    EXPECT_EQ(doc.read().text(), "\\08\\08\\08a\\0douter\\0dinner\\0dinner\\0d\\0d\\0d")
        << "a box in a box stands beside it";
    EXPECT_EQ(doc.read().length(kTextBoxes), 19u);
    // Three boxes and the mark that ends them: where each begins, then which shape each belongs to.
    const std::string boxes = doc.read().table(56);
    EXPECT_EQ(boxes.substr(0, 20), std::string("\0\0\0\0\6\0\0\0\xC\0\0\0\x12\0\0\0\x13\0\0\0", 20));
    EXPECT_EQ(boxes.size(), 20u + 4 * 22);
    EXPECT_EQ(boxes.substr(20 + 14, 4), std::string("\2\4\0\0", 4));
    EXPECT_EQ(doc.read().table(75).size(), 20u + 4 * 6);
    EXPECT_THAT(doc.read().table(50), HasSubstr(std::string("\x80\0\0\0\1\0\x81\0\x7B\2\0\0", 12)));
}

TEST(DocFormField, HasKindsOfItsOwn) {
    const ContentControl name{ControlKind::Text, "name", "", {}, false, false, {text("Ada")}};
    const ContentControl empty{ControlKind::Text, "", "", {}, false, false, {}};
    const ContentControl box{ControlKind::CheckBox, "", "", {}, true, false, {text("\u2612")}};
    const ContentControl list{ControlKind::DropDown, "", "", {"red", "green"}, false, false, {text("green")}};
    const WrittenDoc doc(documentOf(paragraph({{name}, {empty}, {box}, {list}})));
    EXPECT_EQ(doc.read().text(),
              "\\13 FORMTEXT \\01\\14Ada\\15\\13 FORMTEXT \\01\\14\\u2002\\u2002\\u2002\\u2002\\u2002\\15"
              "\\13 FORMCHECKBOX \\01\\14\\15\\13 FORMDROPDOWN \\01\\14\\15\\0d");
    const std::string fields = doc.read().table(16);
    for (const char* kind : {"\x13\x46", "\x13\x47", "\x13\x53"})
        EXPECT_THAT(fields, HasSubstr(kind));
}

TEST(DocFormField, KeepsItsStateInTheDataStream) {
    const ContentControl name{ControlKind::Text, "who", "", {}, false, false, {text("Ada")}};
    const ContentControl box{ControlKind::CheckBox, "", "", {}, true, false, {}};
    const ContentControl list{ControlKind::DropDown, "", "", {"a", "b"}, false, false, {text("b")}};
    const WrittenDoc doc(documentOf(paragraph({{name}, {box}, {list}})));
    const std::string& data = doc.read().stream(u"Data");
    // Kind, state, longest text, size of the box, name.
    const auto bytes = [](const auto& literal) { return std::string(literal, sizeof(literal) - 1); };
    EXPECT_THAT(data, HasSubstr(bytes("\xFF\xFF\xFF\xFF\0\0\0\0\x14\0\3\0w\0h\0o\0\0\0")));
    EXPECT_THAT(data, HasSubstr(bytes("\xFF\xFF\xFF\xFF\5\0\0\0\x14\0\0\0\0\0\1\0"))) << "checked, and so by default";
    EXPECT_THAT(data, HasSubstr(bytes("\xFF\xFF\xFF\xFF\6\x80\0\0\x14\0"))) << "a list that shows its second choice";
    EXPECT_THAT(data, HasSubstr(bytes("\xFF\xFF\2\0\0\0\1\0a\0\1\0b\0")));
    EXPECT_EQ(data.substr(0, 6), bytes("\x70\0\0\0\x44\0")) << "each with its length";
}

} // namespace
} // namespace orvane::tests
