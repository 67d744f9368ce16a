#include "ExtremeDocuments.h"
#include "WrittenDoc.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace orvane::tests {
namespace {

using namespace document;
using testing::HasSubstr;

TEST(DocExtreme, HasATableOfFiftyThousandCells) {
    const Document document = documentOf({{largeTable(1000, 50)}});
    const auto duration = durationOf([&] {
        const WrittenDoc doc(document);
        EXPECT_EQ(doc.read().text().size(), 50000u * 4 + 1000u * 3 + 3);
        EXPECT_THAT(doc.dump(), HasSubstr("d608="));
    });
    EXPECT_LT(duration, kLongEnough);
}

TEST(DocExtreme, HasTablesWithinTablesBeyondWhatReadersTake) {
    const WrittenDoc doc(documentOf({{nestedTables(500)}}));
    const std::string text = doc.read().text();
    EXPECT_THAT(text, HasSubstr("innermost"));
    EXPECT_EQ(std::count(text.begin(), text.end(), 'x'), 499) << "no text is lost";
    EXPECT_THAT(doc.dump(), testing::Not(HasSubstr("6649=0b")));
    EXPECT_EQ(doc.diagnostics().entries().size(), 1u) << "told once, not for each table";
}

TEST(DocExtreme, ShowsTenThousandPictures) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    const Document document = manyPictures(pictures, 10000);
    const auto duration = durationOf([&] {
        const WrittenDoc doc(document, pictures);
        const std::string text = doc.read().text();
        EXPECT_EQ(doc.read().numbers(40).size(), (4u + 3334u * (4 + 26)) / 4) << "an anchor for every third";
        EXPECT_EQ(text.size(), 3334u * 3 + 6666u * 6) << "and a character for each";
    });
    EXPECT_LT(duration, kLongEnough);
}

TEST(DocExtreme, LeavesOutWhatNoFormatCanHold) {
    const WrittenDoc doc(awkwardText());
    const std::string text = doc.read().text();
    for (const char* word : {"before", "within", "behind", "comment"})
        EXPECT_THAT(text, HasSubstr(word));
    EXPECT_THAT(text, testing::Not(HasSubstr("\\1b")));
    EXPECT_THAT(text, testing::Not(HasSubstr("\\ud800"))) << "halves of pairs";
}

TEST(DocExtreme, HasNumbersBeyondWhatTheFormatTakes) {
    const WrittenDoc doc(hugeNumbers());
    EXPECT_EQ(doc.read().text(), "a\\0d");
    // The size of the letter, and the two indents: the most and the least that readers take.
    EXPECT_THAT(doc.dump(), HasSubstr("4a43=cc0c"));
    EXPECT_THAT(doc.dump(), HasSubstr("840f=4084"));
    EXPECT_THAT(doc.dump(), HasSubstr("8411=4084"));
}

TEST(DocExtreme, IsWrittenWhereTheNameHasBlanksAndOtherLetters) {
    const TemporaryFolder folder;
    const std::filesystem::path target = folder.path() / u8"ein Name \u00E4 \u4E2D\u6587.doc";
    Diagnostics diagnostics;
    write::writeDoc(documentOf("words"), PictureStore(folder.path()), target, diagnostics);
    EXPECT_EQ(DocReader(target).text(), "words\\0d");
}

} // namespace
} // namespace orvane::tests
