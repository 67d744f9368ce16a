#include "DocumentBuilder.h"
#include "SampleDocument.h"
#include "TestPicture.h"
#include "WrittenRtf.h"

#include "base/Failure.h"
#include "write/rtf/RtfWriter.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;
using testing::IsEmpty;

TEST(RtfFile, SpreadsLinesThatEndByHandOnlyWhereTheDocumentSaysSo) {
    Document document = documentOf("a");
    EXPECT_FALSE(WrittenRtf(document).has("\\expshrtn"));
    document.spreadsBrokenLines = true;
    EXPECT_TRUE(WrittenRtf(document).has("\\expshrtn"));
}

TEST(RtfFile, DividesWordsWhereTheDocumentDoes) {
    Document document = documentOf("a");
    EXPECT_FALSE(WrittenRtf(document).has("\\hyphauto1"));
    document.dividesWords = true;
    EXPECT_TRUE(WrittenRtf(document).has("\\hyphauto1"));
}

TEST(RtfFile, ShowsTheColorOfThePaper) {
    Document document = documentOf("a");
    EXPECT_FALSE(WrittenRtf(document).has("\\background"));
    document.pageColor = Color{255, 255, 204};
    const WrittenRtf rtf(document);
    EXPECT_THAT(faultOfRtf(rtf.text()), IsEmpty());
    EXPECT_TRUE(rtf.has("\\viewbksp1"));
    EXPECT_TRUE(rtf.has("{\\sp{\\sn fillColor}{\\sv 13434879}}"));
}

TEST(RtfFile, SetsParagraphsAndLettersApartLikeTheOtherFormats) {
    EXPECT_TRUE(WrittenRtf(documentOf("a")).has("\\htmautsp")) << "the larger of two spaces, not both";
    EXPECT_TRUE(WrittenRtf(documentOf("a")).has("\\kerning0")) << "readers may kern where nothing is said";
}

TEST(RtfFile, IsWholeForADocumentThatHasOneOfEverything) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    const Document document = sampleDocument(pictures);
    const WrittenRtf rtf(document, pictures);
    EXPECT_THAT(faultOfRtf(rtf.text()), IsEmpty());
    EXPECT_EQ(rtf.text(), WrittenRtf(document, pictures).text()) << "one document, one file";
}

TEST(RtfFile, IsFoundWrongWhenItIs) {
    EXPECT_THAT(faultOfRtf("{\\rtf1 a}"), IsEmpty());
    for (const char* wrong : {"a", "{\\rtf1 a", "{\\rtf1 a}}", "{\\rtf1 \\+}", "{\\rtf1 \xC3}", "{\\rtf1 a} b"})
        EXPECT_THAT(faultOfRtf(wrong), testing::Not(IsEmpty())) << wrong;
}

TEST(RtfFile, IsRefusedWhereNothingCanBeWritten) {
    const TemporaryFolder folder;
    const PictureStore pictures(folder.path());
    Diagnostics diagnostics;
    try {
        write::writeRtf(documentOf("a"), pictures, folder.path() / "missing" / "a.rtf", diagnostics);
        FAIL() << "a folder that is missing was written to";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), FailureCode::TargetUnwritable);
    }
}

TEST(RtfFile, IsWholeWithoutSectionsAndStyles) {
    EXPECT_THAT(faultOfRtf(WrittenRtf(Document{}).text()), IsEmpty());
}

TEST(RtfFile, HoldsNumbersBeyondWhatTheFormatTakes) {
    constexpr int kHuge = 2000000000;
    RunProperties look;
    look.size = HalfPoints(kHuge);
    look.characterSpacing = Twips(-kHuge);
    Paragraph one = paragraph({text("a", look)});
    one.properties.indentStart = Twips(-kHuge);
    one.properties.lineSpacing = {LineSpacingRule::Exact, 1, Twips(-kHuge)};
    one.properties.borders.top = {BorderKind::Single, EighthPoints(kHuge), kBlack, kHuge};
    Document document = documentOf(one);
    document.sections[0].pageWidth = Twips(kHuge);
    document.sections[0].marginLeft = Twips(-kHuge);
    const WrittenRtf rtf(document);
    EXPECT_THAT(faultOfRtf(rtf.text()), IsEmpty());
    EXPECT_FALSE(rtf.has("2000000000"));
}

} // namespace
} // namespace orvane::tests
