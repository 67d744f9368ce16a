#include "protocol/WorkerProcess.h"
#include "support/Files.h"
#include "support/PdfBuilder.h"
#include "support/ProgramRun.h"
#include "support/TemporaryFolder.h"
#include "worker/BuildKind.h"

#include <gmock/gmock.h>

namespace orvane::worker {
namespace {

using namespace protocol;
using namespace std::chrono_literals;
using testing::HasSubstr;
namespace fs = std::filesystem;

const fs::path kProgram = fs::path(ORVANE_BINARIES) / "orvane-worker";

/// The built worker, started as its starters do.
class WorkerProgram : public testing::Test {
protected:
    Job job() const {
        Job result;
        result.source = file("a.pdf");
        result.target = file("a.docx");
        result.logPath = file("run.log");
        result.scratchFolder = file("scratch");
        return result;
    }

    static Message lastMessageOf(const Job& job) {
        WorkerProcess worker(kProgram, job);
        Message last;
        while (!worker.hasEnded())
            if (auto message = worker.next(60s))
                last = std::move(*message);
        return last;
    }

    void expectNothingLeft() const {
        EXPECT_FALSE(fs::exists(file("a.docx")));
        EXPECT_FALSE(fs::exists(file("a.docx.part")));
        EXPECT_TRUE(!fs::exists(file("scratch")) || fs::is_empty(file("scratch")));
    }

    std::string file(const char* name) const { return (m_folder.path() / name).string(); }

private:
    tests::TemporaryFolder m_folder;
};

TEST_F(WorkerProgram, StopsWhenItsTimeIsOver) {
    std::string content = "BT /F1 6 Tf 6 TL 36 770 Td ";
    for (int line = 0; line < 110; ++line)
        content += "(A line of words that go on and on, so that there is a lot to read on this page.) Tj T* ";
    tests::PdfBuilder pdf;
    for (int page = 0; page < 2000; ++page)
        pdf.page(content + "ET");
    pdf.write(file("a.pdf"));
    Job limited = job();
    limited.limits.seconds = 1;
    const auto failed = std::get<Failed>(lastMessageOf(limited));
    EXPECT_EQ(failed.code, FailureCode::LimitExceeded);
    EXPECT_THAT(failed.message, HasSubstr("1 seconds"));
    EXPECT_THAT(tests::readFile(file("run.log")), HasSubstr("result:   LimitExceeded"));
    expectNothingLeft();
}

TEST_F(WorkerProgram, EndsWhenItsMemoryIsUsedUp) {
    std::string content = "BT /F1 6 Tf 36 770 Td ";
    for (int line = 0; line < 20000; ++line)
        content += "(" + std::string(100, 'x') + ") Tj ";
    tests::PdfBuilder pdf;
    pdf.page(content + "ET");
    pdf.write(file("a.pdf"));
    Job limited = job();
    limited.limits.memoryMegabytes = 300;
    const Message last = lastMessageOf(limited);
    if (kBuildKind == BuildKind::Sanitized) { // which has no such limit
        EXPECT_TRUE(std::holds_alternative<Finished>(last));
        return;
    }
    EXPECT_EQ(std::get<Failed>(last).code, FailureCode::LimitExceeded);
    EXPECT_THAT(std::get<Failed>(last).message, HasSubstr("300 MB"));
    EXPECT_THAT(tests::readFile(file("run.log")), HasSubstr("result:   LimitExceeded"));
    expectNothingLeft();
}

TEST_F(WorkerProgram, IsNotForUseByHand) {
    tests::writeFile(file("input"), "convert this\n");
    const auto result = tests::runProgram("/bin/sh", {"-c", "\"$0\" < \"$1\"", kProgram.string(), file("input")});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errorOutput, HasSubstr("started by other programs"));
}

} // namespace
} // namespace orvane::worker
