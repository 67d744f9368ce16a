#include "component/RequestReader.h"
#include "base/Failure.h"

#include <gtest/gtest.h>

namespace orvane::component {
namespace {

using namespace protocol;

TEST(RequestReader, ReadsEveryLayoutCode) {
    const Layout layouts[] = {Layout::Flowing, Layout::TruePage, Layout::Continuous, Layout::PlainText, Layout::Images};
    for (std::int16_t code = 0; code < 5; ++code)
        EXPECT_EQ(readLayout(code), layouts[code]) << code;
}

TEST(RequestReader, RefusesALayoutCodeThatIsNone) {
    for (const std::int16_t code : {-1, 5})
        EXPECT_THROW(readLayout(code), Failure) << code;
}

TEST(RequestReader, ReadsEveryPictureFormatCode) {
    const ImageFileFormat formats[] = {ImageFileFormat::Bmp, ImageFileFormat::Jpg, ImageFileFormat::Pbm,
                                       ImageFileFormat::Pcx, ImageFileFormat::Png, ImageFileFormat::Pnm,
                                       ImageFileFormat::Ppm, ImageFileFormat::Psd, ImageFileFormat::Tiff};
    for (std::int16_t code = 0; code < 9; ++code)
        EXPECT_EQ(readImageFormat(code), formats[code]) << code;
    for (const std::int16_t code : {-1, 9})
        EXPECT_THROW(readImageFormat(code), Failure) << code;
}

TEST(RequestReader, ReadsTheOptionBits) {
    struct Row {
        std::int32_t flags;
        Format format;
        const char* why;
    };
    const Row rows[] = {
        {0, Format::Rtf, "no word format"},
        {flag::kWordFormat, Format::Doc, "the older word format"},
        {flag::kWordFormat | flag::kDocx, Format::Docx, "the newer one"},
        {flag::kDocx, Format::Rtf, "the bit of the newer one means nothing alone"},
    };
    for (const Row& row : rows) {
        ConversionRequest request;
        request.flags = row.flags;
        EXPECT_EQ(readRequest(request).format, row.format) << row.why;
    }

    ConversionRequest request;
    EXPECT_EQ(readRequest(request).pictures, Pictures::Keep);
    EXPECT_EQ(readRequest(request).characterSpacing, CharacterSpacing::Automatic);
    request.flags = flag::kRemoveImages;
    EXPECT_EQ(readRequest(request).pictures, Pictures::Remove);
    request.flags = flag::kKeepCharacterSpacing;
    EXPECT_EQ(readRequest(request).characterSpacing, CharacterSpacing::Exact);
    request.flags = 16 | 512 | flag::kLaterFileOfSelection;
    EXPECT_EQ(readRequest(request).pictures, Pictures::Keep) << "bits without a meaning for the engine";
}

TEST(RequestReader, LooksAtThePageRangeOnlyWhenNotAllPagesAreWanted) {
    ConversionRequest request;
    request.pageRange = "1-3,7";
    EXPECT_EQ(readRequest(request).pageRange, "1-3,7");
    request.flags = flag::kAllPages;
    EXPECT_EQ(readRequest(request).pageRange, "");
}

TEST(RequestReader, TakesOverPathsAndNames) {
    ConversionRequest request;
    request.sourcePath = "a.pdf";
    request.targetPath = "a.docx";
    request.logPath = "run.log";
    request.temporaryFolder = "scratch";
    request.applicationName = "Tavrelion";
    const Job job = readRequest(request);
    EXPECT_EQ(job.source, "a.pdf");
    EXPECT_EQ(job.target, "a.docx");
    EXPECT_EQ(job.logPath, "run.log");
    EXPECT_EQ(job.scratchFolder, "scratch");
    EXPECT_EQ(job.applicationName, "Tavrelion");
    EXPECT_EQ(job.whenStarterEnds, WhenStarterEnds::Finish);
}

TEST(RequestReader, TakesPasswordsApart) {
    constexpr std::int32_t kUser = flag::kUserPasswordAsked;
    constexpr std::int32_t kOwner = flag::kOwnerPasswordAsked;
    struct Row {
        const char* text;
        std::int32_t flags;
        PasswordPair expected;
        const char* why;
    };
    const Row rows[] = {
        {"", 0, {"", ""}, "none"},
        {"one", 0, {"one", "one"}, "one that nobody asked for"},
        {"one", kUser, {"one", "one"}, "the owner's password opens a file too"},
        {"one", kOwner, {"one", "one"}, "one for the owner"},
        {"boss`````reader", kUser | kOwner, {"reader", "boss"}, "two, the owner's first"},
        {"boss`````", kUser | kOwner, {"boss", "boss"}, "the user's was lost between two questions"},
        {"`````reader", kUser | kOwner, {"reader", "reader"}, "the owner's was left empty"},
        {"one", kUser | kOwner, {"one", "one"}, "both were asked for, one given"},
        {"a`````b", kUser, {"a`````b", "a`````b"}, "one password that looks like two"},
        {"a`````b`````c", kUser | kOwner, {"b`````c", "a"}, "the first separator counts"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(readPasswords(row.text, row.flags), row.expected) << row.why;
}

} // namespace
} // namespace orvane::component
