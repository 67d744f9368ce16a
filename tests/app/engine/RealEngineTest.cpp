#include "app/support/RunFixture.h"
#include "app/support/Standstill.h"
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
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

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
        work();
    }
    /// Runs the job of the records.
    void work() {
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

    QString conversionLog() const {
        return diskFiles.exists(records.settings.strLogPath) ? diskFiles.readText(records.settings.strLogPath)
                                                             : QString();
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

TEST_F(RealEngine, NeverHoldsTheWindowsUpWhileItWorks) {
    PdfBuilder pdf;
    for (int page = 1; page <= 300; ++page) {
        std::string content = "BT /F1 11 Tf 14 TL 72 720 Td";
        for (int line = 1; line <= 40; ++line)
            content += " (Line " + std::to_string(line) + " of page " + std::to_string(page) + " says little.) Tj T*";
        pdf.page(content + " ET");
    }
    pdf.write(in("long.pdf"));
    convert("tiny.pdf"); // loads what is loaded once
    records.flags.blnCloseRequested = false;
    const qint64 standstill = longestStandstill([this] { convert("long.pdf"); });
    EXPECT_TRUE(isOver);
    EXPECT_FALSE(hasFailed);
    EXPECT_LT(standstill, 100) << "milliseconds";
}

TEST_F(RealEngine, CancelledInTheMidstLeavesTheOldDocumentWhole) {
    PdfBuilder pdf;
    for (int page = 1; page <= 1000; ++page)
        pdf.page("BT /F1 12 Tf 72 720 Td (Page " + std::to_string(page) + ") Tj ET");
    pdf.write(in("long.pdf"));
    std::ofstream(in("out.docx")) << "the old document";
    yesNoDialog.answer = 1; // it may be replaced, and then the run is to be cancelled
    QTimer cancel;
    QObject::connect(&cancel, &QTimer::timeout, [this] {
        const auto window = registry.find<frmProgress>();
        if (window && window->findChild<QProgressBar*>("ProgressBar1")->value() == 4) // the engine is at work
            window->findChild<QPushButton*>("cmdCancel")->click();
    });
    cancel.start(10);
    convert("long.pdf");
    EXPECT_TRUE(isOver);
    EXPECT_EQ(yesNoDialog.asked, (QStringList{"lblAlreadyExists", "lblCancelConversion"}));
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_TRUE(QTest::qWaitFor([&] { return conversionLog().contains("cancelled"); }, kPatience))
        << conversionLog().toStdString();
    EXPECT_EQ(startOf("out.docx"), "th");
}

TEST_F(RealEngine, WorksThroughABatchWithADamagedAndALockedFile) {
    for (const char* name : {"one.pdf", "two.pdf", "five.pdf"})
        PdfBuilder().page("BT /F1 12 Tf 72 720 Td (A line of text) Tj ET").write(in(name));
    std::ofstream(in("three.pdf")) << "damaged";
    fs::copy_file(testData("pdf/locked-aes-256.pdf"), in("four.pdf"));
    passwordPrompt.passwords = {"sésame"};
    yesNoDialog.answer = 1;
    BatchQueue& queue = records.queue;
    queue.strSelectedFiles = {
        QString::fromStdString(folder.path().string()), "one.pdf", "two.pdf", "three.pdf", "four.pdf", "five.pdf"};
    queue.lngSelectedBound = 5;
    queue.strOutputFiles = queue.strFileStatus = QStringList(6);
    queue.intCurrentIndex = -1;
    records.settings.intConvertFrom = 0;
    records.settings.intLauchMs = 1;
    records.settings.intOutputPath = 2;
    records.job.strSourcePDF = QString::fromStdString(in("five.pdf").string());
    records.job.strOutputFile = QString::fromStdString(in("five.docx").string());
    QStringList failed;
    for (int file = 5; file >= 1; --file) {
        records.flags.blnCloseRequested = false; // as the main window's command does
        const QString source = records.job.strSourcePDF;
        work();
        ASSERT_TRUE(isOver) << source.toStdString();
        if (const auto window = registry.find<frmProgress>()) {
            failed << source.section('/', -1);
            window->findChild<QPushButton*>("cmdViewLog")->click(); // leaving through the log steps the queue
            window->findChild<QPushButton*>("cmdClose")->click();
        }
    }
    EXPECT_EQ(failed, QStringList{"three.pdf"});
    QStringList opened;
    for (const QString& line : shell.opened)
        opened << line.section(' ', 1, 1).section('/', -1);
    EXPECT_EQ(opened, (QStringList{"five.docx", "four.docx", "two.docx", "one.docx"}));
    EXPECT_EQ(yesNoDialog.asked, QStringList{"msgDocumentGenerationComplete"}) << "offered once, at the end";
    EXPECT_EQ(records.job.strSourcePDF, "");
    EXPECT_EQ(errorLogButForCaptions(), "");
}

/// The program itself, as a user starts it, with a home and a runtime folder of the test's own.
class Program : public testing::Test {
protected:
    Program() {
        fs::create_directories(folder.path() / "run");
        fs::permissions(folder.path() / "run", fs::perms::owner_all);
        storeSettings();
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
    /// DOCX with flowing text into the test's own folder, whatever word processor the machine has.
    void storeSettings() const {
        const std::string home = folder.path().string();
        std::ofstream(folder.path() / "docval.temp") << "\"0~:~0~:~0~:~2~:~0~:~0~:~3~:~1~:~1~:~1~:~0~:~0~:~0~:~~:~"
                                                     << home << "~:~" << home << "/Tavrelion.log~:~0\"\r\n";
    }

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
