#include "write/docx/ZipFile.h"
#include "base/Failure.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string_view>

#include <sys/stat.h>

namespace orvane::write::docx {
namespace {

DeflatedBytes deflated(std::string_view text) {
    Deflater deflater;
    deflater.add(text);
    return deflater.finish();
}

ino_t inodeOf(const std::filesystem::path& file) {
    struct stat status {};
    stat(file.c_str(), &status);
    return status.st_ino;
}

TEST(ZipFile, WritesTheFileWhereItStands) {
    const tests::TemporaryFolder folder;
    const std::filesystem::path target = folder.path() / "a.zip";
    tests::writeFile(target, std::string(5000, 'x'));
    const ino_t before = inodeOf(target);
    const DeflatedBytes bytes = deflated("some text");
    ZipFile zip(target);
    zip.addDeflated("a.xml", bytes);
    zip.close();

    EXPECT_EQ(inodeOf(target), before) << "its lock and its place in the folder stay";
    const std::string written = tests::readFile(target);
    EXPECT_EQ(written.substr(0, 4), "PK\x03\x04");
    EXPECT_EQ(written.substr(written.size() - 22, 4), "PK\x05\x06") << "nothing of the longer old file is left";
}

TEST(ZipFile, SaysWhenTheDiskIsFull) {
    const DeflatedBytes bytes = deflated("some text");
    ZipFile zip("/dev/full");
    zip.addDeflated("a.xml", bytes);
    try {
        zip.close();
        ADD_FAILURE() << "written";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), FailureCode::TargetUnwritable);
        EXPECT_NE(std::string(failure.what()).find("No space"), std::string::npos) << failure.what();
    }
}

TEST(ZipFile, SaysWhenAPictureIsGone) {
    const tests::TemporaryFolder folder;
    ZipFile zip(folder.path() / "a.zip");
    zip.addStored("a.png", folder.path() / "missing.png");
    EXPECT_THROW(zip.close(), Failure);
}

} // namespace
} // namespace orvane::write::docx
