#include "engine/cli/ProgramTest.h"
#include "support/TestData.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace orvane::cli {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

/// Files and places that cannot be worked with: each gets its exit code and a message, and nothing is lost.
class BadInput : public ProgramTest {
protected:
    void expectRefused(const std::vector<std::string>& arguments, int exitCode, const std::string& message,
                       const tests::ProgramOptions& options = {}) const {
        const auto result = orvane(arguments, options);
        EXPECT_EQ(result.exitCode, exitCode) << result.errorOutput;
        EXPECT_THAT(result.errorOutput, HasSubstr(message));
        EXPECT_EQ(result.output, "");
        EXPECT_THAT(leftovers(), IsEmpty());
    }
};

TEST_F(BadInput, RefusesSourcesThatAreNoPdf) {
    write("text.pdf", "This is a letter, not a PDF.\n");
    write("empty.pdf", "");
    write("header.pdf", "%PDF-1.7\n");
    write("old.docx", "old");
    for (const char* name : {"text.pdf", "empty.pdf", "header.pdf"})
        expectRefused({"convert", path(name), path("old.docx")}, 4, name);
    EXPECT_EQ(read("old.docx"), "old");
}

TEST_F(BadInput, RefusesSourcesThatCannotBeRead) {
    expectRefused({"convert", path("missing.pdf"), path("a.docx")}, 4, "does not exist");
    expectRefused({"convert", path(""), path("a.docx")}, 4, "is not a file");
    expectRefused({"convert", "/proc/self/mem", path("a.docx")}, 4, "cannot be read");
    expectRefused({"info", path("missing.pdf")}, 4, "does not exist");
}

TEST_F(BadInput, RefusesAFileThatNoPasswordOpens) {
    std::string bytes = tests::readFile(makePdf("a.pdf"));
    const std::size_t root = bytes.rfind("/Root");
    ASSERT_NE(root, std::string::npos);
    write("a.pdf", bytes.insert(root, "/Encrypt << /Filter /Adobe.PubSec /V 4 >> "));
    expectRefused({"convert", path("a.pdf")}, 4, "locked by other means than a password");
}

TEST_F(BadInput, SavesWhatIsLeftOfATruncatedFile) {
    std::string bytes = tests::readFile(makePdf("a.pdf", 2));
    write("cut.pdf", bytes.substr(0, bytes.rfind("xref\n")));
    const auto result = orvane({"convert", path("cut.pdf"), path("cut.docx")});
    EXPECT_EQ(result.exitCode, 0) << result.errorOutput;
    EXPECT_THAT(result.output, HasSubstr("2 pages"));

    write("cut-short.pdf", bytes.substr(0, 40));
    expectRefused({"convert", path("cut-short.pdf"), path("cut-short.docx")}, 4, "cut-short.pdf");
}

TEST_F(BadInput, RefusesTargetsThatCannotBeWritten) {
    const std::string source = makePdf("a.pdf");
    std::filesystem::create_directory(path("folder.docx"));
    expectRefused({"convert", source, path("missing/a.docx")}, 5, "there is no folder");
    expectRefused({"convert", source, "/proc/a.docx"}, 5, "/proc/a.docx");
    expectRefused({"convert", source, path("folder.docx")}, 5, "not a file");
    expectRefused({"convert", source, "--out-dir", "/proc/out"}, 5, "/proc/out");
    expectRefused({"convert", source, source, "--to", "docx"}, 2, "overwrite itself");
    EXPECT_EQ(read("a.pdf").substr(0, 5), "%PDF-");
}

TEST_F(BadInput, RefusesATargetThatIsOpenElsewhere) {
    const std::string source = makePdf("a.pdf");
    write("a.docx", "old");
    const int descriptor = open(path("a.docx").c_str(), O_RDWR);
    ASSERT_EQ(flock(descriptor, LOCK_EX), 0);
    expectRefused({"convert", source, path("a.docx")}, 5, "held by another program");
    close(descriptor);
    EXPECT_EQ(read("a.docx"), "old");
}

TEST_F(BadInput, KeepsTheOldFileWhenTheDiskIsFull) {
    const std::string source = makePdf("a.pdf", 3);
    write("a.docx", "old");
    tests::ProgramOptions options;
    options.maxFileSize = 300;
    expectRefused({"convert", source, path("a.docx")}, 5, "a.docx", options);
    EXPECT_EQ(read("a.docx"), "old");
}

TEST_F(BadInput, EndsWhenTheDiskIsFullOfPictures) {
    makePdfWithPicture("a.pdf");
    tests::ProgramOptions options;
    options.maxFileSize = 8000;
    expectRefused({"convert", path("a.pdf")}, 5, "cannot write pictures", options);
    EXPECT_FALSE(exists("a.docx"));
}

TEST_F(BadInput, RefusesWhatMakesNoSense) {
    const std::string source = makePdf("a.pdf", 3);
    expectRefused({"convert", source, "--pages", "4-9"}, 2, "4-9");
    expectRefused({"convert", source, "--pages", "0"}, 2, "\"0\"");
    expectRefused({"convert", source, path("a.txt")}, 2, "a.txt");
    expectRefused({"convert", source, "--password-file", path("missing")}, 2, "missing");
    EXPECT_FALSE(exists("a.doc"));
    EXPECT_FALSE(exists("a.docx"));
}

TEST_F(BadInput, AsksForThePasswordOfALockedFile) {
    // The passwords stand in tests/data/pdf/make-locked.sh.
    const std::string locked = tests::testData("pdf/locked-aes-256.pdf").string();
    const std::string target = path("a.docx");
    write("right", "s\u00e9same\nnot this line\n");
    write("wrong", "open\n");
    expectRefused({"convert", locked, target}, 3, "--password-file");
    expectRefused({"convert", locked, target, "--password-file", path("wrong")}, 3, "--password-file");
    expectRefused({"info", locked}, 3, "--password-file");
    EXPECT_FALSE(exists("a.docx"));

    EXPECT_EQ(orvane({"convert", locked, target, "--password-file", path("right")}).exitCode, 0);
    tests::ProgramOptions options;
    options.environment["ORVANE_PASSWORD"] = "s\u00e9same";
    EXPECT_EQ(orvane({"info", locked}, options).exitCode, 0);
    EXPECT_EQ(orvane({"convert", locked, target, "--password-file", path("wrong")}, options).exitCode, 3)
        << "the file counts, not the variable";
}

TEST_F(BadInput, AsksForTheOwnersPasswordWhenCopyingIsForbidden) {
    const std::string guarded = tests::testData("pdf/no-copying-aes-256.pdf").string();
    tests::ProgramOptions owner;
    owner.environment["ORVANE_PASSWORD"] = "master";
    expectRefused({"convert", guarded, path("a.docx")}, 3, "owner's password");
    EXPECT_EQ(orvane({"convert", guarded, path("a.docx")}, owner).exitCode, 0);
}

TEST_F(BadInput, KeepsPasswordsOutOfSight) {
    tests::ProgramOptions options;
    options.environment["ORVANE_PASSWORD"] = "a-very-secret-word";
    const std::string locked = tests::testData("pdf/locked-aes-256.pdf").string();
    const auto result = orvane({"convert", locked, path("a.docx"), "--log", path("run.log"), "--json"}, options);
    EXPECT_EQ(result.exitCode, 3);
    for (const std::string& text : {result.output, result.errorOutput, read("run.log")})
        EXPECT_THAT(text, testing::Not(HasSubstr("a-very-secret-word")));
}

} // namespace
} // namespace orvane::cli
