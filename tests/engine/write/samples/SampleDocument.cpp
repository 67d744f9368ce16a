#include "SampleDocument.h"

#include "DocumentBuilder.h"
#include "SampleDrawings.h"
#include "SampleStyles.h"
#include "TestPicture.h"

namespace orvane::tests {
namespace {

using namespace document;

constexpr Color kYellow{0xFF, 0xFF, 0x00};

Emu points(double value) {
    return emuFromPoints(value);
}

/// Makes the sample, one part of it by each member.
class SampleMaker {
public:
    explicit SampleMaker(PictureStore& pictures)
        : m_png(pictures.add(pngPicture(80, 60, {0xC0, 0x00, 0x00})))
        , m_jpeg(pictures.add(jpegPicture(64, 64, kBlue))) {
        m_run.fontFamily = "Carlito";
        m_run.size = HalfPoints(22);
        m_normal.spaceAfter = Twips(120);
        m_normal.lineSpacing.multiple = 1.1;
    }

    Document make() {
        m_document.metadata = {
            "Everything: <one> & \"all\"", "Ada \u00C9xample",         "A sample", "docx, sample", "en-GB",
            "2024-02-29T08:30:00Z",        "2024-03-01T09:00:00+01:00"};
        m_document.styles = sampleStyles(m_normal, m_run);
        m_document.numberings = sampleNumberings(m_run);
        m_document.sections = {textSection(), columnSection(), landscapeSection(), rightToLeftSection()};
        return m_document;
    }

private:
    // ---- small pieces ----

    Paragraph styled(const StyleId& id, std::vector<Inline> inlines) const {
        Paragraph result = paragraph(std::move(inlines));
        result.style = id;
        for (const Style& style : m_document.styles)
            if (style.id == id) {
                result.properties = style.paragraph;
                result.markProperties = style.run;
            }
        for (Inline& item : result.inlines)
            if (auto* piece = std::get_if<Text>(&item.value); piece && piece->properties == m_run)
                piece->properties = result.markProperties;
        return result;
    }
    Paragraph plain(std::vector<Inline> inlines) const { return styled("Normal", std::move(inlines)); }
    Paragraph plain(const std::string& characters) const { return plain({words(characters)}); }
    Inline words(const std::string& characters) const { return text(characters, m_run); }

    template<typename Change>
    Inline words(const std::string& characters, const Change& change) const {
        RunProperties properties = m_run;
        change(properties);
        return text(characters, properties);
    }

    Paragraph listItem(std::size_t numbering, int level, const std::string& characters) const {
        Paragraph item = plain(characters);
        item.list = {numbering, level};
        const NumberingLevel& look = m_document.numberings[numbering].levels[static_cast<std::size_t>(level)];
        item.properties.indentStart = look.indentStart;
        item.properties.firstLine = look.firstLine;
        return item;
    }

    static Borders boxed(Color color = kBlack) {
        const Border line{BorderKind::Single, EighthPoints(6), color, 0};
        return {line, line, line, line};
    }

    // ---- first section: text ----

    Section textSection() {
        Section result;
        auto& blocks = result.blocks;
        const auto add = [&blocks](auto item) { blocks.push_back({std::move(item)}); };
        add(styled("Heading1", {{Bookmark{"top"}}, words("Characters")}));
        add(characterParagraph());
        add(linkParagraph());
        add(contents());
        add(styled("Heading2", {{Bookmark{"paragraphs"}}, words("Paragraphs")}));
        addParagraphs(blocks);
        add(styled("Heading2", {words("Lists")}));
        for (const std::size_t list : {std::size_t{0}, std::size_t{1}, std::size_t{2}}) {
            add(listItem(list, 0, "first"));
            add(listItem(list, 1, "nested"));
            add(listItem(list, 0, "second"));
        }
        add(styled("Heading2", {words("Form fields")}));
        add(formParagraph());
        add(styled("Heading2", {words("Pictures in the line")}));
        add(pictureParagraph());
        addRunningTexts(result);
        result.pageNumberFormat = NumberFormat::LowerRoman;
        result.firstPageNumber = 3;
        return result;
    }

    Paragraph characterParagraph() {
        m_document.notes.push_back(
            {NoteKind::Footnote, {{styled("FootnoteText", {words("The note at the foot.")})}}, {}});
        m_document.notes.push_back(
            {NoteKind::Endnote, {{styled("FootnoteText", {words("The note at the end.")})}}, {}});
        m_document.notes.push_back({NoteKind::Footnote, {{styled("FootnoteText", {words("With a star.")})}}, {}});
        m_document.comments.push_back({"Ada \u00C9xample", "2024-02-29T08:31:00Z", {{plain("Is this so?")}}});
        RunProperties mark = m_run;
        mark.verticalPosition = VerticalPosition::Superscript;
        using P = RunProperties;
        return plain({words("plain "),
                      words("bold ", [](P& p) { p.isBold = true; }),
                      words("italic ", [](P& p) { p.isItalic = true; }),
                      words("under ", [](P& p) { p.underline = UnderlineKind::Single; }),
                      words("wavy ", [](P& p) { p.underline = UnderlineKind::Wavy; }),
                      words("struck ", [](P& p) { p.isStruck = true; }),
                      words("Small Caps ", [](P& p) { p.isSmallCaps = true; }),
                      words("all caps ", [](P& p) { p.isAllCaps = true; }),
                      words("marked", [](P& p) { p.highlight = kYellow; }),
                      words(" "),
                      words("shaded", [](P& p) { p.highlight = kPale; }),
                      words(" H"),
                      words("2", [](P& p) { p.verticalPosition = VerticalPosition::Subscript; }),
                      words("O "),
                      words("spaced ", [](P& p) { p.characterSpacing = Twips(60); }),
                      words("narrow ", [](P& p) { p.widthPercent = 66; }),
                      words("raised ", [](P& p) { p.raise = Twips(120); }),
                      words("mono ", [](P& p) { p.fontFamily = "Liberation Mono"; }),
                      words("large ", [](P& p) { p.size = HalfPoints(36); }),
                      words("\u4E2D\u6587 ", [](P& p) { p.language = "zh-CN"; }),
                      words("note"),
                      {NoteReference{0, mark, ""}},
                      words(" end"),
                      {NoteReference{1, mark, ""}},
                      words(" own"),
                      {NoteReference{2, mark, "*"}},
                      words(" comment"),
                      {CommentReference{0}},
                      words(" tab"),
                      {Tab{m_run}},
                      words("and hy\u00ADphen and non\u2011breaking."),
                      {Break{}},
                      words("A new line.")});
    }

    Paragraph linkParagraph() const {
        const auto blue = [](RunProperties& p) {
            p.color = {0x05, 0x63, 0xC1};
            p.underline = UnderlineKind::Single;
        };
        const Inline outside = words("a page outside", blue);
        const Inline inside = words("the heading above", blue);
        return plain({words("Links to "),
                      {Link{{"https://example.org/a b?q=\u00FC#x", ""}, {outside}}},
                      words(" and to "),
                      {Link{{"", "top"}, {inside}}},
                      words("; again "),
                      {Link{{"https://example.org/a b?q=\u00FC#x", ""}, {outside}}},
                      words(".")});
    }

    TableOfContents contents() const {
        const auto entry = [this](const std::string& heading, const std::string& bookmark) {
            return styled("TOC1", {{Link{{"", bookmark}, {words(heading), {Tab{m_run}}, {pageReference(bookmark)}}}}});
        };
        return {1, 2, {entry("Characters", "top"), entry("Paragraphs", "paragraphs")}};
    }

    Field pageReference(const std::string& bookmark) const {
        return {FieldCode::PageReference, bookmark, {words("1")}};
    }

    void addParagraphs(std::vector<Block>& blocks) const {
        const std::string filler =
            "The quick brown fox jumps over the lazy dog and runs on to the next line, where it rests. ";
        for (const Alignment alignment : {Alignment::Start, Alignment::Center, Alignment::End, Alignment::Justified}) {
            Paragraph item = plain(filler + filler);
            item.properties.alignment = alignment;
            blocks.push_back({item});
        }
        Paragraph framed = plain(filler);
        framed.properties.borders = boxed(kBlue);
        framed.properties.shading = kPale;
        framed.properties.lineSpacing = {LineSpacingRule::Exact, 1.0, Twips(400)};
        blocks.push_back({framed});
        Paragraph hanging = plain({words("hanging"), {Tab{m_run}}, words(filler + filler)});
        hanging.properties.indentStart = Twips(1440);
        hanging.properties.firstLine = Twips(-1440);
        blocks.push_back({hanging});
        blocks.push_back({styled("Zitat_gro\u00DF", {words(filler)})});
        Paragraph leaders = plain(
            {words("left"), {Tab{m_run}}, words("centre"), {Tab{m_run}}, words("3.14"), {Tab{m_run}}, words("right")});
        leaders.properties.tabs = {{Twips(4000), TabAlignment::Center, TabLeader::None},
                                   {Twips(6500), TabAlignment::Decimal, TabLeader::Hyphens},
                                   {Twips(9026), TabAlignment::End, TabLeader::Dots}};
        blocks.push_back({leaders});
    }

    Paragraph formParagraph() const {
        ContentControl name{ControlKind::Text, "name", "Your name", {}, false, false, {words("Grace")}};
        ContentControl empty{ControlKind::Text, "remarks", "", {}, false, true, {}};
        ContentControl ticked{ControlKind::CheckBox, "agree", "", {}, true, false, {}};
        ContentControl open{ControlKind::CheckBox, "refuse", "", {}, false, false, {}};
        ContentControl choice{ControlKind::DropDown, "colour", "", {"red", "green", "red"}, false, false,
                              {words("green")}};
        ContentControl date{ControlKind::Date, "day", "", {}, false, false, {words("2024-02-29")}};
        return plain({words("Name "),
                      {name},
                      words(" remarks "),
                      {empty},
                      words(" yes "),
                      {ticked},
                      words(" no "),
                      {open},
                      words(" colour "),
                      {choice},
                      words(" on "),
                      {date}});
    }

    Paragraph pictureParagraph() const {
        const Picture straight{m_png, points(80), points(60), {}, 0, false, false, "A red and white flag", {}, {}};
        Picture cut = straight;
        cut.crop = {0.25, 0, 0.25, 0.5};
        Picture turned = straight;
        turned.rotation = 90;
        Picture mirrored = straight;
        mirrored.isMirroredHorizontally = true;
        const Picture photo{m_jpeg, points(60), points(60), {}, 0, false, false, "", {}, {}};
        return plain({{straight},
                      words(" cut "),
                      {cut},
                      words(" turned "),
                      {turned},
                      words(" mirrored "),
                      {mirrored},
                      words(" "),
                      {photo},
                      words(" "),
                      {Link{{"https://example.org/", ""}, {{photo}}}}});
    }

    void addRunningTexts(Section& result) const {
        result.header.standard = std::vector<Block>{{plain("Standard header")}};
        result.header.firstPage = std::vector<Block>{{plain("Header of the first page")}};
        result.header.evenPages = std::vector<Block>{{plain("Header of even pages")}};
        Paragraph foot = plain({words("Page "),
                                {Field{FieldCode::Page, "", {words("1")}}},
                                words(" of "),
                                {Field{FieldCode::PageCount, "", {words("4")}}}});
        foot.properties.alignment = Alignment::Center;
        result.footer.standard = std::vector<Block>{{foot}};
    }

    // ---- second section: columns, floating objects ----

    Section columnSection() {
        Section result;
        result.start = SectionStart::NextPage;
        result.columns = {{Twips(5400), Twips(400)}, {Twips(3226), Twips(0)}};
        result.hasColumnSeparator = true;
        result.footer.standard = std::vector<Block>{{plain("Footer of the columns")}};
        const std::string filler = "Text runs in columns of different widths and around what floats between them. ";
        std::string much;
        for (int i = 0; i < 12; ++i)
            much += filler;
        result.blocks = {
            {floatingPicture()}, {plain(much)}, {boxAndDrop()},  {slopedLine()},
            {frame()},           {plain(much)}, {turnedFrame()}, {plain({{Break{BreakKind::Column}}, words(filler)})}};
        return result;
    }

    Figure floatingPicture() const {
        Figure figure{Picture{m_jpeg, points(100), points(100), {}, 0, false, false, "A blue square", {}, {}}, {}, {}};
        figure.placement = {HorizontalAnchor::Column,
                            VerticalAnchor::Paragraph,
                            points(100),
                            points(30),
                            Wrapping::Square,
                            points(9),
                            points(9),
                            points(0),
                            points(0),
                            1,
                            {}};
        return figure;
    }

    Frame frame() {
        m_document.notes.push_back(
            {NoteKind::Footnote, {{styled("FootnoteText", {words("A note from the box.")})}}, {}});
        RunProperties mark = m_run;
        mark.verticalPosition = VerticalPosition::Superscript;
        Table table;
        table.columnWidths = {Twips(1000), Twips(1000)};
        table.rows = {{Twips(0), false, false, true, {cell("in", 0), cell("box", 1)}}};
        for (TableCell& item : table.rows[0].cells)
            item.borders = boxed();
        Frame box;
        box.placement = {HorizontalAnchor::Page,
                         VerticalAnchor::Page,
                         points(360),
                         points(400),
                         Wrapping::Square,
                         points(6),
                         points(6),
                         points(6),
                         points(6),
                         4,
                         {}};
        box.width = points(160);
        box.height = points(120);
        box.insetLeft = box.insetRight = box.insetTop = box.insetBottom = points(5);
        box.line = ShapeLine{kBlue, points(1), BorderKind::Single};
        box.fill = Color{0xFF, 0xF2, 0xCC};
        box.blocks = {{plain({words("A box of text with a note"), {NoteReference{3, mark, ""}}, words(".")})}, {table}};
        return box;
    }

    Frame turnedFrame() const {
        Frame box;
        box.placement = {HorizontalAnchor::Page,
                         VerticalAnchor::Page,
                         points(20),
                         points(300),
                         Wrapping::None,
                         {},
                         {},
                         {},
                         {},
                         5,
                         {}};
        box.width = points(30);
        box.height = points(200);
        box.direction = TextDirection::Upwards;
        box.blocks = {{plain("Text that climbs up the margin")}};
        return box;
    }

    // ---- third section: tables on a landscape page ----

    Section landscapeSection() const {
        Section result;
        std::swap(result.pageWidth, result.pageHeight);
        result.blocks = {{styled("Heading1", {words("Tables")})}, {spanTable()}, {smallTable()}};
        return result;
    }

    TableCell tableCell(const std::string& characters, int column, int columnSpan = 1, int rowSpan = 1) const {
        TableCell result;
        result.column = column;
        result.columnSpan = columnSpan;
        result.rowSpan = rowSpan;
        result.borders = boxed();
        result.marginLeft = result.marginRight = Twips(100);
        result.marginTop = result.marginBottom = Twips(40);
        result.blocks.push_back({plain(characters)});
        return result;
    }

    Table spanTable() const {
        Table table;
        table.columnWidths = {Twips(2000), Twips(3000), Twips(2500), Twips(2500)};
        TableRow head{Twips(500), false, true, false, {}};
        head.cells = {tableCell("Head over two", 0, 2), tableCell("Third", 2), tableCell("Fourth", 3)};
        for (TableCell& item : head.cells)
            item.shading = kPale;
        TableRow tall{Twips(1200), true, false, true, {}};
        tall.cells = {tableCell("Down over two rows", 0, 1, 2), tableCell("bottom", 1), tableCell("upwards", 2),
                      tableCell("downwards", 3)};
        tall.cells[1].alignment = CellAlignment::Bottom;
        tall.cells[2].direction = TextDirection::Upwards;
        tall.cells[3].direction = TextDirection::Downwards;
        TableRow last;
        last.cells = {tableCell("no sides", 1), tableCell("thick", 2), tableCell("", 3)};
        last.cells[0].borders.left = last.cells[0].borders.right = {};
        last.cells[1].borders.bottom = {BorderKind::Double, EighthPoints(12), kBlue, 0};
        last.cells[1].marginLeft = Twips(400);
        last.cells[2].blocks = {{smallTable()}};
        TableRow partial;
        partial.cells = {tableCell("only here", 2)};
        table.rows = {head, tall, last, partial};
        return table;
    }

    Table smallTable() const {
        Table table;
        table.columnWidths = {Twips(900), Twips(900)};
        table.alignment = Alignment::Center;
        TableRow row;
        row.cells = {tableCell("a", 0), tableCell("b", 1)};
        table.rows = {row, row};
        return table;
    }

    // ---- fourth section: right to left ----

    Section rightToLeftSection() const {
        Section result;
        result.start = SectionStart::OddPage;
        result.isRightToLeft = true;
        const auto hebrew = [](RunProperties& p) {
            p.isRightToLeft = true;
            p.complexFontFamily = "David CLM";
            p.language = "he";
        };
        Paragraph item = plain({words("\u05D4\u05E9\u05D5\u05E2\u05DC \u05D4\u05D7\u05D5\u05DD ", hebrew), words("fox"),
                                words(" \u05E7\u05E4\u05E5.", hebrew)});
        item.properties.isRightToLeft = true;
        Table table = smallTable();
        table.isRightToLeft = true;
        for (TableRow& row : table.rows)
            row.cells[0].borders.right = {BorderKind::Thick, EighthPoints(36), {0xC0, 0, 0}, 0};
        result.blocks = {{item}, {table}, {item}};
        return result;
    }

    Document m_document;
    RunProperties m_run;
    ParagraphProperties m_normal;
    PictureId m_png;
    PictureId m_jpeg;
};

} // namespace

Document sampleDocument(PictureStore& pictures) {
    return SampleMaker(pictures).make();
}

} // namespace orvane::tests
