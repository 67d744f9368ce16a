#include "ReadPages.h"
#include "Type1Program.h"

#include "pdf/FontProgram.h"
#include "pdf/FontRights.h"

#include <cmath>
#include <gtest/gtest.h>

#include FT_OUTLINE_H
#include FT_TRUETYPE_TABLES_H

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::PdfPage;
using tests::pdfRef;
using tests::Polygon;
using tests::Type1Glyph;

constexpr int kEditable = 8;

const Polygon kBar{{100, 0}, {100, 700}, {200, 700}, {200, 0}};
const Polygon kLeaningBar{{100, 0}, {250, 700}, {350, 700}, {200, 0}};

/// A file whose font object is known; its codes are those of the letters.
struct FileWithFont {
    PdfBuilder builder;
    int font = 0;
};

/// `kind` is the font's type, `key` what its descriptor calls such programs.
FileWithFont fileWith(const std::string& program, const std::string& kind = "Type1",
                      const std::string& key = "FontFile") {
    FileWithFont made;
    const int file = made.builder.addStream(
        "/Length1 300 /Length2 " + std::to_string(program.size() - 300) + " /Length3 0", program);
    const int descriptor = made.builder.add("<< /Type /FontDescriptor /FontName /Somebody /Flags 32 /FontBBox "
                                            "[0 -200 1000 800] /ItalicAngle 0 /Ascent 800 /Descent -200 /CapHeight 700 "
                                            "/StemV 80 /" +
                                            key + " " + pdfRef(file) + " >>");
    made.font = made.builder.add("<< /Type /Font /Subtype /" + kind +
                                 " /BaseFont /Somebody /FirstChar 73 /LastChar 79 /Widths [600 600 600 600 600 600 600]"
                                 " /Encoding /WinAnsiEncoding /FontDescriptor " +
                                 pdfRef(descriptor) + " >>");
    made.builder.page(PdfPage{"BT /E1 20 Tf 50 500 Td (IO) Tj ET", 612, 792, {}, {}, "/E1 " + pdfRef(made.font)});
    return made;
}

FontRequest requestFor(int font, double advance = 0.6) {
    FontRequest request;
    request.family = "Somebody";
    request.ascent = 0.9;
    request.descent = 0.25;
    request.blankWidth = 0.3;
    request.sources = {{font, {{U'I', 'I', advance}, {U'O', 'O', advance}}}};
    return request;
}

std::optional<std::string> packed(const std::string& program, const FontRequest* request = nullptr) {
    FileWithFont file = fileWith(program);
    const FontRequest usual = requestFor(file.font);
    FontRequest asked = request ? *request : usual;
    asked.sources[0].objectNumber = file.font;
    return OpenedPdf(file.builder).document().packFont(asked);
}

/// A packed font, opened by another's reader.
class Opened {
public:
    explicit Opened(const std::string& bytes)
        : m_bytes(bytes.begin(), bytes.end())
        , m_program(m_bytes) {}

    FT_Face face() const { return m_program.face(); }
    /// Units: of the em.
    FT_Outline& outline(char32_t character) const {
        EXPECT_EQ(FT_Load_Char(face(), character, FT_LOAD_NO_SCALE), 0);
        return face()->glyph->outline;
    }
    FT_Pos advance(char32_t character) const {
        outline(character);
        return face()->glyph->metrics.horiAdvance;
    }
    FT_BBox box(char32_t character) const {
        FT_BBox box;
        FT_Outline_Get_CBox(&outline(character), &box);
        return box;
    }

private:
    std::vector<unsigned char> m_bytes;
    FontProgram m_program;
};

std::string barAndDisk(std::optional<int> bits = kEditable) {
    return tests::type1Program({{"I", {kBar}}, {"O", {}, {{300, 350, 300}}}}, bits);
}

TEST(FontPacker, MakesAWholeFileOfTheCharactersAskedFor) {
    const auto bytes = packed(barAndDisk());
    ASSERT_TRUE(bytes);
    const Opened font(*bytes);
    ASSERT_TRUE(font.face());
    EXPECT_STREQ(font.face()->family_name, "Somebody");
    EXPECT_EQ(font.face()->style_flags, 0);
    EXPECT_EQ(font.face()->units_per_EM, 1000);
    EXPECT_EQ(font.face()->ascender, 900);
    EXPECT_EQ(font.face()->descender, -250);
    const FT_BBox bar = font.box(U'I');
    EXPECT_EQ(bar.xMin, 100);
    EXPECT_EQ(bar.xMax, 200);
    EXPECT_EQ(bar.yMax, 700);
    EXPECT_EQ(font.advance(U'I'), 600);
    EXPECT_EQ(font.advance(U' '), 300) << "the file has no blank, but documents do";
    EXPECT_EQ(FT_Get_Char_Index(font.face(), U'A'), 0u);
    const auto* windows = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(font.face(), FT_SFNT_OS2));
    ASSERT_TRUE(windows);
    EXPECT_EQ(windows->fsType, kEditable) << "the maker's will goes with the font";
}

TEST(FontPacker, DrawsCubicCurvesAsQuadraticOnes) {
    const auto bytes = packed(barAndDisk());
    ASSERT_TRUE(bytes);
    const Opened font(*bytes);
    const FT_Outline& disk = font.outline(U'O');
    ASSERT_GT(disk.n_points, 8);
    for (int i = 0; i < disk.n_points; ++i) {
        const double distance = std::hypot(disk.points[i].x - 300.0, disk.points[i].y - 350.0);
        if ((disk.tags[i] & FT_CURVE_TAG_ON) != 0)
            EXPECT_NEAR(distance, 300, 1.5) << "point " << i;
        else
            EXPECT_GT(distance, 299) << "a control lies outside the curve";
    }
    EXPECT_EQ(FT_Outline_Get_Orientation(&font.outline(U'O')), FT_ORIENTATION_TRUETYPE);
}

TEST(FontPacker, TakesTheAdvancesOfThePage) {
    FontRequest request = requestFor(0, 0.55);
    const auto bytes = packed(barAndDisk(), &request);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(Opened(*bytes).advance(U'I'), 550);
}

TEST(FontPacker, LeavesFontsAtHomeThatTheirMakersDoNotLetGo) {
    EXPECT_TRUE(packed(barAndDisk(0)));
    EXPECT_FALSE(packed(barAndDisk(std::nullopt))) << "nothing is known of them";
    EXPECT_FALSE(packed(barAndDisk(2))) << "restricted";
    EXPECT_FALSE(packed(barAndDisk(4))) << "for reading and printing";
    EXPECT_FALSE(packed(barAndDisk(0x108))) << "not in subsets";
    EXPECT_FALSE(packed(barAndDisk(0x208))) << "bitmaps only";
}

TEST(FontPacker, PacksTrueTypeProgramsToo) {
    const auto first = packed(barAndDisk());
    ASSERT_TRUE(first);
    FileWithFont file = fileWith(*first, "TrueType", "FontFile2");
    const auto second = OpenedPdf(file.builder).document().packFont(requestFor(file.font));
    ASSERT_TRUE(second);
    EXPECT_EQ(*second, *first) << "outlines of that kind are taken as they are";
}

TEST(FontPacker, JoinsTheSubsetsOfAFace) {
    FileWithFont file = fileWith(tests::type1Program({{"I", {kBar}}}, kEditable));
    FontRequest request = requestFor(file.font);
    const int program = file.builder.addStream("/Length1 300 /Length2 900 /Length3 0",
                                               tests::type1Program({{"N", {kBar, kLeaningBar}}}, kEditable));
    const int descriptor =
        file.builder.add("<< /Type /FontDescriptor /FontName /Somebody /Flags 32 /FontFile " + pdfRef(program) + " >>");
    const int font = file.builder.add("<< /Type /Font /Subtype /Type1 /BaseFont /Somebody /Encoding /WinAnsiEncoding "
                                      "/FontDescriptor " +
                                      pdfRef(descriptor) + " >>");
    request.sources.push_back({font, {{U'N', 'N', 0.7}}});
    const auto bytes = OpenedPdf(file.builder).document().packFont(request);
    ASSERT_TRUE(bytes);
    const Opened opened(*bytes);
    EXPECT_EQ(opened.advance(U'I'), 600);
    EXPECT_EQ(opened.advance(U'N'), 700);
    EXPECT_EQ(FT_Get_Char_Index(opened.face(), U'O'), 0u) << "the subset has no such glyph";
}

TEST(FontPacker, DoesNotCallUprightLettersItalic) {
    FontRequest italic = requestFor(0);
    italic.isItalic = true;
    EXPECT_FALSE(packed(barAndDisk(), &italic));
    const auto bytes = packed(tests::type1Program({{"I", {kLeaningBar}}, {"O", {kLeaningBar}}}, kEditable), &italic);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(Opened(*bytes).face()->style_flags, FT_STYLE_FLAG_ITALIC);
}

TEST(FontPacker, SurvivesFontsThatAreNone) {
    FileWithFont file = fileWith("no font at all /FSType 8 def" + std::string(400, ' '));
    OpenedPdf pdf(file.builder);
    EXPECT_FALSE(pdf.document().packFont(requestFor(file.font)));
    EXPECT_FALSE(pdf.document().packFont(requestFor(1)));
    EXPECT_FALSE(pdf.document().packFont(requestFor(999)));
}

TEST(FontRights, KnowsTheBitsOfFilesOfTables) {
    const auto bytes = packed(barAndDisk(0));
    ASSERT_TRUE(bytes);
    const std::vector<unsigned char> whole(bytes->begin(), bytes->end());
    EXPECT_EQ(embeddingBits(whole), 0);
    EXPECT_FALSE(embeddingBits({whole.begin(), whole.begin() + 40})) << "cut short";
    EXPECT_FALSE(embeddingBits({}));
}

} // namespace
} // namespace orvane::pdf
