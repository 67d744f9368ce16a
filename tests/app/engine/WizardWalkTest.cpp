#include "app/support/LinkFakes.h"
#include "app/support/MainFakes.h"
#include "app/support/PageFakes.h"
#include "app/support/RunFixture.h"
#include "core/BatchFollowUp.h"
#include "core/DiskFileOperations.h"
#include "core/LibraryEngineFactory.h"
#include "core/QtEventLoop.h"
#include "core/SystemClock.h"
#include "support/PdfBuilder.h"
#include "ui/application/LanguageStatusTexts.h"
#include "ui/form/FormRegistry.h"
#include "ui/progress/frmProgress.h"
#include "ui/wizard/frmLayout.h"

#include <QFile>
#include <QPushButton>
#include <QTest>

namespace tavrelion::tests {
namespace {

constexpr int kPatience = 30000; ///< milliseconds a loaded machine may take for a page

/// The real pages, progress window, files and engine, from the first page of a wizard to the document.
class WizardWalk : public RunFixture {
protected:
    WizardWalk() {
        records.settings.strConversionMethod = "0";
        records.job.strSourcePDF = homePath("tiny.pdf");
        records.job.strOutputFile = homePath("tiny.docx");
        records.job.strOutputShown = ".docx";
        records.queue.strOutputFiles = {QString()};
        records.queue.intCurrentIndex = -1;
        orvane::tests::PdfBuilder()
            .page("BT /F1 12 Tf 72 720 Td (A line of text) Tj ET")
            .page("BT /F1 12 Tf 72 720 Td (Another line) Tj ET")
            .write(folder.path() / "tiny.pdf");
    }
    ~WizardWalk() override { registry.dispose(); }

    void startRun() {
        const RunPorts runPorts{records,     mainWindow,  messageBox, yesNoDialog,    passwordPrompt, languageTexts,
                                qtEventLoop, systemClock, diskFiles,  libraryEngines, batch,          registry};
        registry.obtain<frmProgress>(runPorts, languages)->load();
    }
    /// The page that the user sees.
    Form* shownPage() {
        for (const auto& window : registry.loadedWindows())
            if (const auto form = std::dynamic_pointer_cast<Form>(window); form && form->isVisible())
                return form.get();
        return nullptr;
    }
    void expectDocument() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !registry.find<frmProgress>(); }, kPatience));
        QFile document(records.queue.strOutputFiles.value(0));
        ASSERT_TRUE(document.open(QIODevice::ReadOnly)) << qPrintable(document.fileName());
        EXPECT_EQ(document.read(2), "PK");
        EXPECT_EQ(document.fileName(), homePath("tiny.docx"));
        EXPECT_TRUE(QFile::exists(homePath("docval.temp"))) << "Finish saves the settings";
        EXPECT_TRUE(refusals.refused.isEmpty());
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
    FakeRefusals refusals{journal};
    FakeFileDialogs fileDialogs;
    FakeFolderDialog folderDialog;
    FakeOpener opener;
    LinkActions links{opener, TAVRELION_PROGRAM_FOLDER};
    FakeMainWindow mainControls;
    FormRegistry registry;
    PagePorts ports{records,     languages,    messageBox, refusals,     qtEventLoop,
                    fileDialogs, folderDialog, links,      mainControls, [this] { startRun(); }};
};

TEST_F(WizardWalk, WithTheKeyboardAloneEndsInADocument) {
    registry.obtain<frmLayout>(ports)->showForm();
    for (const char* page : {"frmLayout", "frmImageRecovery", "frmCharSpacing", "frmPageRange", "frmOutputSummary"}) {
        Form* shown = shownPage();
        ASSERT_NE(shown, nullptr);
        ASSERT_EQ(shown->objectName(), page);
        shown->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(shown));
        QTest::keyClick(shown->focusWidget() ? shown->focusWidget() : shown, Qt::Key_Return);
    }
    expectDocument();
}

TEST_F(WizardWalk, WithTheMouseAloneEndsInADocument) {
    registry.obtain<frmLayout>(ports)->showForm();
    for (const char* button : {"cmdNext", "cmdNext", "cmdNext", "cmdNext", "cmdFinish"})
        QTest::mouseClick(shownPage()->findChild<QPushButton*>(button), Qt::LeftButton);
    expectDocument();
}

} // namespace
} // namespace tavrelion::tests
