#include "DocumentBuilder.h"
#include "TestPicture.h"
#include "WrittenDocument.h"

#include <gtest/gtest.h>

namespace orvane::tests {
namespace {

using namespace document;
using Verb = Shape::Verb;

class DrawingXml : public testing::Test {
protected:
    DrawingXml()
        : m_pictures(m_folder.path())
        , m_png(m_pictures.add(pngPicture(4, 4, kBlack))) {}

    Picture picture() const {
        Picture result;
        result.id = m_png;
        result.width = Emu(400000);
        result.height = Emu(300000);
        return result;
    }

    WrittenDocument written(Block block) const {
        return WrittenDocument(documentOf({{std::move(block)}, {paragraph("after")}}), m_pictures);
    }
    WrittenDocument written(const Picture& one) const {
        return WrittenDocument(documentOf(paragraph({{one}})), m_pictures);
    }

    static Shape::Segment to(Verb verb, std::initializer_list<int> xy = {}) {
        Shape::Segment segment{verb, {}};
        std::size_t i = 0;
        for (const int value : xy)
            segment.xy[i++] = Emu(value);
        return segment;
    }

    static Shape shape(std::vector<Shape::Segment> segments) {
        Shape result;
        result.width = Emu(800);
        result.height = Emu(600);
        result.segments = std::move(segments);
        return result;
    }

    static Figure figure(std::vector<Shape> shapes) {
        return {Drawing{Emu(800), Emu(600), std::move(shapes), ""}, {}, {}};
    }

    TemporaryFolder m_folder;
    PictureStore m_pictures;
    PictureId m_png;
};

TEST_F(DrawingXml, SetsAPictureIntoTheLine) {
    Picture one = picture();
    one.alternateText = "A <flag>";
    const WrittenDocument document = written(one);
    EXPECT_EQ(document.body("//wp:inline/wp:extent"), normalXml("<wp:extent cx='400000' cy='300000'/>"));
    EXPECT_EQ(document.body("//wp:docPr/@descr"), "A <flag>\n");
    EXPECT_EQ(document.body("//pic:blipFill"), normalXml("<pic:blipFill><a:blip r:embed='rId1'/>"
                                                         "<a:stretch><a:fillRect/></a:stretch></pic:blipFill>"));
    EXPECT_EQ(document.count("//w:drawing"), 1u);
}

TEST_F(DrawingXml, CutsTurnsAndMirrorsAPicture) {
    Picture one = picture();
    one.crop = {0.1, 0.25, 0, 0.5};
    one.rotation = -90;
    one.isMirroredVertically = true;
    const WrittenDocument document = written(one);
    EXPECT_EQ(document.body("//a:srcRect"), normalXml("<a:srcRect l='10000' t='25000' r='0' b='50000'/>"));
    EXPECT_EQ(document.body("//a:xfrm/@*"), "16200000\n1\n");
    EXPECT_EQ(document.body("//a:xfrm/@flipV"), "1\n");
    EXPECT_EQ(document.body("//wp:effectExtent"), normalXml("<wp:effectExtent l='0' t='50000' r='0' b='50000'/>"))
        << "a picture that is turned upright is as much higher as it was wider";
}

TEST_F(DrawingXml, TellsOfAPictureThatIsMissingAndGoesOn) {
    for (const PictureId id : {PictureId{0}, PictureId{77}}) {
        Picture one = picture();
        one.id = id;
        const WrittenDocument document = written(one);
        EXPECT_EQ(document.count("//w:drawing"), 0u);
        ASSERT_EQ(document.diagnostics().entries().size(), 1u);
        EXPECT_EQ(document.diagnostics().entries()[0].kind, DiagnosticKind::PictureUnreadable);
    }
}

TEST_F(DrawingXml, AnchorsAFloatingPictureWhereItStands) {
    Figure one{picture(), {}, {}};
    one.placement = {HorizontalAnchor::Column,
                     VerticalAnchor::Paragraph,
                     Emu(1000),
                     Emu(-2000),
                     Wrapping::Square,
                     Emu(11),
                     Emu(22),
                     Emu(33),
                     Emu(44),
                     7,
                     {}};
    const WrittenDocument document = written({one});
    EXPECT_EQ(document.body("//wp:anchor/@distL|//wp:anchor/@distR|//wp:anchor/@distT|//wp:anchor/@distB"),
              "11\n22\n33\n44\n");
    EXPECT_EQ(document.body("//wp:anchor/@relativeHeight"), "251658247\n");
    EXPECT_EQ(document.body("//wp:positionH|//wp:positionV|//wp:wrapSquare"),
              normalXml("<wp:positionH relativeFrom='column'><wp:posOffset>1000</wp:posOffset></wp:positionH>"
                        "<wp:positionV relativeFrom='paragraph'><wp:posOffset>-2000</wp:posOffset></wp:positionV>"
                        "<wp:wrapSquare wrapText='bothSides'/>"));
    one.placement.side = HorizontalSide::Right;
    EXPECT_EQ(written({one}).body("//wp:positionH"),
              normalXml("<wp:positionH relativeFrom='column'><wp:align>right</wp:align></wp:positionH>"));
}

TEST_F(DrawingXml, LeadsWhereAFloatingPictureDoes) {
    Picture outside = picture(), inside = picture();
    outside.link = LinkTarget{"https://example.org/", ""};
    inside.link = LinkTarget{"", "Chapter 2"};
    const WrittenDocument document(
        documentOf({{Figure{outside, {}, {}}}, {Figure{inside, {}, {}}}, {paragraph("after")}}), m_pictures);
    EXPECT_EQ(document.body("//wp:docPr/a:hlinkClick"),
              normalXml("<a:hlinkClick r:id='rId2'/><a:hlinkClick r:id='rId3'/>"));
    EXPECT_EQ(document.select("word/_rels/document.xml.rels", "//*[@TargetMode='External']/@Target"),
              "https://example.org/\n#Chapter_2\n");
}

TEST_F(DrawingXml, WrapsTextInEachWay) {
    struct Row {
        Wrapping wrapping;
        const char* element;
        const char* isBehind;
    };
    const Row rows[] = {{Wrapping::Square, "wp:wrapSquare", "0\n"},
                        {Wrapping::TopAndBottom, "wp:wrapTopAndBottom", "0\n"},
                        {Wrapping::None, "wp:wrapNone", "0\n"},
                        {Wrapping::BehindText, "wp:wrapNone", "1\n"}};
    for (const Row& row : rows) {
        Figure one{picture(), {}, {}};
        one.placement.wrapping = row.wrapping;
        const WrittenDocument document = written({one});
        EXPECT_EQ(document.count(std::string("//") + row.element), 1u);
        EXPECT_EQ(document.body("//wp:anchor/@behindDoc"), row.isBehind);
    }
}

TEST_F(DrawingXml, KnowsStraightLinesAndBoxesAndWritesOthersAsPaths) {
    struct Row {
        std::vector<Shape::Segment> segments;
        const char* geometry;
        const char* why;
    };
    const Row rows[] = {
        {{to(Verb::Move, {0, 0}), to(Verb::Line, {800, 600})}, "line", "a falling diagonal"},
        {{to(Verb::Move, {0, 600}), to(Verb::Line, {800, 0})}, "line", "a rising one"},
        {{to(Verb::Move, {0, 0}), to(Verb::Line, {800, 300})}, "path", "a line within its box"},
        {{to(Verb::Move, {0, 0}), to(Verb::Line, {800, 0}), to(Verb::Line, {800, 600}), to(Verb::Line, {0, 600}),
          to(Verb::Close)},
         "rect",
         "a box"},
        {{to(Verb::Move, {800, 600}), to(Verb::Line, {800, 0}), to(Verb::Line, {0, 0}), to(Verb::Line, {0, 600}),
          to(Verb::Line, {800, 600})},
         "rect",
         "a box from another corner the other way, closed by hand"},
        {{to(Verb::Move, {0, 0}), to(Verb::Line, {800, 600}), to(Verb::Line, {800, 0}), to(Verb::Line, {0, 600}),
          to(Verb::Close)},
         "path",
         "a bow tie has the corners of a box and is none"},
        {{to(Verb::Move, {0, 0}), to(Verb::Line, {800, 0}), to(Verb::Line, {800, 600}), to(Verb::Line, {0, 600})},
         "path",
         "an open box"},
        {{to(Verb::Move, {0, 0}), to(Verb::Curve, {1, 2, 3, 4, 5, 6}), to(Verb::Close)}, "path", "a curve"},
    };
    for (const Row& row : rows) {
        const WrittenDocument document = written({figure({shape(row.segments)})});
        const std::string preset = document.body("//a:prstGeom/@prst");
        EXPECT_EQ(preset.empty() ? "path\n" : preset, std::string(row.geometry) + "\n") << row.why;
    }
}

TEST_F(DrawingXml, WritesAPathWithItsCurves) {
    const WrittenDocument document =
        written({figure({shape({to(Verb::Move, {0, 10}), to(Verb::Curve, {1, 2, 3, 4, 5, 6}), to(Verb::Close)})})});
    EXPECT_EQ(document.body("//a:pathLst"),
              normalXml("<a:pathLst><a:path w='800' h='600'><a:moveTo><a:pt x='0' y='10'/></a:moveTo>"
                        "<a:cubicBezTo><a:pt x='1' y='2'/><a:pt x='3' y='4'/><a:pt x='5' y='6'/></a:cubicBezTo>"
                        "<a:close/></a:path></a:pathLst>"));
}

TEST_F(DrawingXml, WritesHowAShapeIsDrawn) {
    Shape one = shape({to(Verb::Move, {0, 0}), to(Verb::Line, {800, 600})});
    one.line = ShapeLine{{0xFF, 0, 0}, Emu(12700), BorderKind::Dashed};
    one.fill = Color{0, 0, 0xFF};
    one.opacity = 0.25;
    const WrittenDocument document = written({figure({one})});
    EXPECT_EQ(document.body("//wps:spPr/a:solidFill"),
              normalXml("<a:solidFill><a:srgbClr val='0000FF'><a:alpha val='25000'/></a:srgbClr></a:solidFill>"));
    EXPECT_EQ(document.body("//a:ln/@w"), "12700\n");
    EXPECT_EQ(document.body("//a:ln/a:prstDash"), normalXml("<a:prstDash val='dash'/>"));
}

TEST_F(DrawingXml, FillsAShapeWithAGradient) {
    Shape one = shape({to(Verb::Move, {0, 0}), to(Verb::Line, {800, 600})});
    one.fill = Color{0x80, 0, 0x80};
    one.gradient = Gradient{GradientKind::Linear, 90, {{0, {0xFF, 0, 0}}, {1, {0, 0, 0xFF}}}};
    EXPECT_EQ(written({figure({one})}).body("//wps:spPr/a:gradFill"),
              normalXml("<a:gradFill rotWithShape='1'><a:gsLst><a:gs pos='0'><a:srgbClr val='FF0000'/></a:gs>"
                        "<a:gs pos='100000'><a:srgbClr val='0000FF'/></a:gs></a:gsLst>"
                        "<a:lin ang='5400000' scaled='0'/></a:gradFill>"));
    one.gradient->kind = GradientKind::Radial;
    EXPECT_EQ(written({figure({one})}).body("//a:gradFill/a:path"),
              normalXml("<a:path path='circle'><a:fillToRect l='50000' t='50000' r='50000' b='50000'/></a:path>"));
}

TEST_F(DrawingXml, GroupsShapesThatBelongTogether) {
    Shape first = shape({to(Verb::Move, {0, 0}), to(Verb::Line, {800, 600})});
    Shape second = first;
    second.x = Emu(100);
    const WrittenDocument document = written({figure({first, second})});
    EXPECT_EQ(document.body("//mc:Choice/@Requires"), "wpg\n");
    EXPECT_EQ(document.count("//wpg:wgp/wps:wsp"), 2u);
    EXPECT_EQ(document.body("//wps:wsp[2]//a:off"), normalXml("<a:off x='100' y='0'/>"));
    EXPECT_EQ(document.body("//wpg:grpSpPr/a:xfrm/a:chExt"), normalXml("<a:chExt cx='800' cy='600'/>"));
}

TEST_F(DrawingXml, WritesATextBoxWithItsTextOnce) {
    Frame box;
    box.width = Emu(100000);
    box.height = Emu(50000);
    box.insetLeft = Emu(1234);
    box.direction = TextDirection::Downwards;
    box.rotation = 10;
    box.blocks.push_back({paragraph("boxed words")});
    const WrittenDocument document = written({box});
    EXPECT_EQ(document.body("//w:txbxContent"),
              normalXml("<w:txbxContent><w:p><w:r><w:t>boxed words</w:t></w:r></w:p></w:txbxContent>"));
    const std::string xml = document.part("word/document.xml");
    EXPECT_EQ(xml.find("boxed words"), xml.rfind("boxed words"));
    EXPECT_EQ(document.body("//wps:bodyPr/@vert|//wps:bodyPr/@lIns"), "vert\n1234\n");
    EXPECT_EQ(document.body("//a:xfrm/@rot"), "600000\n");
}

TEST_F(DrawingXml, LetsABoxThatNobodySeesGrowWithItsText) {
    Frame box;
    box.blocks.push_back({paragraph("a")});
    EXPECT_EQ(written({box}).count("//a:spAutoFit"), 1u);
    box.line = ShapeLine{kBlack, Emu(1), BorderKind::Single};
    EXPECT_EQ(written({box}).count("//a:noAutofit"), 1u);
    box.line.reset();
    box.growth = document::FrameGrowth::Never;
    EXPECT_EQ(written({box}).count("//a:noAutofit"), 1u);
}

} // namespace
} // namespace orvane::tests
