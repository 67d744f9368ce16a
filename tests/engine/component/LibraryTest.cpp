#include "orvane/ConversionEngine.h"
#include "support/Files.h"
#include "support/PdfBuilder.h"
#include "support/TemporaryFolder.h"
#include "support/TestData.h"

#include <gmock/gmock.h>

#include <chrono>
#include <thread>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace orvane::component {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
namespace fs = std::filesystem;

/// The built library, loaded and used as an application does.
class Library : public testing::Test {
protected:
    static std::unique_ptr<ConversionEngine> createEngine(const fs::path& folder = ORVANE_BINARIES) {
        void* library = dlopen((folder / "liborvane.so").c_str(), RTLD_NOW | RTLD_LOCAL);
        if (library == nullptr)
            throw std::runtime_error(dlerror());
        const auto create = reinterpret_cast<OrvaneCreateEngineFunction>(dlsym(library, "OrvaneCreateEngine"));
        return std::unique_ptr<ConversionEngine>(create());
    }

    ConversionRequest request() const {
        ConversionRequest result;
        result.sourcePath = file("a.pdf");
        result.flags = flag::kAllPages | flag::kWordFormat | flag::kDocx;
        result.targetPath = file("a.docx");
        result.logPath = file("run.log");
        result.temporaryFolder = file("scratch");
        result.applicationName = "Tavrelion";
        return result;
    }

    void makePdf(int pages) const {
        tests::PdfBuilder pdf;
        for (int page = 0; page < pages; ++page)
            pdf.page("BT /F1 12 Tf 72 720 Td (A page with a line.) Tj ET");
        pdf.write(file("a.pdf"));
    }

    static std::int16_t waitForEnd(ConversionEngine& engine) {
        const auto end = std::chrono::steady_clock::now() + 60s;
        std::int32_t first = 0;
        std::int32_t second = 0;
        std::int16_t finishCode = finish::kWorking;
        while (finishCode == finish::kWorking && std::chrono::steady_clock::now() < end) {
            engine.GetStatus(first, second, finishCode);
            std::this_thread::sleep_for(5ms);
        }
        return finishCode;
    }

    template<typename Condition>
    static bool waitFor(Condition condition) {
        const auto end = std::chrono::steady_clock::now() + 60s;
        while (!condition() && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(5ms);
        return condition();
    }

    std::string file(const std::string& name) const { return (m_folder.path() / name).string(); }
    std::string read(const std::string& name) const { return tests::readFile(file(name)); }

private:
    tests::TemporaryFolder m_folder;
};

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
