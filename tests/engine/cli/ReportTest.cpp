#include "cli/Report.h"
#include "cli/Progress.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace orvane::cli {
namespace {

using namespace protocol;
using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

Outcome doneOutcome() {
    Outcome outcome;
    outcome.job.source = "a.pdf";
    outcome.job.target = "a.docx";
    outcome.accepted = Accepted{10, 4};
    outcome.finished = Finished{{120, 118, 3, 2, 1, 1}, 0, 1.5};
    return outcome;
}

Outcome failedOutcome(FailureCode code) {
    Outcome outcome;
    outcome.job.source = "a.pdf";
    outcome.failure = Failed{code, "why", {7, 0}};
    return outcome;
}

TEST(ExitCode, StandsForEachFailure) {
    struct Row {
        FailureCode failure;
        int code;
    };
    const Row rows[] = {
        {FailureCode::InvalidRequest, 2},
        {FailureCode::NotSupported, 2},
        {FailureCode::NoPageInRange, 2},
        {FailureCode::UserPasswordNeeded, 3},
        {FailureCode::OwnerPasswordNeeded, 3},
        {FailureCode::SourceUnreadable, 4},
        {FailureCode::NotAPdf, 4},
        {FailureCode::TargetUnwritable, 5},
        {FailureCode::TargetInUse, 5},
        {FailureCode::Cancelled, 6},
        {FailureCode::LimitExceeded, 7},
        {FailureCode::WorkerDied, 7},
        {FailureCode::Internal, 7},
    };
    for (const Row& row : rows)
        EXPECT_EQ(static_cast<int>(exitCodeFor(row.failure)), row.code) << toString(row.failure);
    EXPECT_EQ(exitCodeOf(doneOutcome()), ExitCode::Done);
}

TEST(Report, TellsOfADocumentInALine) {
    Outcome outcome = doneOutcome();
    EXPECT_EQ(successLine(outcome), "a.docx: 4 pages");
    outcome.finished->diagnostics = 1;
    EXPECT_EQ(successLine(outcome), "a.docx: 4 pages, 1 note (--log FILE keeps them)");
    outcome.job.logPath = "run.log";
    EXPECT_EQ(successLine(outcome), "a.docx: 4 pages, 1 note (see the log)");
}

TEST(Report, SaysWhatCanBeDoneAboutAPassword) {
    EXPECT_THAT(failureLine(failedOutcome(FailureCode::UserPasswordNeeded)), HasSubstr("--password-file"));
    EXPECT_THAT(failureLine(failedOutcome(FailureCode::OwnerPasswordNeeded)), HasSubstr("owner's password"));
}

TEST(Report, NamesAFileOnce) {
    Outcome outcome = failedOutcome(FailureCode::NotAPdf);
    EXPECT_EQ(failureLine(outcome), "orvane: a.pdf: why");
    outcome.failure->message = "a.pdf is empty";
    EXPECT_EQ(failureLine(outcome), "orvane: a.pdf is empty");
}

TEST(Report, TellsOfADocumentAsJson) {
    Outcome outcome = doneOutcome();
    outcome.diagnostics = {{DiagnosticKind::FontSubstituted, 2, {}, "Foo"},
                           {DiagnosticKind::FontSubstituted, 1, {}, "Foo"}};
    const json object = json::parse(conversionJson(outcome));
    EXPECT_EQ(object["source"], "a.pdf");
    EXPECT_EQ(object["target"], "a.docx");
    EXPECT_EQ(object["result"], "done");
    EXPECT_EQ(object["exitCode"], 0);
    EXPECT_EQ(object["pageCount"], 10);
    EXPECT_EQ(object["selectedPages"], 4);
    EXPECT_EQ(object["counts"]["charactersWritten"], 118);
    EXPECT_EQ(object["notes"], json::parse(R"([{"kind":"FontSubstituted","message":"Foo","pages":[1,2],"count":2}])"));
}

TEST(Report, TellsOfAFailureAsJson) {
    const json object = json::parse(conversionJson(failedOutcome(FailureCode::LimitExceeded)));
    EXPECT_EQ(object["result"], "LimitExceeded");
    EXPECT_EQ(object["exitCode"], 7);
    EXPECT_EQ(object["message"], "why");
    EXPECT_EQ(object["page"], 7);
    EXPECT_FALSE(object.contains("counts"));
}

TEST(Report, IsJsonWhateverTheFilesAreCalled) {
    Outcome outcome = doneOutcome();
    outcome.job.source = "a\xff\n.pdf";
    EXPECT_EQ(json::parse(conversionJson(outcome))["source"], "a\uFFFD\n.pdf");
}

TEST(Report, TellsWhatAFileIs) {
    Outcome outcome = doneOutcome();
    outcome.source = SourceReport{};
    outcome.source->pdfVersion = "1.7";
    outcome.source->title = "On Growth";
    outcome.pages = {{1, 595.28, 841.89, 0, "i"}, {2, 595.28, 841.89, 0, "ii"}};
    std::string text = infoText(outcome);
    EXPECT_THAT(text, HasSubstr("pages       10\n"));
    EXPECT_THAT(text, HasSubstr("page size   210 x 297 mm\n"));
    EXPECT_THAT(text, HasSubstr("title       On Growth\n"));
    EXPECT_THAT(text, HasSubstr("encrypted   no\n"));
    EXPECT_THAT(text, Not(HasSubstr("author"))) << "what the file does not say is left out";
    outcome.pages.push_back({3, 841.89, 595.28, 0, "1"});
    EXPECT_THAT(infoText(outcome), HasSubstr("page size   210 x 297 mm and 1 size more\n"));

    const json object = json::parse(infoJson(outcome));
    EXPECT_EQ(object["pageCount"], 10);
    EXPECT_EQ(object["pages"].size(), 3u);
    EXPECT_EQ(object["pages"][1]["label"], "ii");
}

TEST(Progress, FillsItsBar) {
    EXPECT_EQ(progressLine(0, 10, "pages"), "[------------------------------] 0 of 10 pages");
    EXPECT_EQ(progressLine(5, 10, "pages"), "[###############---------------] 5 of 10 pages");
    EXPECT_EQ(progressLine(10, 10, "pages"), "[##############################] 10 of 10 pages");
    EXPECT_EQ(progressLine(9, 3, "files"), "[##############################] 9 of 3 files");
    EXPECT_EQ(progressLine(0, 0, "files"), "[------------------------------] 0 of 0 files");
}

TEST(Progress, LeavesTheLineEmpty) {
    std::ostringstream out;
    Progress(out, Audience::Terminal).show(10, 10, "pages");
    const std::string line = progressLine(10, 10, "pages");
    EXPECT_EQ(out.str(), "\r" + line + "\r" + std::string(line.size(), ' ') + "\r");
}

TEST(Progress, DrawsNothingForNobody) {
    std::ostringstream out;
    Progress(out, Audience::Nobody).show(1, 2, "pages");
    EXPECT_EQ(out.str(), "");
}

} // namespace
} // namespace orvane::cli
