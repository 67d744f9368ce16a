#pragma once

#include "core/BatchFollowUp.h"
#include "core/DiskFileOperations.h"
#include "core/LibraryEngineFactory.h"
#include "core/Main.h"
#include "core/OpenDocument.h"
#include "core/ProgressRun.h"
#include "core/QtEventLoop.h"
#include "core/StartUp.h"
#include "core/SystemClock.h"
#include "platform/RunningCopy.h"
#include "ui/application/HandOver.h"
#include "ui/application/LanguageStatusTexts.h"
#include "ui/application/MainWindowView.h"
#include "ui/dialogs/MessageWindows.h"
#include "ui/dialogs/SystemFileDialogs.h"
#include "ui/dialogs/SystemMessageBox.h"
#include "ui/form/FormRegistry.h"
#include "ui/links/DesktopOpener.h"
#include "ui/password/PasswordWindow.h"

class frmMain;
class frmProgress;

/// The program put together: the shared records, the windows, and what stands behind the interfaces of the run.
class Application : public OtherCopies, public StartUpSteps {
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

private:
    void reportUnreadableSettings(const QString& reason);
    void listenForOtherCopies();
    void unloadProgress();
    HandOver::Ports handOverPorts();
    std::shared_ptr<frmMain> mainWindow();
    std::shared_ptr<frmProgress> progressWindow();
    LanguagePorts languagePorts();
    const QWidget* anchorOf(YesNoDialog::Place place) const;

    SharedRecords& m_records = sharedRecords();
    platform::RunningCopy m_runningCopy{kWindowTitle};
    FormRegistry m_forms;
    SystemMessageBox m_messageBox;
    SystemFileDialogs m_fileDialogs;
    SystemFolderDialog m_folderDialog;
    DesktopOpener m_opener;
    LanguageTable m_languages;
    LinkActions m_links{m_opener, m_languages.applicationFolder};
    MessageWindows m_messageWindows;
    MainWindowView m_mainWindowView{m_forms, [this] { return mainWindow(); }};
    PasswordWindow m_passwordWindow{m_forms, {m_records, m_languages, m_mainWindowView, [this] { unloadProgress(); }}};
    LanguageStatusTexts m_statusTexts{m_languages};
    QtEventLoop m_eventLoop;
    SystemClock m_clock;
    DiskFileOperations m_files;
    LibraryEngineFactory m_engines;
    SystemDocumentShell m_documentShell;
    BatchFollowUp m_followUp{m_documentShell};
    HandOver m_handOver{m_forms, handOverPorts()};
};
