#include "support/Files.h"
#include "support/ForkedProcess.h"
#include "support/TemporaryFolder.h"
#include "worker/JobPlaces.h"

#include <gmock/gmock.h>

#include <cstdio>

namespace orvane::worker {
namespace {

namespace fs = std::filesystem;

bool canMake(const fs::path& file) {
    FILE* stream = std::fopen(file.c_str(), "w");
    return stream != nullptr && std::fclose(stream) == 0;
}

bool canAppend(const fs::path& file) {
    FILE* stream = std::fopen(file.c_str(), "a");
    return stream != nullptr && std::fclose(stream) == 0;
}

class WriteFence : public testing::Test {
protected:
    WriteFence() {
        fs::create_directory(inside());
        fs::create_directory(outside());
        tests::writeFile(outside() / "file", "text");
        tests::writeFile(outside() / "log", "text");
    }

    fs::path inside() const { return m_folder.path() / "inside"; }
    fs::path outside() const { return m_folder.path() / "outside"; }

    /// Whether `action` is true of a process that may write to the inside and the log only. Where the system has no
    /// fence, the process is as free as before; then whatever is said of the outside is not put to the test.
    template<typename Action>
    bool holdsBehindTheFence(Action action) const {
        return tests::inForkedProcess([&] {
                   const Sandbox fence = fenceWrites({{inside() / "new" / "folder", inside()}, {outside() / "log"}});
                   return action(fence == Sandbox::Closed) ? 0 : 1;
               }) == 0;
    }

private:
    tests::TemporaryFolder m_folder;
};

TEST_F(WriteFence, LeavesTheInsideFree) {
    EXPECT_TRUE(holdsBehindTheFence([&](bool) {
        fs::create_directories(inside() / "new" / "folder");
        const bool isMade = canMake(inside() / "new" / "folder" / "a");
        fs::rename(inside() / "new" / "folder" / "a", inside() / "b");
        return isMade && canAppend(inside() / "b") && fs::remove(inside() / "b");
    }));
}

TEST_F(WriteFence, ClosesTheOutside) {
    EXPECT_TRUE(holdsBehindTheFence([&](bool isClosed) {
        std::error_code error;
        const bool isKept = !canMake(outside() / "new") && !canAppend(outside() / "file") &&
                            !fs::create_directory(outside() / "folder", error) &&
                            !fs::remove(outside() / "file", error);
        return isKept == isClosed;
    }));
}

TEST_F(WriteFence, LetsEverythingBeRead) {
    EXPECT_TRUE(holdsBehindTheFence([&](bool) { return tests::readFile(outside() / "file") == "text"; }));
}

TEST_F(WriteFence, LetsTheLogBeWritten) {
    EXPECT_TRUE(holdsBehindTheFence([&](bool) { return canAppend(outside() / "log"); }));
}

TEST(JobPlaces, AreThoseTheJobNames) {
    const tests::TemporaryFolder folder;
    protocol::Job job;
    job.target = "/documents/a.docx";
    job.scratchFolder = "/scratch";
    job.logPath = folder.path() / "run.log";
    const WritablePlaces places = placesOf(job);
    EXPECT_THAT(places.folders, testing::ElementsAre("/documents", "/scratch"));
    EXPECT_THAT(places.files, testing::ElementsAre(folder.path() / "run.log"));
    EXPECT_TRUE(fs::exists(folder.path() / "run.log")) << "it cannot be made later";

    job.target = "a.docx";
    EXPECT_EQ(placesOf(job).folders.front(), ".");
    job.task = protocol::Task::Inspect;
    EXPECT_TRUE(placesOf(job).folders.empty()) << "nothing is written";
}

} // namespace
} // namespace orvane::worker
