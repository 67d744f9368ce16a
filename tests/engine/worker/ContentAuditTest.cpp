#include "worker/ContentAudit.h"

#include <gtest/gtest.h>

namespace orvane::worker {
namespace {

using namespace document;

Inline textInline(std::string text) {
    return {Text{std::move(text), {}}};
}

Block paragraphOf(std::vector<Inline> inlines, int page = 1) {
    Paragraph paragraph;
    paragraph.inlines = std::move(inlines);
    paragraph.origin.page = page;
    return {paragraph};
}

Document documentOf(std::vector<Block> blocks) {
    Document document;
    document.sections.resize(1);
    document.sections[0].blocks = std::move(blocks);
    return document;
}

PageInventory pageWith(std::size_t letters, int number = 1) {
    PageInventory page;
    page.page = number;
    page.letters = letters;
    return page;
}

struct Told {
    int page;
    std::string message;
    bool operator==(const Told&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Told& told) {
    return out << told.page << ": " << told.message;
}

std::vector<Told> audit(const std::vector<PageInventory>& pages, const Document& document, AuditScope scope = {}) {
    Diagnostics diagnostics;
    auditContent(pages, document, scope, diagnostics);
    std::vector<Told> told;
    for (const Diagnostic& entry : diagnostics.entries()) {
        EXPECT_EQ(entry.kind, DiagnosticKind::ContentLeftOut);
        told.push_back({entry.page, entry.message});
    }
    return told;
}

const std::vector<Told> kNothing;

TEST(ContentAudit, SumsUpBothSides) {
    Link link{{"https://example.org", ""}, {textInline("go")}};
    Field number{FieldCode::Page, "", {textInline("7")}};
    ContentControl control;
    control.content = {textInline("x")};
    Table table;
    table.rows = {TableRow{}};
    table.rows[0].cells = {TableCell{}};
    table.rows[0].cells[0].blocks = {paragraphOf({textInline("cell")})};
    Frame frame;
    frame.blocks = {paragraphOf({textInline("box")})};
    Figure picture;
    picture.content = Picture{};
    Figure drawing;
    drawing.content = Drawing{};
    Text hidden{"cut off", {}};
    hidden.properties.isHidden = true;
    Document document = documentOf(
        {paragraphOf({textInline("a\u00a0\u00e4 \U0001F600"), {Tab{}}, {link}, {number}, {control}, {Picture{}}}),
         {table},
         {frame},
         {picture},
         {drawing},
         paragraphOf({{hidden}})});
    document.sections[0].header.standard = {paragraphOf({textInline("head")})};
    document.sections[0].footer.evenPages = {paragraphOf({textInline("foot")})};
    document.notes.resize(1);
    document.notes[0].blocks = {paragraphOf({textInline("note")})};
    document.comments.resize(1);
    document.comments[0].blocks = {paragraphOf({textInline("say")})};
    PageInventory page;
    page.characters = 12;
    page.links = 2;
    page.pictures.resize(3);

    Diagnostics diagnostics;
    protocol::Counts expected;
    expected.charactersRead = 24;
    expected.charactersWritten = 3 + 2 + 1 + 1 + 4 + 3 + 4 + 4 + 4 + 3;
    expected.picturesRead = 6;
    expected.picturesWritten = 2;
    expected.linksRead = 4;
    expected.linksWritten = 1;
    EXPECT_EQ(auditContent({page, page}, document, {true, false, true}, diagnostics), expected);
}

TEST(ContentAudit, IsSilentWhereAllIsThere) {
    EXPECT_EQ(audit({pageWith(5)}, documentOf({paragraphOf({textInline("a, b c-d e")})})), kNothing);
}

TEST(ContentAudit, IsSilentOfWhatALayoutWithoutPagesLeavesOut) {
    PageInventory page = pageWith(9);
    page.innerLinks = 1;
    page.pictures = {{0, 0, 50, 100}};
    EXPECT_EQ(audit({page}, documentOf({}), {false, false, false}), kNothing);
    page.values = {{"name", "Ada", false}};
    EXPECT_EQ(audit({page}, documentOf({}), {false, false, false}).size(), 1U);
}

TEST(ContentAudit, TellsOfLettersThatAreMissing) {
    const Document document = documentOf({paragraphOf({textInline("first")}), paragraphOf({textInline("second")}, 2)});
    EXPECT_EQ(audit({pageWith(5), pageWith(8, 2)}, document),
              (std::vector<Told>{{2, "2 of 8 letters are not in the document"}}));
}

TEST(ContentAudit, FollowsAParagraphOverPages) {
    Block block = paragraphOf({textInline("one, two"), {Link{{"", "there"}, {textInline(" three")}}}});
    std::get<Paragraph>(block.value).turns = {{2, 3}, {3, 6}};
    PageInventory last = pageWith(5, 3);
    last.innerLinks = 1;
    EXPECT_EQ(audit({pageWith(3), pageWith(3, 2), last}, documentOf({block})), kNothing);
    EXPECT_EQ(audit({pageWith(3), pageWith(4, 2), last}, documentOf({block})).size(), 1U);
}

TEST(ContentAudit, CountsWhatWordProcessorsWrite) {
    Document document = documentOf({paragraphOf({textInline("item")}), paragraphOf({{NoteReference{0, {}, ""}}})});
    std::get<Paragraph>(document.sections[0].blocks[0].value).list = ListReference{0, 0};
    document.numberings.resize(1);
    document.numberings[0].levels.resize(1);
    document.numberings[0].levels[0].text = "%1.";
    document.notes.resize(1);
    document.notes[0].origin.page = 1;
    document.notes[0].blocks = {paragraphOf({textInline("note")})};
    EXPECT_EQ(audit({pageWith(1 + 4 + 1 + 1 + 4)}, document), kNothing);
}

TEST(ContentAudit, CountsNotesInTheirOwnSigns) {
    Document document = documentOf({paragraphOf({{NoteReference{0, {}, ""}}, {NoteReference{1, {}, ""}}})});
    document.notes.resize(2);
    for (Note& note : document.notes) {
        note.kind = NoteKind::Endnote;
        note.origin.page = 1;
    }
    EXPECT_EQ(audit({pageWith(2 * 1 + 2 * 2)}, document), kNothing) << "i and ii, each twice";
    document.endnoteNumbering.format = NumberFormat::Decimal;
    EXPECT_EQ(audit({pageWith(2 * 1 + 2 * 2)}, document).size(), 1U);
}

TEST(ContentAudit, FindsHeadsOnEachPageOfTheirSection) {
    Document document = documentOf({paragraphOf({textInline("ab")}, 1), paragraphOf({textInline("cd")}, 2)});
    document.sections[0].header.standard = {paragraphOf({textInline("Head")}, 99)};
    document.sections[0].header.firstPage = std::vector<Block>{};
    document.sections[0].footer.standard = {paragraphOf({{Field{FieldCode::Page, "", {textInline("1")}}}}, 99)};
    EXPECT_EQ(audit({pageWith(3), pageWith(7, 2)}, document), kNothing);
    EXPECT_EQ(audit({pageWith(4), pageWith(8, 2)}, document).size(), 2U);
}

TEST(ContentAudit, LeavesTheNumbersOfLinesToTheWordProcessor) {
    Document document = documentOf({paragraphOf({textInline("abc")})});
    PageInventory page = pageWith(3 + 2 * 2);
    page.lines = 10;
    EXPECT_EQ(audit({page}, document).size(), 1U);
    document.sections[0].lineNumbers.emplace().every = 5;
    EXPECT_EQ(audit({page}, document), kNothing);
}

TEST(ContentAudit, FindsHeadRowsOnEachPageOfTheirTable) {
    Table table;
    table.origin.page = 1;
    table.rows.resize(3);
    table.rows[0].isHeader = true;
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        table.rows[row].cells.resize(1);
        table.rows[row].cells[0].blocks = {paragraphOf({textInline(row == 0 ? "head" : "x")}, row == 2 ? 2 : 1)};
    }
    EXPECT_EQ(audit({pageWith(5), pageWith(5, 2)}, documentOf({{table}})), kNothing);
}

TEST(ContentAudit, TellsOfPicturesThatNothingCovers) {
    Figure figure;
    figure.origin = {1, {0, 0, 100, 100}};
    Document document = documentOf({{figure}});
    Figure logo;
    logo.origin = {99, {300, 0, 350, 50}};
    document.sections[0].header.standard = {{logo}};
    PageInventory page = pageWith(0);
    page.pictures = {{0, 0, 50, 100}, {50, 0, 100, 100}, {300, 0, 350, 50}};
    EXPECT_EQ(audit({page}, document), kNothing);
    page.pictures.push_back({200, 200, 240, 260});
    document.sections[0].blocks.push_back({Figure{Picture{}, {}, {1, {400, 400, 460, 440}}}});
    EXPECT_EQ(audit({page}, document), kNothing) << "on its side";
    page.pictures.back() = {200, 200, 300, 300};
    EXPECT_EQ(audit({page}, document), (std::vector<Told>{{1, "1 of 4 pictures are not in the document"}}));
    EXPECT_EQ(audit({page}, document, {true, false, true}), kNothing);
    page.isScanned = true;
    EXPECT_EQ(audit({page}, document), kNothing);
}

TEST(ContentAudit, TellsOfLinksThatAreMissing) {
    const Link link{{"https://example.org/a", ""}, {}};
    PageInventory page = pageWith(0);
    page.addresses = {"https://example.org/a", "https://example.org/b"};
    page.innerLinks = 2;
    EXPECT_EQ(audit({page}, documentOf({paragraphOf({{link}})})),
              (std::vector<Told>{{1, "the link to https://example.org/b is not in the document"},
                                 {1, "2 of 2 links within the document are not in the document"}}));
}

TEST(ContentAudit, CountsValuesOfForms) {
    ContentControl box;
    box.kind = ControlKind::CheckBox;
    box.name = "agreed";
    box.isChecked = true;
    ContentControl entry;
    entry.content = {textInline("Ada"), {Break{}}, textInline("Lovelace")};
    const Document document = documentOf({paragraphOf({{box}, {entry}})});
    PageInventory page = pageWith(0);
    page.values = {{"agreed", "", true}, {"name", "Ada\nLovelace", false}, {"town", "London", false}};

    Diagnostics diagnostics;
    const protocol::Counts counts = auditContent({page}, document, {}, diagnostics);
    EXPECT_EQ(counts.valuesRead, 3);
    EXPECT_EQ(counts.valuesWritten, 2);
    ASSERT_EQ(diagnostics.entries().size(), 1U);
    EXPECT_EQ(diagnostics.entries()[0].message, "the value of the field \"town\" is not in the document");
}

TEST(ContentAudit, FindsValuesInTextThatIsCutOff) {
    Text hidden{"Lovelace", {}};
    hidden.properties.isHidden = true;
    PageInventory page = pageWith(3);
    page.values = {{"name", "Ada Lovelace", false}, {"agreed", "", true}};
    EXPECT_EQ(audit({page}, documentOf({paragraphOf({textInline("Ada "), {hidden}})}), {true, true, false}), kNothing);
}

} // namespace
} // namespace orvane::worker
