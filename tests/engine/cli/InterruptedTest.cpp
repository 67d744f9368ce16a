#include "engine/cli/ProgramTest.h"
#include "support/FakeWorker.h"

#include <gmock/gmock.h>

#include <chrono>
#include <csignal>
#include <thread>

namespace orvane::cli {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::RunningProgram;
using tests::say;
using Whom = RunningProgram::Whom;

/// Conversions that do not come to their end.
class Interrupted : public ProgramTest {
protected:
    /// A PDF that takes seconds.
    std::string makeLongPdf() const {
        std::string content = "BT /F1 6 Tf 6 TL 36 770 Td ";
        for (int line = 0; line < 110; ++line)
            content += "(A line of words that go on and on, so that there is a lot to read on this page, " +
                       std::to_string(line) + ".) Tj T* ";
        tests::PdfBuilder pdf;
        for (int page = 0; page < 300; ++page)
            pdf.page(content + "ET");
        pdf.write(path("long.pdf"));
        return path("long.pdf");
    }

    std::vector<std::string> convertLong() const { return {"convert", path("long.pdf"), path("a.docx")}; }

    /// A copy of the program with a worker of the test's own beside it.
    std::filesystem::path orvaneWithWorker(const std::string& commands) const {
        std::filesystem::copy_file(binaries() / "orvane", path("orvane"));
        tests::writeFakeWorker(path(""), commands);
        return path("orvane");
    }
};

TEST_F(Interrupted, StopsCleanlyAtCtrlC) {
    makeLongPdf();
    write("a.docx", "old");
    RunningProgram program(binaries() / "orvane", convertLong());
    ASSERT_TRUE(waitFor([this] { return exists("a.docx.part"); }));
    program.send(SIGINT, Whom::WholeGroup); // as a terminal does
    const auto result = program.wait();
    EXPECT_EQ(result.exitCode, 6);
    EXPECT_THAT(result.errorOutput, HasSubstr("cancelled"));
    EXPECT_EQ(read("a.docx"), "old");
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(Interrupted, StartsNoMoreFilesAfterCtrlC) {
    makeLongPdf();
    RunningProgram program(binaries() / "orvane",
                           {"convert", path("long.pdf"), makePdf("b.pdf"), "--out-dir", path("out"), "--jobs", "1"});
    ASSERT_TRUE(waitFor([this] { return exists("out/long.docx.part"); }));
    program.send(SIGTERM);
    EXPECT_EQ(program.wait().exitCode, 6);
    EXPECT_TRUE(std::filesystem::is_empty(path("out")));
}

TEST_F(Interrupted, KeepsTheOldFileWhereverItIsKilled) {
    makeLongPdf();
    // From the program's first steps to the middle of the pages.
    for (const auto delay : {0ms, 5ms, 20ms, 60ms, 150ms, 400ms}) {
        write("a.docx", "old");
        RunningProgram program(binaries() / "orvane", convertLong());
        std::this_thread::sleep_for(delay);
        program.send(SIGKILL, Whom::WholeGroup);
        program.wait();
        EXPECT_EQ(read("a.docx"), "old") << delay.count();
    }
    // A job that dies with its starter cannot clean up; the next one does, once the system has ended the killed worker
    // and its lock is gone.
    write("a.docx.part", "half");
    const auto source = makePdf("b.pdf");
    EXPECT_TRUE(waitFor([&] { return orvane({"convert", source, path("a.docx")}).exitCode == 0; }));
    EXPECT_TRUE(isZip(read("a.docx")));
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(Interrupted, CleansUpBehindAWorkerThatIsKilled) {
    makeLongPdf();
    write("a.docx", "old");
    auto arguments = convertLong();
    arguments.insert(arguments.end(), {"--log", path("run.log")});
    RunningProgram program(binaries() / "orvane", arguments);
    ASSERT_TRUE(waitFor([this] { return exists("a.docx.part"); }));
    ASSERT_EQ(program.children().size(), 1u);
    kill(program.children().front(), SIGKILL);
    const auto result = program.wait();
    EXPECT_EQ(result.exitCode, 7);
    EXPECT_THAT(result.errorOutput, HasSubstr("signal 9"));
    EXPECT_EQ(read("a.docx"), "old");
    EXPECT_THAT(leftovers(), IsEmpty());
    EXPECT_THAT(read("run.log"), HasSubstr("result:   WorkerDied"));
}

TEST_F(Interrupted, EndsTheWorkerWithItsStarter) {
    makeLongPdf();
    write("a.docx", "old");
    RunningProgram program(binaries() / "orvane", convertLong());
    ASSERT_TRUE(waitFor([this] { return exists("a.docx.part"); }));
    program.send(SIGKILL);
    program.wait();
    EXPECT_TRUE(waitFor([this] { return !exists("a.docx.part"); })) << "the worker cleans up behind itself";
    EXPECT_EQ(read("a.docx"), "old");
}

TEST_F(Interrupted, RefusesATargetThatAnotherRunIsWriting) {
    makeLongPdf();
    RunningProgram first(binaries() / "orvane", convertLong());
    ASSERT_TRUE(waitFor([this] { return exists("a.docx.part"); }));
    const auto second = orvane({"convert", makePdf("b.pdf"), path("a.docx")});
    EXPECT_EQ(second.exitCode, 5);
    EXPECT_THAT(second.errorOutput, HasSubstr("another conversion"));
    EXPECT_TRUE(exists("a.docx.part"));
    first.send(SIGINT);
    EXPECT_EQ(first.wait().exitCode, 6);
}

TEST_F(Interrupted, SaysWhenThereIsNoWorker) {
    std::filesystem::copy_file(binaries() / "orvane", path("orvane"));
    const auto result = tests::runProgram(path("orvane"), {"convert", makePdf("a.pdf"), "--log", path("run.log")});
    EXPECT_EQ(result.exitCode, 7);
    EXPECT_THAT(result.errorOutput, HasSubstr("orvane-worker"));
    EXPECT_THAT(read("run.log"), HasSubstr("result:   WorkerDied"));
}

TEST_F(Interrupted, SurvivesAWorkerThatCrashes) {
    const auto program = orvaneWithWorker(say(tests::kAcceptedLine) + "echo 'all is lost' >&2\nkill -SEGV $$\n");
    const auto result = tests::runProgram(program, {"convert", makePdf("a.pdf")});
    EXPECT_EQ(result.exitCode, 7);
    EXPECT_THAT(result.errorOutput, HasSubstr("all is lost"));
}

TEST_F(Interrupted, SurvivesAWorkerThatLies) {
    const auto program = orvaneWithWorker("head -c 1000000 /dev/urandom\n");
    EXPECT_EQ(tests::runProgram(program, {"convert", makePdf("a.pdf")}).exitCode, 7);
}

TEST_F(Interrupted, HandsPasswordsOverInPrivate) {
    const auto program = orvaneWithWorker("tr '\\0' ' ' < /proc/$$/cmdline > '" + path("arguments") + "'\n");
    tests::ProgramOptions options;
    options.environment["ORVANE_PASSWORD"] = "a-very-secret-word";
    tests::runProgram(program, {"convert", makePdf("a.pdf")}, options);
    EXPECT_THAT(read("job"), HasSubstr("a-very-secret-word"));
    EXPECT_THAT(read("arguments"), testing::Not(HasSubstr("a-very-secret-word")));
}

} // namespace
} // namespace orvane::cli
