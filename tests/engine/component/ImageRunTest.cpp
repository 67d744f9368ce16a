#include "LoadedLibrary.h"

#include "support/Files.h"
#include "support/NoisePictures.h"

#include <algorithm>

#include <fmt/format.h>

namespace orvane::component {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::int32_t kImagesComplete = 12; ///< the contract's status code

/// The run that takes pictures out, through the built library.
class ImageRun : public LoadedLibrary {
protected:
    ConversionRequest imageRequest(std::int16_t format) const {
        ConversionRequest result = request();
        result.flags = flag::kAllPages;
        result.layoutCode = layout_code::kImages;
        result.imageFormat = format;
        result.targetPath = file("pictures");
        return result;
    }

    void makePictures(int pages, int side) const { tests::writeNoisePictures(file("a.pdf"), pages, side); }

    std::vector<std::string> pictures() const { return tests::namesIn(file("pictures")); }
};

TEST_F(ImageRun, WritesTheFormatOfEachCode) {
    makePictures(1, 4);
    const char* endings[] = {"bmp", "jpg", "pbm", "pcx", "png", "pnm", "ppm", "psd", "tif"};
    for (std::int16_t code = 0; code < 9; ++code) {
        ConversionRequest wanted = imageRequest(code);
        wanted.targetPath = file(fmt::format("pictures-{}", code));
        const auto engine = createEngine();
        ASSERT_EQ(engine->DoConvert(wanted), result::kAccepted) << code;
        EXPECT_EQ(waitForEnd(*engine), finish::kSucceeded) << code;
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(wanted.targetPath), {}), 1) << code;
        EXPECT_TRUE(std::filesystem::exists(wanted.targetPath + "/a-p001-01." + endings[code])) << code;
    }
}

TEST_F(ImageRun, RefusesACodeThatItDoesNotKnow) {
    makePictures(1, 4);
    for (const std::int16_t code : {-1, 9, 32767}) {
        EXPECT_EQ(createEngine()->DoConvert(imageRequest(code)), result::kFailed) << code;
        EXPECT_THAT(pictures(), IsEmpty()) << code;
    }
}

TEST_F(ImageRun, EndsWithItsOwnStatusAndALogOfThePictures) {
    makePictures(2, 4);
    const auto engine = createEngine();
    ASSERT_EQ(engine->DoConvert(imageRequest(4)), result::kAccepted);
    EXPECT_EQ(waitForEnd(*engine), finish::kSucceeded);
    std::int32_t first = 0;
    std::int32_t second = 0;
    std::int16_t finishCode = 0;
    EXPECT_EQ(engine->GetStatus(first, second, finishCode), kImagesComplete);
    EXPECT_THAT(pictures(), ElementsAre("a-p001-01.png", "a-p002-01.png"));
    EXPECT_THAT(read("run.log"), HasSubstr("options:  layout images, format png\n"));
    EXPECT_THAT(read("run.log"), HasSubstr("picture:  a-p001-01.png, 4 x 4 pixels, page 1\n"));
    EXPECT_THAT(read("run.log"), HasSubstr("picture:  a-p002-01.png, 4 x 4 pixels, page 2\n"));
    EXPECT_THAT(read("run.log"), HasSubstr("counts:   pictures 2 read, 2 written\n"));
}

TEST_F(ImageRun, TakesThePagesOfItsRange) {
    makePictures(3, 4);
    ConversionRequest wanted = imageRequest(0);
    wanted.flags = 0;
    wanted.pageRange = "2-9";
    const auto engine = createEngine();
    ASSERT_EQ(engine->DoConvert(wanted), result::kAccepted);
    EXPECT_EQ(waitForEnd(*engine), finish::kSucceeded);
    EXPECT_THAT(pictures(), ElementsAre("a-p002-01.bmp", "a-p003-01.bmp"));
}

TEST_F(ImageRun, LeavesWholeFilesWhenItIsCancelled) {
    makePictures(200, 120);
    {
        const auto engine = createEngine();
        ASSERT_EQ(engine->DoConvert(imageRequest(4)), result::kAccepted);
        EXPECT_TRUE(waitFor([this] { return pictures().size() > 2; }));
        engine->DoCancel();
    }
    EXPECT_TRUE(waitFor([this] { return !read("run.log").empty(); }));
    EXPECT_THAT(read("run.log"), HasSubstr("result:   Cancelled"));
    EXPECT_LT(pictures().size(), 200u);
    for (const std::string& name : pictures()) {
        EXPECT_TRUE(name.ends_with(".png")) << name;
        EXPECT_TRUE(read("pictures/" + name).ends_with("IEND\xAE\x42\x60\x82")) << name << " is whole";
    }
}

} // namespace
} // namespace orvane::component
