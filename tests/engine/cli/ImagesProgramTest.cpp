#include "engine/cli/ProgramTest.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace orvane::cli {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::PdfBuilder;
using tests::pdfImage;
using tests::pdfRef;

constexpr const char* kDrawPicture = "q 2 0 0 1 50 600 cm /Im1 Do Q";

class ImagesProgram : public ProgramTest {
protected:
    static tests::PdfPage pageWith(int image, const std::string& content = kDrawPicture) {
        return {content, 612, 792, {}, "/XObject << /Im1 " + pdfRef(image) + " >>", {}};
    }

    /// A PDF with one picture of two pixels: red, blue.
    void makeRedAndBlue(const std::string& name) const {
        PdfBuilder pdf;
        const int image = pdf.addStream(pdfImage(2, 1, "/DeviceRGB", 8), std::string("\xFF\0\0\0\0\xFF", 6));
        pdf.page(pageWith(image)).write(path(name));
    }

    std::vector<std::string> filesIn(const std::string& folder) const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path(folder)))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    /// What ImageMagick, a program of other people, says of a file.
    static std::string magick(const std::string& program, const std::vector<std::string>& arguments) {
        const auto result = tests::runProgram("/usr/bin/" + program, arguments, {});
        EXPECT_EQ(result.exitCode, 0) << result.errorOutput;
        return result.output;
    }
};

TEST_F(ImagesProgram, WritesEveryFormatSoThatAnotherProgramReadsIt) {
    struct Row {
        const char* format;
        const char* file;
        const char* kind;
    };
    const Row rows[] = {{"bmp", "a-p001-01.bmp", "BMP"},   {"pcx", "a-p001-01.pcx", "PCX"},
                        {"png", "a-p001-01.png", "PNG"},   {"pnm", "a-p001-01.pnm", "PNM"},
                        {"ppm", "a-p001-01.ppm", "PNM"},   {"psd", "a-p001-01.psd", "PSD"},
                        {"tiff", "a-p001-01.tif", "TIFF"}, {"original", "a-p001-01.png", "PNG"}};
    makeRedAndBlue("a.pdf");
    for (const Row& row : rows) {
        const std::string folder = path(std::string("out-") + row.format);
        const auto result = orvane({"images", path("a.pdf"), folder, "--format", row.format});
        ASSERT_EQ(result.exitCode, 0) << row.format << result.errorOutput;
        EXPECT_THAT(filesIn(std::string("out-") + row.format), ElementsAre(row.file));
        const std::string file = folder + "/" + row.file;
        EXPECT_THAT(magick("identify", {"-format", "%m %wx%h", file}), HasSubstr("2x1")) << row.format;
        EXPECT_EQ(magick("convert", {file, "-depth", "8", "rgb:-"}), std::string("\xFF\0\0\0\0\xFF", 6)) << row.format;
    }
}

TEST_F(ImagesProgram, WritesLossyAndBilevelFormatsToo) {
    makeRedAndBlue("a.pdf");
    EXPECT_EQ(orvane({"images", path("a.pdf"), path("j"), "--format", "jpg"}).exitCode, 0);
    EXPECT_EQ(magick("identify", {"-format", "%m %wx%h", path("j/a-p001-01.jpg")}).substr(0, 8), "JPEG 2x1");
    EXPECT_EQ(orvane({"images", path("a.pdf"), path("b"), "--format", "pbm"}).exitCode, 0);
    EXPECT_EQ(read("b/a-p001-01.pbm").substr(0, 7), "P4\n2 1\n");
}

TEST_F(ImagesProgram, TakesAPictureOutOnceHoweverOftenItIsPainted) {
    PdfBuilder pdf;
    const int image = pdf.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x20");
    const int other = pdf.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x60");
    pdf.page(pageWith(image, "q 1 0 0 1 0 0 cm /Im1 Do Q q 1 0 0 1 9 9 cm /Im1 Do Q")).page(pageWith(other));
    pdf.page(pageWith(image)).write(path("a.pdf"));
    const auto result = orvane({"images", path("a.pdf"), path("out"), "--json", "--log", path("run.log")});
    const json pictures = json::parse(result.output)["pictures"];
    ASSERT_EQ(pictures.size(), 2u) << result.output;
    EXPECT_EQ(pictures[0]["file"], "a-p001-01.png");
    EXPECT_EQ(pictures[0]["pages"], json({1, 3}));
    EXPECT_EQ(pictures[0]["parts"][0]["object"], image);
    EXPECT_EQ(pictures[1]["file"], "a-p002-01.png");
    EXPECT_THAT(read("run.log"), HasSubstr("picture:  a-p001-01.png, 1 x 1 pixels, pages 1, 3"));
    EXPECT_THAT(filesIn("out"), ElementsAre("a-p001-01.png", "a-p002-01.png"));
}

TEST_F(ImagesProgram, FindsPicturesInlineInFormsPatternsAndAnnotations) {
    PdfBuilder pdf;
    const auto gray = [&pdf](char level) {
        return pdf.addStream(pdfImage(1, 1, "/DeviceGray", 8), std::string(1, level));
    };
    const auto resources = [](int image) { return "/Resources << /XObject << /Im1 " + pdfRef(image) + " >> >>"; };
    const int form =
        pdf.addStream("/Type /XObject /Subtype /Form /BBox [0 0 9 9] " + resources(gray(1)), "9 0 0 9 0 0 cm /Im1 Do");
    const int pattern = pdf.addStream("/PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 5 5] /XStep 5 /YStep 5 " +
                                          resources(gray(2)),
                                      "5 0 0 5 0 0 cm /Im1 Do");
    const int stamp =
        pdf.addStream("/Type /XObject /Subtype /Form /BBox [0 0 9 9] " + resources(gray(3)), "9 0 0 9 0 0 cm /Im1 Do");
    const int annotation =
        pdf.add("<< /Type /Annot /Subtype /Stamp /Rect [10 10 19 19] /F 4 /AP << /N " + pdfRef(stamp) + " >> >>");
    pdf.page({"/Fm1 Do /Pattern cs /P1 scn 100 100 50 50 re f q 1 0 0 1 5 5 cm BI /W 1 /H 1 /CS /G /BPC 8 ID \x60 EI Q",
              612,
              792,
              "/Annots [" + pdfRef(annotation) + "]",
              "/XObject << /Fm1 " + pdfRef(form) + " >> /Pattern << /P1 " + pdfRef(pattern) + " >>",
              {}});
    pdf.write(path("a.pdf"));
    EXPECT_EQ(orvane({"images", path("a.pdf"), path("out"), "--format", "pnm"}).exitCode, 0);
    std::string levels;
    for (const std::string& file : filesIn("out"))
        levels += read("out/" + file).back();
    EXPECT_EQ(levels, "\x01\x02\x60\x03");
}

TEST_F(ImagesProgram, NeverReplacesAFileThatWasThere) {
    makeRedAndBlue("a.pdf");
    EXPECT_EQ(orvane({"images", path("a.pdf"), path("out")}).exitCode, 0);
    write("out/a-p001-01.png", "mine");
    EXPECT_EQ(orvane({"images", path("a.pdf"), path("out")}).exitCode, 0);
    EXPECT_EQ(read("out/a-p001-01.png"), "mine");
    EXPECT_THAT(filesIn("out"), ElementsAre("a-2-p001-01.png", "a-p001-01.png"));
}

TEST_F(ImagesProgram, GoesOnBehindAPictureThatCannotBeRead) {
    PdfBuilder pdf;
    const int huge = pdf.addStream(pdfImage(100000, 100000, "/DeviceGray", 8), "abc");
    const int good = pdf.addStream(pdfImage(1, 1, "/DeviceGray", 8), "\x20");
    pdf.page(pageWith(huge)).page(pageWith(good)).write(path("a.pdf"));
    const auto result = orvane({"images", path("a.pdf"), path("out"), "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.errorOutput;
    const json object = json::parse(result.output);
    EXPECT_EQ(object["notes"][0]["kind"], "PictureUnreadable");
    EXPECT_THAT(object["notes"][0]["message"].get<std::string>(), HasSubstr("100000 by 100000"));
    EXPECT_THAT(filesIn("out"), ElementsAre("a-p002-01.png"));
}

TEST_F(ImagesProgram, RefusesAnUnknownFormatAndAFolderThatIsNone) {
    makeRedAndBlue("a.pdf");
    EXPECT_EQ(orvane({"images", path("a.pdf"), path("out"), "--format", "gif"}).exitCode, 2);
    write("out", "a file");
    EXPECT_EQ(orvane({"images", path("a.pdf"), path("out")}).exitCode, 5);
    EXPECT_EQ(read("out"), "a file");
    EXPECT_THAT(leftovers(), IsEmpty());
}

} // namespace
} // namespace orvane::cli
