#include "DocumentBuilder.h"
#include "TestPicture.h"
#include "WrittenRtf.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

#include <fmt/format.h>

namespace orvane::tests {
namespace {

using namespace document;
using testing::HasSubstr;

/// A store with one picture.
struct Stored {
    TemporaryFolder folder;
    PictureStore pictures{folder.path()};
    Picture picture;

    explicit Stored(const PictureData& data) {
        picture.id = pictures.add(data);
        picture.width = emuFromPoints(100);
        picture.height = emuFromPoints(50);
    }
    std::string hexadecimal() const {
        std::ifstream in(pictures.at(picture.id).file, std::ios::binary);
        std::string digits;
        for (const char c : std::string(std::istreambuf_iterator<char>(in), {}))
            digits += fmt::format("{:02x}", static_cast<unsigned char>(c));
        return digits;
    }
};

std::string withoutLineEnds(std::string text) {
    std::erase(text, '\n');
    return text;
}

TEST(RtfPicture, IsTheFileItself) {
    const Stored stored(jpegPicture(8, 4, kBlack));
    const WrittenRtf rtf(documentOf(paragraph({{stored.picture}})), stored.pictures);
    EXPECT_TRUE(rtf.has("\\picw8\\pich4\\picwgoal2000\\pichgoal1000\\picscalex100\\picscaley100\\jpegblip\n"));
    EXPECT_THAT(withoutLineEnds(rtf.text()), HasSubstr("\\jpegblip" + stored.hexadecimal() + "}"));
}

TEST(RtfPicture, IsCutFromItsWholeSize) {
    Stored stored(pngPicture(8, 4, kBlack));
    stored.picture.crop.left = 0.5;
    EXPECT_TRUE(WrittenRtf(documentOf(paragraph({{stored.picture}})), stored.pictures)
                    .has("\\picwgoal8000\\pichgoal2000\\picscalex50\\picscaley50\\piccropl4000"));
}

TEST(RtfPicture, StandsBehindTheBoxesOfItsParagraph) {
    const Stored stored(pngPicture(8, 4, kBlack));
    Frame frame;
    frame.blocks = {{paragraph("boxed")}};
    const std::string text =
        WrittenRtf(documentOf({{Figure{stored.picture, {}, {}}}, {frame}, {paragraph("a")}}), stored.pictures).text();
    EXPECT_LT(text.find("boxed"), text.find("\\pngblip")) << "a reader parts the paragraph after a picture";
}

TEST(RtfPicture, IsToldOfWhenItIsMissing) {
    Picture missing;
    missing.id.value = 3;
    const WrittenRtf rtf(documentOf(paragraph({{missing}})));
    EXPECT_FALSE(rtf.has("\\pict"));
    EXPECT_EQ(rtf.diagnostics().entries().size(), 1u);
}

TEST(RtfPicture, FloatsWhereItIsPlaced) {
    const Stored stored(pngPicture(8, 4, kBlack));
    Figure figure{stored.picture, {}, {}};
    figure.placement.x = emuFromPoints(10);
    figure.placement.y = emuFromPoints(20);
    figure.placement.wrapping = Wrapping::BehindText;
    const WrittenRtf rtf(documentOf({{figure}, {paragraph("anchor")}}), stored.pictures);
    EXPECT_TRUE(
        rtf.has("{\\shp{\\*\\shpinst\\shpleft200\\shptop400\\shpright2200\\shpbottom1400\\shpfhdr0\\shpbxpage"));
    EXPECT_TRUE(rtf.has("\\shpwr3\\shpwrk0\\shpfblwtxt1"));
    EXPECT_TRUE(rtf.has("{\\sp{\\sn shapeType}{\\sv 75}}"));
    EXPECT_TRUE(rtf.has("{\\sp{\\sn pib}{\\sv{\\pict\\picw8"));
}

TEST(RtfPicture, LeadsWhereItsLinkDoes) {
    Stored stored(pngPicture(8, 4, kBlack));
    stored.picture.link = LinkTarget{"https://example.org/", ""};
    Figure outside{stored.picture, {}, {}};
    stored.picture.link = LinkTarget{"", "place"};
    Figure inside{stored.picture, {}, {}};
    const WrittenRtf rtf(documentOf({{outside}, {inside}, {paragraph("anchor")}}), stored.pictures);
    EXPECT_TRUE(rtf.has("{\\sp{\\sn pihlShape}{\\sv{\\*\\hl{\\hlsrc https://example.org/}}}}"));
    EXPECT_TRUE(rtf.has("{\\sp{\\sn pihlShape}{\\sv{\\*\\hl{\\hlloc place}}}}"));
}

TEST(RtfPicture, IsStoredOnItsSideWhenItIsTurned) {
    Stored stored(pngPicture(8, 4, kBlack));
    stored.picture.rotation = 90;
    const WrittenRtf rtf(documentOf({{Figure{stored.picture, {}, {}}}, {paragraph("anchor")}}), stored.pictures);
    EXPECT_TRUE(rtf.has("\\shpleft500\\shptop-500\\shpright1500\\shpbottom1500"));
    EXPECT_TRUE(rtf.has("{\\sn rotation}{\\sv 5898240}"));
}

TEST(RtfShape, IsTheWordProcessorsOwnWhereItHasOne) {
    const Emu side = emuFromPoints(10);
    Shape line{{}, {}, side, side, {{Shape::Verb::Move, {Emu(0), side}}, {Shape::Verb::Line, {side, Emu(0)}}},
               {}, {}, {},   1};
    line.line = ShapeLine{{255, 0, 0}, Emu(12700), BorderKind::Dashed};
    const WrittenRtf rtf(documentOf({{Figure{Drawing{side, side, {line}, ""}, {}, {}}}, {paragraph("anchor")}}));
    EXPECT_TRUE(rtf.has("{\\sn shapeType}{\\sv 20}}{\\sp{\\sn fFlipV}{\\sv 1}}"));
    EXPECT_TRUE(
        rtf.has("{\\sn lineColor}{\\sv 255}}{\\sp{\\sn lineWidth}{\\sv 12700}}{\\sp{\\sn lineDashing}{\\sv 6}}"));
}

TEST(RtfShape, IsAPathOtherwise) {
    const Emu side(1000);
    Shape drop{{},
               {},
               side,
               side,
               {{Shape::Verb::Move, {}},
                {Shape::Verb::Curve, {side, Emu(0), side, side, Emu(0), side}},
                {Shape::Verb::Close, {}}},
               {},
               Color{0, 0, 255},
               {},
               0.5};
    const WrittenRtf rtf(documentOf({{Figure{Drawing{side, side, {drop}, ""}, {}, {}}}, {paragraph("anchor")}}));
    EXPECT_TRUE(rtf.has("{\\sn pVerticies}{\\sv 8;5;(0,0);(1000,0);(1000,1000);(0,1000);(0,0)}"));
    EXPECT_TRUE(rtf.has("{\\sn pSegmentInfo}{\\sv 2;5;16384;8193;1;24577;32768}"))
        << "the way back to the start is drawn";
    EXPECT_TRUE(rtf.has("{\\sn fillColor}{\\sv 16711680}}{\\sp{\\sn fillOpacity}{\\sv 32768}}"));
}

TEST(RtfShape, EndsItsPathWhereItBeganWithoutALineMore) {
    const Emu side(1000);
    Shape corner{{},
                 {},
                 side,
                 side,
                 {{Shape::Verb::Move, {}},
                  {Shape::Verb::Line, {side, side}},
                  {Shape::Verb::Line, {Emu(0), side}},
                  {Shape::Verb::Line, {}},
                  {Shape::Verb::Close, {}}},
                 {},
                 Color{0, 0, 255},
                 {},
                 1};
    const WrittenRtf rtf(documentOf({{Figure{Drawing{side, side, {corner}, ""}, {}, {}}}, {paragraph("anchor")}}));
    EXPECT_TRUE(rtf.has("{\\sn pVerticies}{\\sv 8;4;(0,0);(1000,1000);(0,1000);(0,0)}"));
}

TEST(RtfShape, IsFilledWithALinearGradient) {
    Shape box;
    box.width = box.height = Emu(500);
    box.fill = Color{128, 0, 128};
    box.gradient = Gradient{GradientKind::Linear, 0, {{0, {255, 0, 0}}, {0.5, {0, 255, 0}}, {1, {0, 0, 255}}}};
    const Figure figure{Drawing{box.width, box.height, {box}, ""}, {}, {}};
    const WrittenRtf rtf(documentOf({{figure}, {paragraph("anchor")}}));
    EXPECT_TRUE(
        rtf.has("{\\sn fillType}{\\sv 7}}{\\sp{\\sn fillColor}{\\sv 255}}{\\sp{\\sn fillBackColor}{\\sv 16711680}}"));
    EXPECT_TRUE(rtf.has("{\\sn fillShadeColors}{\\sv 8;3;(255,0);(65280,32768);(16711680,65536)}"));

    Figure radial = figure;
    std::get<Drawing>(radial.content).shapes[0].gradient->kind = GradientKind::Radial;
    const WrittenRtf plain(documentOf({{radial}, {paragraph("anchor")}}));
    EXPECT_FALSE(plain.has("fillType"));
    EXPECT_TRUE(plain.has("{\\sn fillColor}{\\sv 8388736}}")) << "circles are filled with their mean";
}

TEST(RtfShape, StandsInAGroupWithOthers) {
    Shape box;
    box.x = Emu(100);
    box.width = box.height = Emu(500);
    const WrittenRtf rtf(
        documentOf({{Figure{Drawing{Emu(1000), Emu(1000), {box, box}, ""}, {}, {}}}, {paragraph("anchor")}}));
    EXPECT_TRUE(rtf.has("{\\shpgrp{\\*\\shpinst"));
    EXPECT_TRUE(rtf.has("{\\sn groupRight}{\\sv 1000}"));
    EXPECT_EQ(rtf.count("{\\sn relRight}{\\sv 600}"), 2u);
}

TEST(RtfFrame, HoldsParagraphsAndSendsFloatsBesideIt) {
    Frame inner;
    inner.blocks = {{paragraph("inner")}};
    Frame outer;
    outer.width = outer.height = Emu(127000);
    outer.insetLeft = Emu(635);
    outer.blocks = {{inner}, {paragraph("outer")}};
    const std::string body = WrittenRtf(documentOf({{outer}, {paragraph("anchor")}})).body();
    EXPECT_EQ(body.find("{\\shptxt"), body.rfind("{\\shptxt", body.find("{outer}")));
    EXPECT_LT(body.find("{outer}"), body.find("{inner}"));
    EXPECT_LT(body.find("{inner}"), body.find("{anchor}"));
    EXPECT_THAT(body, HasSubstr("{\\sn dxTextLeft}{\\sv 635}"));
}

TEST(RtfFrame, GrowsUnlessItHidesWhatIsBelowItsFoot) {
    Frame box;
    box.blocks = {{paragraph("boxed")}};
    EXPECT_TRUE(WrittenRtf(documentOf({{box}, {paragraph("a")}})).has("{\\sn fFitShapeToText}{\\sv 1}"));
    box.growth = document::FrameGrowth::Never;
    EXPECT_TRUE(WrittenRtf(documentOf({{box}, {paragraph("a")}})).has("{\\sn fFitShapeToText}{\\sv 0}"));
}

} // namespace
} // namespace orvane::tests
