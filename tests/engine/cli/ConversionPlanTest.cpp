#include "cli/ConversionPlan.h"
#include "cli/UsageError.h"

#include <gtest/gtest.h>

namespace orvane::cli {
namespace {

using protocol::Format;
using protocol::Job;

TEST(ConversionPlan, PutsTheDocumentWhereItIsWanted) {
    struct Row {
        std::vector<std::string> files;
        std::optional<Format> format;
        const char* target;
        Format expected;
        const char* why;
    };
    const Row rows[] = {
        {{"dir/a.pdf"}, {}, "dir/a.docx", Format::Docx, "beside the source"},
        {{"a.PDF"}, {}, "a.docx", Format::Docx, "whatever the case of its name"},
        {{"a"}, {}, "a.docx", Format::Docx, "a source without an extension"},
        {{"a.pdf"}, Format::Rtf, "a.rtf", Format::Rtf, "in the format asked for"},
        {{"a.pdf", "x/b.DOC"}, {}, "x/b.DOC", Format::Doc, "the format by the target's name"},
        {{"a.pdf", "b"}, Format::Docx, "b", Format::Docx, "the format as said, whatever the name"},
    };
    for (const Row& row : rows) {
        ConvertOptions options;
        options.files = row.files;
        options.format = row.format;
        const std::vector<Job> jobs = planConversions(options, "");
        ASSERT_EQ(jobs.size(), 1u) << row.why;
        EXPECT_EQ(jobs[0].source, row.files[0]) << row.why;
        EXPECT_EQ(jobs[0].target, row.target) << row.why;
        EXPECT_EQ(jobs[0].format, row.expected) << row.why;
    }
}

TEST(ConversionPlan, DoesNotGuessAFormat) {
    for (const char* target : {"b", "b.txt", "docx"}) {
        ConvertOptions options;
        options.files = {"a.pdf", target};
        EXPECT_THROW(planConversions(options, ""), UsageError) << target;
    }
}

TEST(ConversionPlan, KeepsFilesOfOneNameApart) {
    ConvertOptions options;
    options.files = {"x/a.pdf", "y/a.pdf", "b.pdf", "z/a.PDF"};
    options.outputFolder = "out";
    const std::vector<Job> jobs = planConversions(options, "");
    ASSERT_EQ(jobs.size(), 4u);
    EXPECT_EQ(jobs[0].target, "out/a.docx");
    EXPECT_EQ(jobs[1].target, "out/a-2.docx");
    EXPECT_EQ(jobs[2].target, "out/b.docx");
    EXPECT_EQ(jobs[3].target, "out/a-3.docx");
}

TEST(ConversionPlan, PassesTheOptionsOn) {
    ConvertOptions options;
    options.files = {"a.pdf"};
    options.layout = protocol::Layout::PlainText;
    options.pages = "2-";
    options.removeImages = true;
    options.keepSpacing = true;
    options.log = "run.log";
    const Job job = planConversions(options, "secret").at(0);
    EXPECT_EQ(job.layout, protocol::Layout::PlainText);
    EXPECT_EQ(job.pageRange, "2-");
    EXPECT_EQ(job.pictures, protocol::Pictures::Remove);
    EXPECT_EQ(job.characterSpacing, protocol::CharacterSpacing::Exact);
    EXPECT_EQ(job.logPath, "run.log");
    EXPECT_EQ(job.userPassword, "secret");
    EXPECT_EQ(job.ownerPassword, "secret");
    EXPECT_EQ(job.whenStarterEnds, protocol::WhenStarterEnds::Stop);
}

TEST(ConversionPlan, StartsNoMoreJobsThanThereAreFiles) {
    ConvertOptions options;
    options.jobs = 5;
    EXPECT_EQ(concurrentJobs(options, 2), 2);
    EXPECT_EQ(concurrentJobs(options, 9), 5);
    options.jobs = 0;
    EXPECT_GE(concurrentJobs(options, 9), 1);
    EXPECT_LE(concurrentJobs(options, 9), 4);
}

} // namespace
} // namespace orvane::cli
