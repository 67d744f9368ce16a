#include "app/support/RunFixture.h"
#include "core/BatchFollowUp.h"
#include "core/DiskFileOperations.h"
#include "core/LibraryEngineFactory.h"
#include "core/QtEventLoop.h"
#include "core/SystemClock.h"
#include "support/PdfBuilder.h"
#include "support/TestData.h"
#include "ui/application/LanguageStatusTexts.h"
#include "ui/form/FormRegistry.h"
#include "ui/progress/frmProgress.h"

#include <QProcess>
#include <QPushButton>
#include <QTest>

#include <fstream>

namespace fs = std::filesystem;

namespace tavrelion::tests {
namespace {

using orvane::tests::PdfBuilder;
using orvane::tests::testData;

constexpr int kPatience = 30000; ///< milliseconds a loaded machine may take for a page

/// The real progress window, files, clock and engine; only the main window and the dialogs are played.
class RealEngine : public RunFixture {
protected:
    ~RealEngine() override { registry.dispose(); }

    fs::path in(const std::string& name) const { return folder.path() / name; }

    /// Runs a file of the test's folder and waits until the window went, or shows that the run failed.
    void convert(const std::string& name) {
        records.job.strSourcePDF = QString::fromStdString(in(name).string());
        records.job.strOutputFile = QString::fromStdString(in("out.docx").string());
        records.queue.strOutputFiles = {QString()};
        records.queue.intCurrentIndex = -1;
        records.settings.intConvertFrom = 0;
        const RunPorts ports{records,     mainWindow,  messageBox, yesNoDialog,    passwordPrompt, languageTexts,
                             qtEventLoop, systemClock, diskFiles,  libraryEngines, batch,          registry};
        const auto window = registry.obtain<frmProgress>(ports, languages);
        window->load();
        const auto& viewLog = *window->findChild<QPushButton*>("cmdViewLog");
        isOver = QTest::qWaitFor([&] { return !window->isLoaded() || viewLog.isVisible(); }, kPatience);
        hasFailed = viewLog.isVisibleTo(window.get());
    }
    std::string startOf(const std::string& name) const {
        std::ifstream file(in(name), std::ios::binary);
        std::string start(2, '\0');
        file.read(start.data(), 2);
        return start;
    }

    /// What the pass over the window's captions records whenever a window is loaded.
    QString errorLogButForCaptions() const {
        QStringList failures = errorLog().split(QString(83, '-') + "\r\n", Qt::SkipEmptyParts);
        failures.removeIf([](const QString& record) { return record.contains("Module Name: WrapButtonCaptions\r\n"); });
        return failures.join("");
    }

    LanguageTable languages{
        {records.settings, TAVRELION_PROGRAM_FOLDER, [](const QString& text) { ADD_FAILURE() << text.toStdString(); }}};
    LanguageStatusTexts languageTexts{languages};
    QtEventLoop qtEventLoop;
    SystemClock systemClock;
    DiskFileOperations diskFiles;
    LibraryEngineFactory libraryEngines{TAVRELION_PROGRAM_FOLDER};
    FakeDocumentShell shell;
    BatchFollowUp batch{shell};
    FormRegistry registry;
    bool isOver = false;
    bool hasFailed = false;
};

TEST_F(RealEngine, TurnsAPdfIntoADocument) {
    PdfBuilder().page("BT /F1 12 Tf 72 720 Td (A line of text) Tj ET").write(in("tiny.pdf"));
    convert("tiny.pdf");
    EXPECT_TRUE(isOver);
    EXPECT_FALSE(hasFailed);
    EXPECT_EQ(mainWindow.finishedDocument.toStdString(), in("out.docx").string());
    EXPECT_EQ(startOf("out.docx"), "PK");
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_EQ(errorLogButForCaptions(), "");
    EXPECT_TRUE(diskFiles.exists(records.settings.strLogPath)) << "the engine keeps the conversion log";
}

TEST_F(RealEngine, TakesANameInCapitals) {
    PdfBuilder().page("BT /F1 12 Tf 72 720 Td (A line of text) Tj ET").write(in("TINY.PDF"));
    convert("TINY.PDF");
    EXPECT_FALSE(hasFailed);
    EXPECT_EQ(startOf("out.docx"), "PK");
}

TEST_F(RealEngine, SaysThatAFileIsNoPdf) {
    std::ofstream(in("tiny.pdf")) << "no PDF at all";
    convert("tiny.pdf");
    EXPECT_TRUE(isOver);
    EXPECT_TRUE(hasFailed);
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_FALSE(fs::exists(in("out.docx")));
}

TEST_F(RealEngine, AsksForTheUserPasswordUntilItIsRight) {
    fs::copy_file(testData("pdf/locked-aes-256.pdf"), in("locked.pdf"));
    passwordPrompt.passwords = {"wrong", "sésame"};
    convert("locked.pdf");
    EXPECT_FALSE(hasFailed);
    EXPECT_THAT(passwordPrompt.asked, testing::Each(PasswordPrompt::Password::User));
    EXPECT_EQ(passwordPrompt.asked.size(), 2u);
    EXPECT_EQ(startOf("out.docx"), "PK");
    EXPECT_EQ(records.job.strPdfPassword, "") << "it belongs to its file";
}

TEST_F(RealEngine, AsksForTheOwnerPasswordWhereCopyingIsNotAllowed) {
    fs::copy_file(testData("pdf/no-copying-aes-256.pdf"), in("kept.pdf"));
    passwordPrompt.passwords = {"master"};
    convert("kept.pdf");
    EXPECT_FALSE(hasFailed);
    EXPECT_THAT(passwordPrompt.asked, testing::ElementsAre(PasswordPrompt::Password::Owner));
    EXPECT_EQ(startOf("out.docx"), "PK");
}

TEST_F(RealEngine, AsksForBothPasswordsWhereBothAreNeeded) {
    fs::copy_file(testData("pdf/locked-and-no-copying-aes-128.pdf"), in("both.pdf"));
    passwordPrompt.passwords = {"sésame", "master"};
    convert("both.pdf");
    EXPECT_FALSE(hasFailed);
    EXPECT_THAT(passwordPrompt.asked,
                testing::ElementsAre(PasswordPrompt::Password::User, PasswordPrompt::Password::Owner));
    EXPECT_EQ(startOf("out.docx"), "PK");
}

/// The program itself, as a user starts it, with a home and a runtime folder of the test's own.
class Program : public testing::Test {
protected:
    Program() {
        fs::create_directories(folder.path() / "run");
        fs::permissions(folder.path() / "run", fs::perms::owner_all);
    }
    ~Program() override {
        for (const auto& process : m_processes) {
            process->kill();
            process->waitForFinished();
        }
    }
    QProcess& start(const std::string& pdf) {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", QString::fromStdString(folder.path().string()));
        environment.insert("XDG_CONFIG_HOME", QString::fromStdString(folder.path().string()));
        environment.insert("XDG_RUNTIME_DIR", QString::fromStdString((folder.path() / "run").string()));
        process->setProcessEnvironment(environment);
        process->start(TAVRELION_PROGRAM_FOLDER "/tavrelion", {QString::fromStdString((folder.path() / pdf).string())});
        m_processes.push_back(std::move(process));
        return *m_processes.back();
    }

    orvane::tests::TemporaryFolder folder;

private:
    std::vector<std::unique_ptr<QProcess>> m_processes;
};

TEST_F(Program, ConvertsTheFileOnItsCommandLineAndASecondCopyGivesWay) {
    PdfBuilder().page("BT /F1 12 Tf 72 720 Td (A line of text) Tj ET").write(folder.path() / "first file.pdf");
    QProcess& first = start("first file.pdf");
    ASSERT_TRUE(QTest::qWaitFor([&] { return fs::exists(folder.path() / "first file.docx"); }, kPatience));
    QProcess& second = start("second.pdf");
    ASSERT_TRUE(second.waitForFinished(kPatience));
    EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(first.state(), QProcess::Running);
}

} // namespace
} // namespace tavrelion::tests
