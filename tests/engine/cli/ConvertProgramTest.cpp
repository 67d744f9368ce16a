#include "engine/cli/ProgramTest.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace orvane::cli {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ConvertProgram : public ProgramTest {};

TEST_F(ConvertProgram, WritesADocument) {
    const auto result = orvane({"convert", makePdf("a.pdf", 2), path("b.docx")});
    EXPECT_EQ(result.exitCode, 0) << result.errorOutput;
    EXPECT_THAT(result.output, HasSubstr("b.docx: 2 pages"));
    EXPECT_EQ(result.errorOutput, "") << "there is no progress bar in a pipe";
    EXPECT_TRUE(isZip(read("b.docx")));
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(ConvertProgram, WritesBesideTheSourceUnlessToldWhere) {
    EXPECT_EQ(orvane({"convert", makePdf("a.pdf")}).exitCode, 0);
    EXPECT_TRUE(isZip(read("a.docx")));
}

TEST_F(ConvertProgram, ShowsAProgressBarOnATerminal) {
    tests::ProgramOptions options;
    options.hasTerminal = true;
    const auto result = orvane({"convert", makePdf("a.pdf", 3), path("b.docx")}, options);
    EXPECT_THAT(result.errorOutput, HasSubstr("] 3 of 3 pages"));
}

TEST_F(ConvertProgram, TakesTheAskedPagesOnly) {
    const auto result = orvane({"convert", makePdf("a.pdf", 9), path("b.docx"), "--pages", "2-3,8-20", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.errorOutput;
    const json object = json::parse(result.output);
    EXPECT_EQ(object["pageCount"], 9);
    EXPECT_EQ(object["selectedPages"], 4);
    EXPECT_EQ(object["notes"][0]["kind"], "PagesOutOfRange");
}

TEST_F(ConvertProgram, CountsWhatItReadAndWrote) {
    const auto result = orvane({"convert", makePdf("a.pdf"), path("b.docx"), "--json"});
    const json counts = json::parse(result.output)["counts"];
    EXPECT_EQ(counts["charactersRead"], 29);
    EXPECT_EQ(counts["charactersWritten"], 29);
}

TEST_F(ConvertProgram, KeepsARecordOfEachConversion) {
    const std::string source = makePdf("a.pdf");
    write("bad.pdf", "not a PDF");
    EXPECT_EQ(orvane({"convert", source, path("b.docx"), "--log", path("run.log")}).exitCode, 0);
    EXPECT_EQ(orvane({"convert", path("bad.pdf"), path("c.docx"), "--log", path("run.log")}).exitCode, 4);
    const std::string log = read("run.log");
    EXPECT_THAT(log, HasSubstr("source:   " + source));
    EXPECT_THAT(log, HasSubstr("pages:    all (1 of 1)"));
    EXPECT_THAT(log, HasSubstr("characters 29 read, 29 written"));
    EXPECT_THAT(log, HasSubstr("result:   done"));
    EXPECT_THAT(log, HasSubstr("result:   NotAPdf"));
}

TEST_F(ConvertProgram, ConvertsASelectionAndTriesAllOfIt) {
    std::filesystem::create_directory(path("other"));
    const std::string first = makePdf("a.pdf");
    const std::string second = makePdf("other/a.pdf", 2);
    write("bad.pdf", "not a PDF");
    const auto result = orvane({"convert", first, path("missing.pdf"), path("bad.pdf"), second, "--out-dir",
                                path("new/out"), "--to", "docx", "--jobs", "2"});
    EXPECT_EQ(result.exitCode, 4) << "that of the first failure";
    EXPECT_TRUE(isZip(read("new/out/a.docx")));
    EXPECT_TRUE(isZip(read("new/out/a-2.docx")));
    EXPECT_THAT(result.output, HasSubstr("a-2.docx: 2 pages"));
    EXPECT_THAT(result.errorOutput, HasSubstr("missing.pdf does not exist"));
    EXPECT_THAT(result.errorOutput, HasSubstr("bad.pdf"));
}

TEST_F(ConvertProgram, PrintsAJsonObjectForEachFile) {
    write("bad.pdf", "not a PDF");
    const auto result = orvane({"convert", makePdf("a.pdf"), path("bad.pdf"), "--out-dir", path("out"), "--json"});
    std::istringstream lines(result.output);
    std::map<std::string, int> exitCodes;
    for (std::string line; std::getline(lines, line);) {
        const json object = json::parse(line);
        exitCodes[std::filesystem::path(object["source"].get<std::string>()).filename()] = object["exitCode"];
    }
    EXPECT_EQ(exitCodes, (std::map<std::string, int>{{"a.pdf", 0}, {"bad.pdf", 4}}));
}

TEST_F(ConvertProgram, KeepsThePlaceOfAPageThatCannotBeRead) {
    std::string bytes = tests::readFile(makePdf("a.pdf", 2));
    const std::size_t count = bytes.find("/Count 2");
    ASSERT_NE(count, std::string::npos);
    write("a.pdf", bytes.replace(count, 8, "/Count 3"));
    const auto result = orvane({"convert", path("a.pdf"), path("b.docx"), "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.errorOutput;
    const json object = json::parse(result.output);
    EXPECT_EQ(object["selectedPages"], 3);
    EXPECT_EQ(object["counts"]["charactersWritten"], 2 * 29);
    EXPECT_EQ(object["notes"][0]["kind"], "PageUnreadable") << result.output;
    EXPECT_EQ(object["notes"][0]["pages"], json({3}));
}

TEST_F(ConvertProgram, LeavesPicturesOutWhenAskedTo) {
    makePdfWithPicture("a.pdf");
    const auto with = orvane({"convert", path("a.pdf"), path("with.docx"), "--json"});
    const auto without = orvane({"convert", path("a.pdf"), path("without.docx"), "--json", "--no-images"});
    EXPECT_EQ(json::parse(with.output)["counts"]["picturesWritten"], 1) << with.output;
    EXPECT_EQ(json::parse(without.output)["counts"]["picturesWritten"], 0) << without.output;
    EXPECT_GT(read("with.docx").size(), 30000u);
    EXPECT_LT(read("without.docx").size(), 30000u);
}

TEST_F(ConvertProgram, DoesNotHoldThePdfLibrary) {
    // The library parses what strangers wrote, and does so in the worker alone.
    EXPECT_THAT(tests::readFile(binaries() / "orvane-worker"), HasSubstr("libpoppler"));
    EXPECT_THAT(tests::readFile(binaries() / "orvane"), Not(HasSubstr("libpoppler")));
}

} // namespace
} // namespace orvane::cli
