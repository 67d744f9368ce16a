#include "ExtremeDocuments.h"
#include "WrittenRtf.h"

#include "support/Files.h"
#include "write/rtf/RtfWriter.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace orvane::tests {
namespace {

using namespace document;

TEST(RtfExtreme, HasATableOfFiftyThousandCells) {
    const Document document = documentOf({{largeTable(1000, 50)}});
    const auto duration = durationOf([&] {
        const WrittenRtf rtf(document);
        EXPECT_EQ(rtf.count("\\cell}"), 50000u);
        EXPECT_EQ(faultOfRtf(rtf.text()), "");
    });
    EXPECT_LT(duration, kLongEnough);
}

TEST(RtfExtreme, HasTablesWithinTablesBeyondWhatReadersTake) {
    const WrittenRtf rtf(documentOf({{nestedTables(500)}}));
    EXPECT_TRUE(rtf.has("innermost"));
    EXPECT_EQ(rtf.count("{x}"), 499u) << "no text is lost";
    EXPECT_FALSE(rtf.has("\\itap11"));
    EXPECT_EQ(faultOfRtf(rtf.text()), "");
    EXPECT_EQ(rtf.diagnostics().entries().size(), 1u) << "told once, not for each table";
}

TEST(RtfExtreme, ShowsTenThousandPictures) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    const Document document = manyPictures(pictures, 10000);
    const auto duration = durationOf([&] {
        const WrittenRtf rtf(document, pictures);
        EXPECT_EQ(rtf.count("\\pngblip"), 10000u);
        EXPECT_EQ(faultOfRtf(rtf.text()), "");
    });
    EXPECT_LT(duration, kLongEnough);
}

TEST(RtfExtreme, LeavesOutWhatNoFormatCanHold) {
    const WrittenRtf rtf(awkwardText());
    EXPECT_EQ(faultOfRtf(rtf.text()), "");
    for (const char* word : {"before", "within", "behind", "comment"})
        EXPECT_TRUE(rtf.has(word)) << word;
    EXPECT_TRUE(std::all_of(rtf.text().begin(), rtf.text().end(),
                            [](char c) { return c == '\n' || c == '\r' || (c >= ' ' && c < 0x7F); }));
}

TEST(RtfExtreme, HasNumbersBeyondWhatTheFormatTakes) {
    const WrittenRtf rtf(hugeNumbers());
    EXPECT_EQ(faultOfRtf(rtf.text()), "");
    EXPECT_FALSE(rtf.has("2000000000"));
}

TEST(RtfExtreme, IsWrittenWhereTheNameHasBlanksAndOtherLetters) {
    const TemporaryFolder folder;
    const std::filesystem::path target = folder.path() / u8"ein Name \u00E4 \u4E2D\u6587.rtf";
    Diagnostics diagnostics;
    write::writeRtf(documentOf("words"), PictureStore(folder.path()), target, diagnostics);
    EXPECT_EQ(faultOfRtf(readFile(target)), "");
}

} // namespace
} // namespace orvane::tests
