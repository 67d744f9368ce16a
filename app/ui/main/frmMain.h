#pragma once

#include "core/RunViews.h"
#include "core/System.h"
#include "i18n/LanguageTable.h"
#include "records/SharedRecords.h"
#include "ui/form/Form.h"

#include <functional>
#include <memory>

namespace Ui {
class frmMain;
}

/// What the main window reaches.
struct MainPorts {
    SharedRecords& records;
    LanguageTable& languages;
    UserMessages& messageBox;
    YesNoDialog& yesNoDialog;
    EventLoop& eventLoop;
    std::function<void()> startRun; ///< makes the progress window, which carries the job of the records out
};

/// The main window: where a job starts and where every run ends.
class frmMain : public Form {
    Q_OBJECT

public:
    frmMain(FormRegistry& registry, MainPorts ports);
    ~frmMain() override;

    void showFinishedDocument(const QString& path);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, UnloadMode unloadMode) override;
    void Form_Unload() override;

private:
    void connectHandlers();
    void lblExit_Click();
    void actOnCommandLine();
    void applyLanguage();
    void showFinishedDocument();

    std::unique_ptr<Ui::frmMain> m_ui;
    MainPorts m_ports;
    QString m_finishedDocument; ///< path of the last document of this program run
};
