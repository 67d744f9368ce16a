#pragma once

#include "core/RunViews.h"
#include "core/System.h"
#include "records/SharedRecords.h"
#include "services/UnloadAllForms.h"

#include <memory>

class RunFollowUp;

/// Everything outside the run that it reaches.
struct RunPorts {
    SharedRecords& records;
    MainView& mainWindow;
    UserMessages& messageBox;
    YesNoDialog& yesNoDialog;
    PasswordPrompt& passwordPrompt;
    const StatusTexts& statusTexts;
    EventLoop& eventLoop;
    Clock& clock;
    FileOperations& files;
    EngineFactory& engines;
    RunFollowUp& followUp;
    const LoadedWindows& windows;
};

/// One run: the fields of frmProgress, made anew with the window for each run. The procedures of namespace `run` work
/// on it. Thread: the user interface's thread; procedures interleave only at EventLoop::yield() and while a dialog is
/// open.
struct ProgressRun : RunPorts {
    ProgressRun(const RunPorts& ports, ProgressView& progressWindow)
        : RunPorts(ports)
        , view(progressWindow) {}

    ProgressView& view;

    std::shared_ptr<orvane::ConversionEngine> objEngine; ///< empty before a run and once the engine has finished
    bool isEngineBusy = false;                           ///< a call into the engine is under way
    BusyNotice engineNotice;                             ///< what is said when a call takes long
    QString strStagedPath;                               ///< first the source, then its staged copy
    QString strStagedStem;                               ///< strStagedPath without its ".pdf"
    QString strStagedName;                               ///< file name of the source
    QString strWorkFolder;                               ///< copy of strHomeFolder
    std::int32_t lngConvFlags = 0;                       ///< the engine's option bits
    std::int16_t intParseState = 0;                      ///< see parse_state
    std::int16_t intUserPassAsked = 0;                   ///< 1 once the engine asked for it for this file
    std::int16_t intOwnerPassAsked = 0;
    QString strFirstPassword; ///< the password that stood when the owner password was asked for after the user's
    std::int16_t intPasswordKept = 0; ///< 1 once strFirstPassword is set
    bool blnAsyncRun = false;         ///< the engine is used asynchronously
    bool blnPollEnabled = false;      ///< Timer1 may poll
    bool blnFormUnloaded = false;     ///< no caption may be written any more
    bool blnRunStarted = false;       ///< set at each entry of an attempt; nothing reads it
    bool blnMultiComplete = false;    ///< the last document of a batch is done
    bool blnAdvanceQueue = false;     ///< the queue is to step one file on
    std::int16_t intListRow = 0;      ///< row of the current file in lvwGeneral
    QString strTargetPath;            ///< copy of strOutputFile
    QString strFromText;              ///< page numbers as text
    QString strToText;
    QStringList astrStatusText; ///< the ten status texts
    QString strListFilled;      ///< date and time when the whole selection was entered in lvwGeneral
};

/// Values of ProgressRun::intParseState.
namespace parse_state {
inline constexpr std::int16_t kStart = 0;
inline constexpr std::int16_t kPasswordWanted = 4;
inline constexpr std::int16_t kThrough = 5;
inline constexpr std::int16_t kFailed = 15;
} // namespace parse_state

/// Values of RunFlags::intRunKind.
namespace run_kind {
inline constexpr std::int16_t kConvert = 1;
inline constexpr std::int16_t kExtractImages = 2;
} // namespace run_kind
