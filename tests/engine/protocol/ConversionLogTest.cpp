#include "protocol/ConversionLog.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fmt/format.h>

namespace orvane::protocol {
namespace {

using testing::HasSubstr;
using testing::Not;

Job jobOf(const std::filesystem::path& log = {}) {
    Job job;
    job.source = "letter.pdf";
    job.target = "letter.docx";
    job.logPath = log.string();
    job.applicationName = "Tavrelion";
    return job;
}

LogRecord doneRecord() {
    LogRecord record;
    record.accepted = Accepted{10, 4};
    record.counts = Counts{120, 118, 3, 2, 1, 1, 2, 1};
    record.seconds = 1.234;
    return record;
}

TEST(ConversionLog, TellsWhatWasConverted) {
    Job job = jobOf();
    job.pageRange = "1-3,7";
    job.pictures = Pictures::Remove;
    const std::string text = formatLogRecord(job, doneRecord());
    EXPECT_THAT(text, HasSubstr("Tavrelion, Orvane " ORVANE_VERSION));
    EXPECT_THAT(text, HasSubstr("source:   letter.pdf\n"));
    EXPECT_THAT(text, HasSubstr("target:   letter.docx\n"));
    EXPECT_THAT(text, HasSubstr("pages:    1-3,7 (4 of 10)\n"));
    EXPECT_THAT(text, HasSubstr("layout flowing, format docx, pictures removed, character spacing automatic\n"));
    EXPECT_THAT(
        text,
        HasSubstr(
            "characters 120 read, 118 written; pictures 3 read, 2 written; links 1 read, 1 written; values of form "
            "fields 2 read, 1 written\n"));
    EXPECT_THAT(text, HasSubstr("time:     1.23 s\n"));
    EXPECT_THAT(text, HasSubstr("result:   done\n"));
    EXPECT_THAT(text, Not(HasSubstr("notes:")));
}

TEST(ConversionLog, TellsWhichPicturesWereTakenOut) {
    Job job = jobOf();
    job.layout = Layout::Images;
    job.imageFormat = ImageFileFormat::Tiff;
    LogRecord record = doneRecord();
    record.pictures = {{"letter-p001-01.tif", 300, 200, {1, 2, 3, 7}, {{12, 0, 0}}},
                       {"letter-p002-01.tif", 30, 20, {2}, {{13, 0, 0}, {14, 0, 10}}},
                       {"a\nresult:   done.tif", 1, 1, {3}, {{15, 0, 0}}}};
    const std::string text = formatLogRecord(job, record);
    EXPECT_THAT(text, HasSubstr("options:  layout images, format tiff\n"));
    EXPECT_THAT(text, HasSubstr("picture:  letter-p001-01.tif, 300 x 200 pixels, pages 1-3, 7\n"));
    EXPECT_THAT(text, HasSubstr("picture:  letter-p002-01.tif, 30 x 20 pixels, page 2, 2 pieces\n"));
    EXPECT_THAT(text, HasSubstr("picture:  a result:   done.tif, 1 x 1 pixels, page 3\n"));
    EXPECT_THAT(text, HasSubstr("counts:   pictures 3 read, 2 written\n"));
}

TEST(ConversionLog, TellsWhyAConversionFailed) {
    LogRecord record;
    record.failure = Failed{FailureCode::NotAPdf, "no pages", {3, 17}};
    const std::string text = formatLogRecord(jobOf(), record);
    EXPECT_THAT(text, HasSubstr("pages:    all\n"));
    EXPECT_THAT(text, HasSubstr("result:   NotAPdf: no pages (page 3) (object 17)\n"));
    EXPECT_THAT(text, Not(HasSubstr("done")));
}

TEST(ConversionLog, JoinsEqualDiagnosticsOfSeveralPages) {
    LogRecord record = doneRecord();
    for (const int page : {1, 2, 2, 3, 7})
        record.diagnostics.push_back({DiagnosticKind::FontSubstituted, page, {}, "Foo is not embedded"});
    record.diagnostics.push_back({DiagnosticKind::PagesOutOfRange, 0, {}, "the range was cut"});
    const std::string text = formatLogRecord(jobOf(), record);
    EXPECT_THAT(text, HasSubstr("notes:    6\n"));
    EXPECT_THAT(text, HasSubstr("  FontSubstituted: Foo is not embedded (pages 1-3, 7), 5 times\n"));
    EXPECT_THAT(text, HasSubstr("  PagesOutOfRange: the range was cut\n"));
}

TEST(ConversionLog, StaysReadableWithAFloodOfDiagnostics) {
    LogRecord record = doneRecord();
    for (int i = 0; i < 100000; ++i)
        record.diagnostics.push_back(
            {DiagnosticKind::ContentDamaged, 1 + i, {}, fmt::format("object {} is broken", i)});
    const std::string text = formatLogRecord(jobOf(), record);
    EXPECT_THAT(text, HasSubstr("notes:    100000\n"));
    EXPECT_THAT(text, HasSubstr("object 0 is broken (page 1)\n"));
    EXPECT_THAT(text, HasSubstr("  ContentDamaged: and 99960 more\n"));
    EXPECT_LT(text.size(), 4000u);
}

TEST(ConversionLog, CannotBeForgedByNames) {
    Job job = jobOf();
    job.source = "a.pdf\nresult:   done";
    LogRecord record;
    record.failure = Failed{FailureCode::NotAPdf, "bad\nresult:   done", {}};
    const std::string text = formatLogRecord(job, record);
    EXPECT_THAT(text, Not(HasSubstr("\nresult:   done")));
}

TEST(ConversionLog, IsAppendedTo) {
    const tests::TemporaryFolder folder;
    const std::filesystem::path log = folder.path() / "run.log";
    tests::writeFile(log, "older\n");
    EXPECT_TRUE(appendToLog(jobOf(log), doneRecord()));
    EXPECT_TRUE(appendToLog(jobOf(log), doneRecord()));
    const std::string record = formatLogRecord(jobOf(log), doneRecord());
    EXPECT_EQ(tests::readFile(log), "older\n" + record + record);
}

TEST(ConversionLog, IsNotMissedWhenItCannotBeWritten) {
    const tests::TemporaryFolder folder;
    EXPECT_FALSE(appendToLog(jobOf(folder.path()), doneRecord())) << "a folder is no log";
    EXPECT_TRUE(appendToLog(jobOf(), doneRecord())) << "no log was asked for";
}

} // namespace
} // namespace orvane::protocol
