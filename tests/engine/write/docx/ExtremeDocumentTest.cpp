#include "ExtremeDocuments.h"
#include "WrittenDocument.h"

#include "support/docx/DocxCheck.h"
#include "write/docx/DocxWriter.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;

TEST(ExtremeDocument, HasATableOfFiftyThousandCells) {
    const Document document = documentOf({{largeTable(1000, 50)}});
    const auto duration = durationOf([&] {
        const WrittenDocument written(document);
        EXPECT_EQ(written.count("//w:tc"), 50000u);
        EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
    });
    EXPECT_LT(duration, kLongEnough);
}

TEST(ExtremeDocument, HasTablesWithinTablesBeyondWhatReadersTake) {
    constexpr int kDepth = 500;
    const WrittenDocument written(documentOf({{nestedTables(kDepth)}}));
    EXPECT_EQ(written.count("//w:t"), static_cast<std::size_t>(kDepth)) << "no text is lost";
    // XML readers commonly give up at 256.
    EXPECT_EQ(written.count("//*[count(ancestor::*) > 200]"), 0u);
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
    EXPECT_EQ(written.diagnostics().entries().size(), 1u) << "told once, not for each table";
}

TEST(ExtremeDocument, ShowsTenThousandPicturesOfTwoKinds) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    const Document document = manyPictures(pictures, 10000);
    const auto duration = durationOf([&] {
        const WrittenDocument written(document, pictures);
        EXPECT_EQ(written.count("//w:drawing"), 10000u);
        EXPECT_EQ(written.select("word/_rels/document.xml.rels", "//Relationship[contains(@Type, '/image')]/@Target"),
                  "media/image1.png\nmedia/image2.png\n");
        EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
    });
    EXPECT_LT(duration, kLongEnough);
}

TEST(ExtremeDocument, LeavesOutWhatNoFormatCanHold) {
    const WrittenDocument written(awkwardText());
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
    for (const char* word : {"before", "within", "behind"})
        EXPECT_EQ(written.count("//w:t[contains(., '" + std::string(word) + "')]"), 1u) << word;
}

TEST(ExtremeDocument, IsWrittenWhereTheNameHasBlanksAndOtherLetters) {
    const TemporaryFolder folder;
    const std::filesystem::path target = folder.path() / u8"ein Name \u00E4 \u4E2D\u6587.docx";
    Diagnostics diagnostics;
    write::writeDocx(documentOf("words"), PictureStore(folder.path()), target, diagnostics);
    EXPECT_THAT(faultsOfDocx(target), testing::IsEmpty());
}

TEST(ExtremeDocument, HasNumbersBeyondWhatTheFormatTakes) {
    EXPECT_THAT(faultsOfDocx(WrittenDocument(hugeNumbers()).file()), testing::IsEmpty());
}

} // namespace
} // namespace orvane::tests
