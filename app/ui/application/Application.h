#pragma once

#include "core/DiskFileOperations.h"
#include "core/LibraryEngineFactory.h"
#include "core/Main.h"
#include "core/ProgressRun.h"
#include "core/SingleFileFollowUp.h"
#include "core/StartUp.h"
#include "core/SystemClock.h"
#include "platform/RunningCopy.h"
#include "ui/application/LanguageStatusTexts.h"
#include "ui/dialogs/EnglishPasswordPrompt.h"
#include "ui/dialogs/MessageWindows.h"
#include "ui/dialogs/SystemMessageBox.h"
#include "ui/form/FormRegistry.h"

class frmMain;

/// The program put together: the shared records, the windows, and what stands behind the interfaces of the run.
class Application : public OtherCopies, public StartUpSteps, public MainView {
public:
    Application();
    ~Application() override;

    /// Runs the program until its windows are gone. Returns the process's exit code.
    int run();

    // Other copies of the program
    Search bringForward(const QString& title) override;
    void activateApplication(const QString& title) override;

    // Start-up
    void LoadSettings() override;
    int IsMSWordInstalled() override;
    void runLater(std::chrono::milliseconds delay, std::function<void()> step) override;
    QString programCommandLine() const override;
    void showMainWindow() override;

    // The main window as the run sees it
    void show() override;
    void hide() override;
    bool isMinimised() const override;
    void setNormal() override;
    void awaitSource() override;
    void emptyJobBoxes() override;
    void showFinishedDocument(const QString& path) override;

private:
    void reportUnreadableSettings(const QString& reason);
    void listenForOtherCopies();
    void startRun();
    void giveUpFile();
    std::shared_ptr<frmMain> mainWindow();
    LanguagePorts languagePorts();
    const QWidget* anchorOf(YesNoDialog::Place place) const;

    SharedRecords& m_records = sharedRecords();
    platform::RunningCopy m_runningCopy{kWindowTitle};
    FormRegistry m_forms;
    SystemMessageBox m_messageBox;
    LanguageTable m_languages;
    MessageWindows m_messageWindows;
    EnglishPasswordPrompt m_passwordPrompt{m_records, [this] { giveUpFile(); }};
    LanguageStatusTexts m_statusTexts{m_languages};
    QtEventLoop m_eventLoop;
    SystemClock m_clock;
    DiskFileOperations m_files;
    LibraryEngineFactory m_engines;
    SingleFileFollowUp m_followUp;
};
