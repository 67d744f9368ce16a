#include "ExtremeDocuments.h"

#include "TestPicture.h"

namespace orvane::tests {

using namespace document;

Table largeTable(int rows, int columns) {
    Table table;
    table.columnWidths.assign(static_cast<std::size_t>(columns), Twips(200));
    for (int row = 0; row < rows; ++row) {
        TableRow cells;
        for (int column = 0; column < columns; ++column)
            cells.cells.push_back(cell("x", column));
        table.rows.push_back(std::move(cells));
    }
    return table;
}

Table nestedTables(int depth) {
    Table table;
    table.rows.resize(1);
    table.rows[0].cells.push_back(cell("innermost"));
    for (int around = 1; around < depth; ++around) {
        Table outer;
        outer.rows.resize(1);
        outer.rows[0].cells.push_back(cell("x"));
        outer.rows[0].cells[0].blocks.push_back({std::move(table)});
        table = std::move(outer);
    }
    return table;
}

Document manyPictures(PictureStore& pictures, std::size_t count) {
    const PictureId ids[] = {pictures.add(pngPicture(2, 2, kBlack)), pictures.add(pngPicture(2, 2, kWhite))};
    std::vector<Block> blocks;
    for (std::size_t i = 0; i < count; ++i) {
        Picture shown;
        shown.id = ids[i % 2];
        shown.width = shown.height = Emu(100000);
        if (i % 3 == 0)
            blocks.push_back({Figure{shown, {}, {}}});
        else
            blocks.push_back({paragraph({{shown}})});
    }
    return documentOf(std::move(blocks));
}

Document awkwardText() {
    const std::string awkward = std::string("\0\1\x7F\x1B", 4) + "\xED\xA0\x80" + "\xED\xBF\xBF" + "\xFF\xC0\xAF" +
                                "\xEF\xBF\xBE" + "\xEF\xBF\xBF";
    const auto mixed = [&](const char* word) { return awkward + word + awkward; };
    RunProperties look;
    look.fontFamily = mixed("Font");
    Link link{{"http://example.org/" + awkward, ""}, {text(mixed("within"), look)}};
    Document document =
        documentOf(paragraph({text(mixed("before"), look), {Bookmark{mixed("mark")}}, {link}, {CommentReference{0}}}));
    document.sections[0].blocks.push_back({paragraph(mixed("behind"))});
    document.styles[0].name = mixed("Normal");
    document.metadata.title = mixed("title");
    document.metadata.created = awkward;
    document.comments.push_back({mixed("author"), awkward, {{paragraph(mixed("comment"))}}});
    return document;
}

Document hugeNumbers() {
    constexpr int kHuge = 2000000000;
    RunProperties look;
    look.size = HalfPoints(kHuge);
    look.characterSpacing = Twips(-kHuge);
    look.widthPercent = 0;
    Paragraph one = paragraph({text("a", look)});
    one.properties.indentStart = Twips(-kHuge);
    one.properties.firstLine = Twips(-kHuge);
    one.properties.spaceBefore = Twips(-5);
    one.properties.lineSpacing = {LineSpacingRule::Exact, 1, Twips(-kHuge)};
    one.properties.outlineLevel = 99;
    one.properties.borders.top = {BorderKind::Single, EighthPoints(kHuge), kBlack, kHuge};
    Document document = documentOf(one);
    Section& page = document.sections[0];
    page.pageWidth = page.pageHeight = Twips(0);
    page.marginLeft = Twips(-kHuge);
    page.firstPageNumber = -4;
    return document;
}

} // namespace orvane::tests
