#include "DocumentBuilder.h"
#include "TestPicture.h"
#include "WrittenDocument.h"

#include "support/docx/DocxCheck.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;

TEST(ExtremeDocument, HasATableOfFiftyThousandCells) {
    Table table;
    table.columnWidths.assign(50, Twips(200));
    for (int row = 0; row < 1000; ++row) {
        TableRow cells;
        for (int column = 0; column < 50; ++column)
            cells.cells.push_back(cell("x", column));
        table.rows.push_back(std::move(cells));
    }
    const WrittenDocument written(documentOf({{table}}));
    EXPECT_EQ(written.count("//w:tc"), 50000u);
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
}

TEST(ExtremeDocument, HasTablesWithinTablesBeyondWhatReadersTake) {
    constexpr int kDepth = 500;
    Table table;
    table.rows.resize(1);
    table.rows[0].cells.push_back(cell("innermost"));
    for (int depth = 1; depth < kDepth; ++depth) {
        Table outer;
        outer.rows.resize(1);
        outer.rows[0].cells.push_back(cell("x"));
        outer.rows[0].cells[0].blocks.push_back({std::move(table)});
        table = std::move(outer);
    }
    const WrittenDocument written(documentOf({{std::move(table)}}));
    EXPECT_EQ(written.count("//w:t"), static_cast<std::size_t>(kDepth)) << "no text is lost";
    // XML readers commonly give up at 256.
    EXPECT_EQ(written.count("//*[count(ancestor::*) > 200]"), 0u);
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
    EXPECT_EQ(written.diagnostics().entries().size(), 1u) << "told once, not for each table";
}

TEST(ExtremeDocument, ShowsTenThousandPicturesOfTwoKinds) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    const PictureId ids[] = {pictures.add(pngPicture(2, 2, kBlack)), pictures.add(pngPicture(2, 2, kWhite))};
    std::vector<Block> blocks;
    for (std::size_t i = 0; i < 10000; ++i) {
        Picture shown;
        shown.id = ids[i % 2];
        shown.width = shown.height = Emu(100000);
        if (i % 3 == 0)
            blocks.push_back({Figure{shown, {}, {}}});
        else
            blocks.push_back({paragraph({{shown}})});
    }
    const WrittenDocument written(documentOf(std::move(blocks)), pictures);
    EXPECT_EQ(written.count("//w:drawing"), 10000u);
    EXPECT_EQ(written.select("word/_rels/document.xml.rels", "//Relationship[contains(@Type, '/image')]/@Target"),
              "media/image1.png\nmedia/image2.png\n");
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
}

TEST(ExtremeDocument, HasNumbersBeyondWhatTheFormatTakes) {
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
    EXPECT_THAT(faultsOfDocx(WrittenDocument(document).file()), testing::IsEmpty());
}

} // namespace
} // namespace orvane::tests
