#include "services/ErrorLog.h"
#include "records/SharedRecords.h"
#include "services/UnloadAllForms.h"
#include "support/TemporaryFolder.h"

#include <QFile>

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

class ErrorLog : public testing::Test {
protected:
    ErrorLog() { sharedRecords().flags.strHomeFolder = QString::fromStdString(folder.path().string()); }
    ~ErrorLog() override { sharedRecords() = SharedRecords(); }

    QByteArray text() const {
        QFile file(QString::fromStdString((folder.path() / "GUILog.tmp").string()));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QList<QByteArray> lines() const { return text().split('\n'); }

    orvane::tests::TemporaryFolder folder;
};

TEST_F(ErrorLog, WritesARecordOfThreeLinesEachEndedByCarriageReturnAndLineFeed) {
    WriteErrorLog("frmOption", "Form_QueryUnload", "File not found");
    const auto written = lines();
    ASSERT_EQ(written.size(), 4) << "three lines and the end of the third";
    EXPECT_EQ(written[0], "Form Name: frmOption, Module Name: Form_QueryUnload\r");
    // The date is the locale's; it holds digits whatever the order of its fields.
    EXPECT_THAT(written[1].toStdString(), testing::MatchesRegex("File not found occured on: .*[0-9]+.*[0-9]+.*\r"));
    EXPECT_EQ(written[2], QByteArray(83, '-') + '\r');
    EXPECT_EQ(written[3], "");
}

TEST_F(ErrorLog, TwoFailuresGiveTwoRecordsInOrder) {
    WriteErrorLog("a", "b", "first");
    WriteErrorLog("c", "d", "second");
    const auto written = lines();
    ASSERT_EQ(written.size(), 7);
    EXPECT_TRUE(written[1].startsWith("first occured on: "));
    EXPECT_TRUE(written[4].startsWith("second occured on: "));
}

TEST_F(ErrorLog, ADescriptionOfBlanksWritesNothing) {
    WriteErrorLog("a", "b", "   ");
    WriteErrorLog("a", "b", "");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "GUILog.tmp"));
}

TEST_F(ErrorLog, ADescriptionOfSeveralLinesStaysOnOne) {
    WriteErrorLog("a", "b", "first\nsecond");
    EXPECT_EQ(lines().size(), 4);
    EXPECT_TRUE(lines()[1].startsWith("first second occured on: "));
}

TEST_F(ErrorLog, AFolderThatIsNotThereIsPassedOverInSilence) {
    sharedRecords().flags.strHomeFolder += "/nowhere";
    EXPECT_NO_THROW(WriteErrorLog("a", "b", "c"));
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

struct CountingWindow : LoadedWindow {
    int unloads = 0;
    void unload() override { ++unloads; }
};

struct TwoWindows : LoadedWindows {
    std::shared_ptr<CountingWindow> first = std::make_shared<CountingWindow>();
    std::shared_ptr<CountingWindow> second = std::make_shared<CountingWindow>();
    std::vector<std::shared_ptr<LoadedWindow>> loadedWindows() const override { return {first, second}; }
};

TEST(UnloadAllForms, UnloadsEachLoadedWindow) {
    const TwoWindows windows;
    UnloadAllForms("not used", windows);
    EXPECT_EQ(windows.first->unloads, 1);
    EXPECT_EQ(windows.second->unloads, 1);
}

} // namespace
} // namespace tavrelion::tests
