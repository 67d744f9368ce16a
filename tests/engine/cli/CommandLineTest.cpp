#include "cli/CommandLine.h"

#include <gmock/gmock.h>

#include <sstream>

namespace orvane::cli {
namespace {

using protocol::Format;
using protocol::Layout;
using testing::ElementsAre;
using testing::HasSubstr;

struct Parsed {
    ParsedCommandLine result;
    std::string out;
    std::string err;

    int exitCode() const { return std::holds_alternative<int>(result) ? std::get<int>(result) : -1; }
    const ConvertOptions& convert() const { return std::get<ConvertOptions>(std::get<Command>(result)); }
};

Parsed parse(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "orvane");
    std::ostringstream out;
    std::ostringstream err;
    ParsedCommandLine result = parseCommandLine(static_cast<int>(arguments.size()), arguments.data(), out, err);
    return {std::move(result), out.str(), err.str()};
}

TEST(CommandLine, TakesASourceAlone) {
    const Parsed parsed = parse({"convert", "a.pdf"});
    EXPECT_THAT(parsed.convert().files, ElementsAre("a.pdf"));
    EXPECT_FALSE(parsed.convert().outputFolder);
    EXPECT_EQ(parsed.convert().layout, Layout::Flowing);
    EXPECT_FALSE(parsed.convert().format);
}

TEST(CommandLine, TakesAllOptions) {
    const Parsed parsed =
        parse({"convert",     "a.pdf",          "--out-dir", "out",     "b.pdf",  "c.pdf",           "--to",
               "rtf",         "--layout",       "true-page", "--pages", "1-3,7",  "--password-file", "secret",
               "--no-images", "--keep-spacing", "--log",     "run.log", "--json", "--jobs",          "3"});
    const ConvertOptions& options = parsed.convert();
    EXPECT_THAT(options.files, ElementsAre("a.pdf", "b.pdf", "c.pdf"));
    EXPECT_EQ(options.outputFolder, "out");
    EXPECT_EQ(options.format, Format::Rtf);
    EXPECT_EQ(options.layout, Layout::TruePage);
    EXPECT_EQ(options.pages, "1-3,7");
    EXPECT_EQ(options.passwordFile, "secret");
    EXPECT_TRUE(options.removeImages);
    EXPECT_TRUE(options.keepSpacing);
    EXPECT_EQ(options.log, "run.log");
    EXPECT_TRUE(options.json);
    EXPECT_EQ(options.jobs, 3);
}

TEST(CommandLine, TakesInfo) {
    const Parsed parsed = parse({"info", "a.pdf", "--json"});
    const auto& options = std::get<InfoOptions>(std::get<Command>(parsed.result));
    EXPECT_EQ(options.file, "a.pdf");
    EXPECT_TRUE(options.json);
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    const std::vector<std::vector<const char*>> lines = {
        {},
        {"improve", "a.pdf"},
        {"convert"},
        {"convert", "a.pdf", "b.docx", "c.pdf"},
        {"convert", "a.pdf", "--layout", "sideways"},
        {"convert", "a.pdf", "--layout", "images"},
        {"convert", "a.pdf", "--to", "odt"},
        {"convert", "a.pdf", "--jobs", "0"},
        {"convert", "a.pdf", "--jobs", "many"},
        {"convert", "a.pdf", "--pages"},
        {"convert", "a.pdf", "--faster"},
        {"info"},
        {"dump"},
        {"info", "a.pdf", "b.pdf"},
    };
    for (const auto& line : lines) {
        const Parsed parsed = parse(line);
        EXPECT_EQ(parsed.exitCode(), 2) << testing::PrintToString(line);
        EXPECT_NE(parsed.err, "") << testing::PrintToString(line);
        EXPECT_EQ(parsed.out, "") << testing::PrintToString(line);
    }
}

TEST(CommandLine, NamesTheNameItDoesNotKnow) {
    EXPECT_THAT(parse({"convert", "a.pdf", "--layout", "sideways"}).err, HasSubstr("\"sideways\""));
}

TEST(CommandLine, HelpsOnTheWholeAndOnEachCommand) {
    const Parsed whole = parse({"--help"});
    EXPECT_EQ(whole.exitCode(), 0);
    EXPECT_THAT(whole.out, HasSubstr("convert"));
    EXPECT_THAT(whole.out, HasSubstr("Exit codes:"));
    const Parsed convert = parse({"convert", "--help"});
    EXPECT_EQ(convert.exitCode(), 0);
    for (const char* option : {"--out-dir", "--to", "--layout", "--pages", "--password-file", "--no-images",
                               "--keep-spacing", "--log", "--json", "--jobs", "ORVANE_PASSWORD", "Exit codes:"})
        EXPECT_THAT(convert.out, HasSubstr(option));
}

TEST(CommandLine, TellsItsVersion) {
    const Parsed parsed = parse({"--version"});
    EXPECT_EQ(parsed.exitCode(), 0);
    EXPECT_EQ(parsed.out, "orvane " ORVANE_VERSION "\n");
}

} // namespace
} // namespace orvane::cli
