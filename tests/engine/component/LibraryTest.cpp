#include "LoadedLibrary.h"
#include "support/TestData.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace orvane::component {
namespace {

using testing::HasSubstr;
namespace fs = std::filesystem;

class Library : public LoadedLibrary {};

TEST_F(Library, ConvertsAFile) {
    makePdf(3);
    const auto engine = createEngine();
    ASSERT_TRUE(engine);
    ASSERT_EQ(engine->DoConvert(request()), result::kAccepted);
    EXPECT_EQ(waitForEnd(*engine), finish::kSucceeded);
    EXPECT_EQ(read("a.docx").substr(0, 2), "PK");
    EXPECT_THAT(read("run.log"), HasSubstr("pages:    all (3 of 3)"));
    EXPECT_THAT(read("run.log"), HasSubstr("result:   done"));
    EXPECT_TRUE(fs::is_empty(file("scratch"))) << "scratch files go with the job";
}

TEST_F(Library, AsksForPasswords) {
    ConversionRequest locked = request();
    locked.sourcePath = tests::testData("pdf/locked-and-no-copying-aes-128.pdf");
    EXPECT_EQ(createEngine()->DoConvert(locked), result::kUserPasswordNeeded);

    locked.flags |= flag::kUserPasswordAsked;
    locked.password = "s\u00e9same";
    EXPECT_EQ(createEngine()->DoConvert(locked), result::kOwnerPasswordNeeded);

    locked.flags |= flag::kOwnerPasswordAsked;
    locked.password = std::string("master") + kPasswordSeparator + "s\u00e9same";
    const auto engine = createEngine();
    EXPECT_EQ(engine->DoConvert(locked), result::kAccepted);
    EXPECT_EQ(waitForEnd(*engine), finish::kSucceeded);
}

TEST_F(Library, SaysThatTheTargetIsInUse) {
    makePdf(1);
    tests::writeFile(file("a.docx"), "old");
    const int descriptor = open(file("a.docx").c_str(), O_RDWR);
    ASSERT_EQ(flock(descriptor, LOCK_EX), 0);
    EXPECT_EQ(createEngine()->DoConvert(request()), result::kInUse);
    close(descriptor);
    EXPECT_EQ(read("a.docx"), "old");
}

TEST_F(Library, FailsOnARangeWithoutAPage) {
    makePdf(2);
    ConversionRequest outside = request();
    outside.flags &= ~flag::kAllPages;
    outside.pageRange = "3-9";
    EXPECT_EQ(createEngine()->DoConvert(outside), result::kFailed);
    EXPECT_THAT(read("run.log"), HasSubstr("result:   NoPageInRange"));
    EXPECT_THAT(read("run.log"), HasSubstr("3-9"));
}

TEST_F(Library, StopsWhenCancelledAndReleased) {
    makePdf(3000);
    tests::writeFile(file("a.docx"), "old");
    {
        const auto engine = createEngine();
        ASSERT_EQ(engine->DoConvert(request()), result::kAccepted);
        engine->DoCancel();
    }
    EXPECT_TRUE(waitFor([this] { return !read("run.log").empty(); }));
    EXPECT_THAT(read("run.log"), HasSubstr("result:   Cancelled"));
    EXPECT_TRUE(waitFor([this] { return !fs::exists(file("a.docx.part")); }));
    EXPECT_EQ(read("a.docx"), "old");
}

TEST_F(Library, FinishesWhenItIsReleasedWithoutACancel) {
    makePdf(200);
    {
        const auto engine = createEngine();
        ASSERT_EQ(engine->DoConvert(request()), result::kAccepted);
    }
    EXPECT_TRUE(waitFor([this] { return !read("run.log").empty(); }));
    EXPECT_THAT(read("run.log"), HasSubstr("result:   done"));
    EXPECT_EQ(read("a.docx").substr(0, 2), "PK");
}

TEST_F(Library, IsNoEngineWithoutItsWorker) {
    fs::copy_file(fs::path(ORVANE_BINARIES) / "liborvane.so", file("liborvane.so"));
    EXPECT_FALSE(createEngine(fs::path(file(""))));
    tests::writeFile(file("orvane-worker"), "");
    EXPECT_TRUE(createEngine(fs::path(file(""))));
}

TEST_F(Library, DoesNotHoldThePdfLibrary) {
    const std::string library = tests::readFile(fs::path(ORVANE_BINARIES) / "liborvane.so");
    EXPECT_THAT(library, HasSubstr("OrvaneCreateEngine"));
    EXPECT_THAT(library, testing::Not(HasSubstr("libpoppler")));
}

} // namespace
} // namespace orvane::component
