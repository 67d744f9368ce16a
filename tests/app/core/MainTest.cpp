#include "core/Main.h"
#include "core/StartUp.h"
#include "support/TemporaryFolder.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <gmock/gmock.h>

#include <map>
#include <stdexcept>

namespace tavrelion::tests {
namespace {

struct FakeFolders : HomeFolderSources {
    int answer = 0;
    bool failsToAnswer = false;
    bool failsToFindFolders = false;
    std::optional<std::string> documents = "/home/someone/Documents";
    std::map<QString, QString> variables;

    int hostAnswer() const override {
        if (failsToAnswer)
            throw std::runtime_error("no such object");
        return answer;
    }
    QString programFolder() const override { return "/opt/tavrelion"; }
    std::optional<std::string> specialFolder(int folderId) const override {
        if (failsToFindFolders)
            throw std::runtime_error("the shell does not answer");
        return folderId == 5 ? documents : std::nullopt;
    }
    QString environment(const QString& name) const override {
        const auto found = variables.find(name);
        return found == variables.end() ? QString() : found->second;
    }
};

class HomeFolder : public testing::Test {
protected:
    QString find() {
        FindHomeFolder(flags, folders);
        return flags.strHomeFolder;
    }
    RunFlags flags;
    FakeFolders folders;
};

TEST_F(HomeFolder, IsTheUsersDocumentsFolder) {
    EXPECT_EQ(find(), "/home/someone/Documents");
    EXPECT_FALSE(flags.blnHomeFolderKnown);
}

TEST_F(HomeFolder, IsTheProgramsOwnFolderOnAnswer1) {
    folders.answer = 1;
    EXPECT_EQ(find(), "/opt/tavrelion");
    EXPECT_TRUE(flags.blnHomeFolderKnown);
}

TEST_F(HomeFolder, IsTheLastResortOnAnyOtherAnswer) {
    folders.answer = 2;
    EXPECT_EQ(find(), "c:\\Temp");
    EXPECT_FALSE(flags.blnHomeFolderKnown);
}

TEST_F(HomeFolder, AHostThatCannotBeAskedCountsAsAnswer0) {
    folders.answer = 1;
    folders.failsToAnswer = true;
    EXPECT_EQ(find(), "/home/someone/Documents");
    EXPECT_FALSE(flags.blnHomeFolderKnown);
}

TEST_F(HomeFolder, IsDriveAndPathWhereThereIsNoDocumentsFolder) {
    folders.documents = std::nullopt;
    folders.variables = {{"HOMEDRIVE", "c:"}, {"HOMEPATH", "\\Users\\someone"}, {"TEMP", "c:\\t"}};
    EXPECT_EQ(find(), "c:\\Users\\someone");
}

TEST_F(HomeFolder, IsTheDriveAloneWhereThePathIsNotSet) {
    folders.documents = std::nullopt;
    folders.variables = {{"HOMEDRIVE", "c:"}, {"TEMP", "c:\\t"}};
    EXPECT_EQ(find(), "c:");
}

TEST_F(HomeFolder, IsTempWhereDriveAndPathAreNotSet) {
    folders.failsToFindFolders = true;
    folders.variables = {{"TEMP", "/var/tmp"}};
    EXPECT_EQ(find(), "/var/tmp");
}

TEST_F(HomeFolder, IsTheLastResortWhereNothingIsSetWhetherItExistsOrNot) {
    folders.documents = "";
    EXPECT_EQ(find(), "c:\\Temp");
    EXPECT_FALSE(QDir("c:\\Temp").exists());
}

TEST_F(HomeFolder, ForgetsWhatStoodBefore) {
    flags.strHomeFolder = "/old";
    flags.blnHomeFolderKnown = true;
    EXPECT_EQ(find(), "/home/someone/Documents");
    EXPECT_FALSE(flags.blnHomeFolderKnown);
}

TEST_F(HomeFolder, AFolderPathEndsAtItsFirstZeroAndIsTrimmed) {
    folders.documents = std::string("  /home/x y \0rubbish", 19);
    EXPECT_EQ(GetSpecialFolderPath(5, folders), "/home/x y");
    EXPECT_EQ(GetSpecialFolderPath(7, folders), std::nullopt);
}

struct FakeCopies : OtherCopies {
    Search search = Search::NotFound;
    bool closesInBetween = false;
    QStringList calls;

    Search bringForward(const QString& title) override {
        calls << "bring " + title;
        return search;
    }
    void activateApplication(const QString& title) override {
        calls << "activate " + title;
        if (closesInBetween)
            throw std::runtime_error("no such application");
    }
};

class MainProcedure : public testing::Test {
protected:
    AfterMain main() { return Main(records, folders, copies); }
    SharedRecords records;
    FakeFolders folders;
    FakeCopies copies;
};

TEST_F(MainProcedure, GoesOnToTheStartUpWhereNoCopyRuns) {
    EXPECT_EQ(main(), AfterMain::StartUp);
    EXPECT_EQ(records.queue.lngSelectedBound, -1);
    EXPECT_TRUE(records.queue.strOutputFiles.isEmpty());
    EXPECT_EQ(records.flags.strHomeFolder, "/home/someone/Documents");
    EXPECT_EQ(copies.calls, QStringList{"bring Tavrelion-PDF to Word Converter"});
}

TEST_F(MainProcedure, GivesWayToARunningCopy) {
    copies.search = OtherCopies::Search::BroughtForward;
    EXPECT_EQ(main(), AfterMain::EndProcess);
    EXPECT_EQ(copies.calls,
              (QStringList{"bring Tavrelion-PDF to Word Converter", "activate Tavrelion-PDF to Word Converter",
                           "bring Tavrelion-PDF to Word Converter"}));
}

TEST_F(MainProcedure, EndsWithoutAMessageWhenTheOtherCopyClosesInBetween) {
    copies.search = OtherCopies::Search::BroughtForward;
    copies.closesInBetween = true;
    EXPECT_EQ(main(), AfterMain::EndProcess);
    EXPECT_EQ(copies.calls.size(), 2);
}

struct FakeStartUp : StartUpSteps {
    explicit FakeStartUp(SharedRecords& shared)
        : records(shared) {}

    SharedRecords& records;
    std::optional<std::int16_t> storedFormat;
    int wordProcessor = 0;
    bool failsToShow = false;
    QStringList calls;
    std::function<void()> later;
    std::chrono::milliseconds delay{0};

    void LoadSettings() override {
        calls << QString("load over %1").arg(records.settings.intOutputFormat);
        records.settings.intOutputFormat = storedFormat.value_or(records.settings.intOutputFormat);
    }
    int IsMSWordInstalled() override { return wordProcessor; }
    void runLater(std::chrono::milliseconds wanted, std::function<void()> step) override {
        delay = wanted;
        later = std::move(step);
    }
    QString programCommandLine() const override { return "/in/report.pdf"; }
    void showMainWindow() override {
        if (failsToShow)
            throw std::runtime_error("no window");
        calls << "show with " + records.flags.strCommandLine;
    }
};

class StartUpSequence : public testing::Test {
protected:
    SharedRecords& records = sharedRecords();
    FakeStartUp steps{records};
    orvane::tests::TemporaryFolder folder;

    StartUpSequence() { records = SharedRecords(); }
    ~StartUpSequence() override { records = SharedRecords(); }
};

TEST_F(StartUpSequence, ShowsTheMainWindowAMomentAfterTwoLoads) {
    steps.storedFormat = 2;
    steps.wordProcessor = 1;
    StartUp(records, steps);
    EXPECT_EQ(steps.calls, (QStringList{"load over 0", "load over 2"}));
    EXPECT_EQ(steps.delay, std::chrono::milliseconds(250));
    EXPECT_EQ(records.flags.strCommandLine, "");
    steps.later();
    EXPECT_EQ(steps.calls.last(), "show with /in/report.pdf");
}

TEST_F(StartUpSequence, AStoredFormatStandsWithoutAWordProcessor) {
    steps.storedFormat = 2;
    StartUp(records, steps);
    EXPECT_EQ(steps.calls, (QStringList{"load over 0", "load over 1"})) << "RTF is forced in between";
    EXPECT_EQ(records.settings.intOutputFormat, 2);
}

TEST_F(StartUpSequence, WithoutAStoredFormatAndAWordProcessorItIsRtf) {
    StartUp(records, steps);
    EXPECT_EQ(records.settings.intOutputFormat, 1);
}

TEST_F(StartUpSequence, AFailureOfTheDelayedStepIsLogged) {
    records.flags.strHomeFolder = QString::fromStdString(folder.path().string());
    steps.failsToShow = true;
    StartUp(records, steps);
    steps.later();
    QFile log(records.flags.strHomeFolder + "/GUILog.tmp");
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_TRUE(log.readAll().startsWith("Form Name: Timer, Module Name: Timer1_Timer\r\nno window occured on: "));
}

} // namespace
} // namespace tavrelion::tests
