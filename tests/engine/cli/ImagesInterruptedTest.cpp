#include "engine/cli/ProgramTest.h"
#include "support/Files.h"
#include "support/NoisePictures.h"

#include <algorithm>
#include <csignal>
#include <gmock/gmock.h>

namespace orvane::cli {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using tests::RunningProgram;
using Whom = RunningProgram::Whom;

/// Image runs that do not come to their end.
class ImagesInterrupted : public ProgramTest {
protected:
    static constexpr int kSide = 150;

    void makeManyPictures(int pages) const { tests::writeNoisePictures(path("many.pdf"), pages, kSide); }

    std::vector<std::string> takeOut() const {
        return {"images", path("many.pdf"), path("out"), "--log", path("run.log")};
    }

    std::vector<std::string> files() const { return tests::namesIn(path("out")); }

    void expectWholePictures() const {
        for (const std::string& name : files())
            if (name != "many.part") {
                EXPECT_TRUE(read("out/" + name).ends_with("IEND\xAE\x42\x60\x82")) << name;
            }
    }
};

TEST_F(ImagesInterrupted, LeaveWholePicturesAtCtrlC) {
    makeManyPictures(150);
    RunningProgram program(binaries() / "orvane", takeOut());
    ASSERT_TRUE(waitFor([this] { return files().size() > 2; }));
    program.send(SIGINT, Whom::WholeGroup);
    EXPECT_EQ(program.wait().exitCode, 6);
    EXPECT_THAT(files(), Not(testing::Contains("many.part")));
    EXPECT_LT(files().size(), 150u);
    expectWholePictures();
    EXPECT_THAT(read("run.log"), HasSubstr("result:   Cancelled"));
}

TEST_F(ImagesInterrupted, CleanUpBehindAWorkerThatIsKilled) {
    makeManyPictures(150);
    RunningProgram program(binaries() / "orvane", takeOut());
    ASSERT_TRUE(waitFor([this] { return files().size() > 2; }));
    ASSERT_EQ(program.children().size(), 1u);
    kill(program.children().front(), SIGKILL);
    EXPECT_EQ(program.wait().exitCode, 7);
    EXPECT_THAT(files(), Not(testing::Contains("many.part")));
    expectWholePictures();
    EXPECT_THAT(read("run.log"), HasSubstr("result:   WorkerDied"));
}

TEST_F(ImagesInterrupted, LeaveWholePicturesWhereverTheyAreKilled) {
    makeManyPictures(60);
    for (const std::size_t pictures : {0u, 1u, 5u}) {
        std::filesystem::remove_all(path("out"));
        RunningProgram program(binaries() / "orvane", takeOut());
        EXPECT_TRUE(waitFor([&] { return files().size() > pictures; }));
        program.send(SIGKILL, Whom::WholeGroup);
        program.wait();
        expectWholePictures();
    }
    const std::size_t before = files().size();
    EXPECT_EQ(orvane(takeOut()).exitCode, 0);
    EXPECT_THAT(files(), Not(testing::Contains("many.part"))) << "the next run removes what is left";
    EXPECT_THAT(files(), testing::Contains("many-2-p060-01.png")) << "and leaves the pictures of the first alone";
    EXPECT_GE(files().size(), before - 1 + 60);
}

TEST_F(ImagesInterrupted, LeaveNoHalfPictureOnAFullDisk) {
    makeManyPictures(2);
    tests::ProgramOptions fullDisk;
    fullDisk.maxFileSize = kSide * kSide;
    const auto result = orvane(takeOut(), fullDisk);
    EXPECT_EQ(result.exitCode, 5) << result.errorOutput;
    EXPECT_THAT(files(), IsEmpty());
}

} // namespace
} // namespace orvane::cli
