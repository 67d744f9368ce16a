#include "protocol/Job.h"
#include "protocol/ProtocolError.h"

#include <gtest/gtest.h>

namespace orvane::protocol {
namespace {

Job fullJob() {
    Job job;
    job.task = Task::Inspect;
    job.source = "/home/ann/100% \"done\"\n\xff.pdf";
    job.userPassword = "p\xc3\xa4ss \\word";
    job.ownerPassword = std::string("nul\0byte", 8);
    job.pageRange = "1-3,7";
    job.layout = Layout::PlainText;
    job.format = Format::Rtf;
    job.pictures = Pictures::Remove;
    job.characterSpacing = CharacterSpacing::Exact;
    job.target = "target.rtf";
    job.logPath = "run.log";
    job.scratchFolder = "scratch";
    job.applicationName = "Tavrelion";
    job.whenStarterEnds = WhenStarterEnds::Finish;
    job.limits = {512, 60, 2};
    return job;
}

TEST(Job, TravelsWhole) {
    const Job job = fullJob();
    const Job copy = decodeJob(encodeJob(job));
    EXPECT_EQ(copy.task, job.task);
    EXPECT_EQ(copy.source, job.source);
    EXPECT_EQ(copy.userPassword, job.userPassword);
    EXPECT_EQ(copy.ownerPassword, job.ownerPassword);
    EXPECT_EQ(copy.pageRange, job.pageRange);
    EXPECT_EQ(copy.layout, job.layout);
    EXPECT_EQ(copy.format, job.format);
    EXPECT_EQ(copy.pictures, job.pictures);
    EXPECT_EQ(copy.characterSpacing, job.characterSpacing);
    EXPECT_EQ(copy.target, job.target);
    EXPECT_EQ(copy.logPath, job.logPath);
    EXPECT_EQ(copy.scratchFolder, job.scratchFolder);
    EXPECT_EQ(copy.applicationName, job.applicationName);
    EXPECT_EQ(copy.whenStarterEnds, job.whenStarterEnds);
    EXPECT_EQ(copy.limits.memoryMegabytes, job.limits.memoryMegabytes);
    EXPECT_EQ(copy.limits.seconds, job.limits.seconds);
    EXPECT_EQ(copy.limits.threads, job.limits.threads);
}

TEST(Job, IsOneLineWhateverItHolds) {
    EXPECT_EQ(encodeJob(fullJob()).find('\n'), std::string::npos);
}

TEST(Job, RefusesWhatIsNoJob) {
    const std::string good = encodeJob(Job{});
    const auto with = [&good](const std::string& from, const std::string& to) {
        const std::size_t at = good.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        return std::string(good).replace(at, from.size(), to);
    };
    struct Row {
        std::string line;
        const char* why;
    };
    const Row rows[] = {
        {"", "nothing"},
        {"cancel", "no JSON"},
        {"[1,2]", "a list"},
        {good + "x", "something behind the object"},
        {good.substr(0, good.size() / 2), "half a line"},
        {with("\"flowing\"", "\"sideways\""), "an unknown layout"},
        {with("\"flowing\"", "7"), "a number for a name"},
        {with("\"threads\":0", "\"threads\":-1"), "a negative count of threads"},
        {with("\"threads\":0", "\"threads\":\"0\""), "a text for a number"},
        {with("\"threads\":0", "\"threads\":0.5"), "half a thread"},
        {with("\"seconds\":1800", "\"seconds\":0"), "no time at all"},
        {with("\"seconds\":1800", "\"seconds\":99999999999999999999"), "more seconds than an integer holds"},
        {with("\"source\":", "\"sauce\":"), "a field misspelt"},
        {with("{", "{\"extra\":1,"), "a field too many"},
        {with("\"source\":\"\"", "\"source\":\"%4\""), "half an escape"},
        {with("\"source\":\"\"", "\"source\":\"%zz\""), "an escape without digits"},
        {with("\"source\":\"\"", "\"source\":\"\\u00e4\""), "a text that is not escaped"},
    };
    for (const Row& row : rows)
        EXPECT_THROW(decodeJob(row.line), ProtocolError) << row.why;
}

TEST(Job, KnowsItsLayoutsAndFormatsByName) {
    for (const char* name : {"flowing", "true-page", "continuous", "plain-text", "images"})
        EXPECT_STREQ(toString(*layoutFromString(name)), name);
    for (const char* name : {"docx", "doc", "rtf"})
        EXPECT_STREQ(toString(*formatFromString(name)), name);
    EXPECT_FALSE(layoutFromString("Flowing"));
    EXPECT_FALSE(formatFromString("odt"));
}

} // namespace
} // namespace orvane::protocol
