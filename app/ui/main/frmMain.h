#pragma once

#include "core/FileDialogs.h"
#include "core/RunViews.h"
#include "core/System.h"
#include "i18n/LanguageTable.h"
#include "records/SharedRecords.h"
#include "ui/dialogs/Refusals.h"
#include "ui/form/Form.h"
#include "ui/main/NextWindows.h"

#include <functional>
#include <memory>

class HotLabels;
class LinkActions;
class QMenu;

namespace Ui {
class frmMain;
}

/// What the main window reaches.
struct MainPorts {
    SharedRecords& records;
    LanguageTable& languages;
    UserMessages& messageBox;
    YesNoDialog& yesNoDialog;
    Refusals& refusals;
    EventLoop& eventLoop;
    FileDialogs& fileDialogs;
    const FileOperations& files;
    LinkActions& links;
    NextWindows& nextWindows;
    std::function<std::int16_t()> IsMSWordInstalled; ///< 1 when the word processor is there, else 0
    std::function<std::int16_t()> CheckMSWord;       ///< the year of its release
};

/// The main window: where a job is put together and handed over, and where every run and wizard ends. It holds no job
/// of its own: each activation rebuilds it from the records, and only the commands write its controls into them.
///
/// frmMain.cpp has its life and its ways out, frmMainSource.cpp and frmMainOutput.cpp the choice of files,
/// frmMainPages.cpp the page range, frmMainConvert.cpp the commands that hand a job over, frmMainMenu.cpp those of the
/// menu, frmMainActivation.cpp the activation with the command line.
class frmMain : public Form {
    Q_OBJECT

public:
    frmMain(FormRegistry& registry, MainPorts ports);
    ~frmMain() override;

    /// Derives the output of the file in the source box and shows it, after a selection and a command line.
    void InitialiseOutputOptions();

    void showFinishedDocument(const QString& path);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, UnloadMode unloadMode) override;
    void Form_Unload() override;

private:
    void connectHandlers();
    void connectHotLabels();
    void putLinksLast();
    void loadPictures();
    void makeMenu();
    void applyLanguage();
    void captionMenu();

    // Life and ways out
    void lblSettings_Click();
    void imgSettings_Click();
    void lblExit_Click();
    void chkOpenDocEditing_Click();
    void showFinishedDocument();

    // Activation
    void showSource();
    void showOutputAtLoading();
    void showOutputAtActivation();
    void showOutputFormat();
    void showPageChoice();
    void actOnCommandLine();
    void refuseCommandLine(const QString& text);
    void menuOption();
    void showBanner();
    void putOneColonBehindFormatCaption();
    void nameControls();

    // Source
    void cmdBrowse_Click();
    void showSelection();
    void txtFileBrowsePath_GotFocus();
    void txtFileSize_GotFocus();

    // Output
    void cmdBrowseOutput_Click();
    FileDialogs::SaveRequest saveRequest() const;
    void takeSavedName(const QString& fileName);
    void showSavedName();
    void showNoSourceAsOutput();

    // Pages
    bool ValidatePageRange();
    void txtFrom_KeyPress(int& keyCode);
    void chkAllPages_Click();
    void lblAllPages_Click();
    void chkFromTo_Click();

    // Commands
    void imgConvert_Click();
    void takeWindowIntoRecords();
    bool CollectMainOptions();
    void rememberOutputFolder();
    void imgExtractImages_Click();
    void handImagesOver();
    void imgDropDown_Click();
    void mnuconvwiz_Click();
    void mnuExtimgWiz_Click();
    void mnusaveDoc_Click();
    void mnuSaveRTF_Click();
    void saveAs(std::int16_t intOutputFormat);
    void takeSource();

    std::unique_ptr<Ui::frmMain> m_ui;
    MainPorts m_ports;
    std::unique_ptr<HotLabels> m_hotLabels;
    QMenu* mnuConvert = nullptr;
    QString m_strOutputName;         ///< the document's name without its folder
    std::int16_t m_intDirectRun = 0; ///< 1 when the command line asked for a run without wizard
    QString m_finishedDocument;      ///< path of the last document of this program run
};
