#include "core/ProgressLoading.h"

#include "core/ProgressRun.h"
#include "core/RunFollowUp.h"
#include "core/StartConverting.h"
#include "services/ErrorTrap.h"

namespace run {

using Button = ProgressView::Button;

namespace {

constexpr std::chrono::milliseconds kBusyTimeout{5000};

/// What the status line says once a call into the engine takes long.
void prepareBusyNotice(ProgressRun& run) {
    const bool isImageRun = run.records.flags.intRunKind == run_kind::kExtractImages;
    const QString text = run.statusTexts.caption(isImageRun ? "msgExtractImages" : "msgConvertingPDFToDOC");
    run.engineNotice = {kBusyTimeout, [&run, text] {
                            if (!run.blnFormUnloaded)
                                run.view.setStatus(text);
                        }};
}

} // namespace

void Form_Load(ProgressRun& run) {
    const ErrorTrap trap("frmprogress", "Form_Load");
    run.objEngine.reset();
    run.blnFormUnloaded = false;
    run.blnRunStarted = false;
    run.blnMultiComplete = false;
    run.blnAsyncRun = true;
    run.blnPollEnabled = true;
    trap([&] { run.view.stopTimer(); });
    trap([&] { run.astrStatusText = run.statusTexts.lblProgressStatus(); });
    trap([&] { run.view.showButton(Button::cmdCancel); });
    trap([&] { prepareBusyNotice(run); });
    run.intListRow = 0;
    StartConverting(run);
}

void cmdViewLog_click(ProgressRun& run) {
    const ErrorTrap trap("frmprogress", "cmdViewLog_click");
    const AppSettings& settings = run.records.settings;
    if (settings.intUseWiz == 0 || settings.intUseWiz == 1) {
        run.blnAdvanceQueue = true;
        run.records.flags.blnCloseRequested = false;
        trap([&] { run.followUp.BatchConversion(run); });
        run.blnAdvanceQueue = false;
    }
    trap([&] {
        if (run.files.exists(settings.strLogPath))
            run.view.showLog(run.files.readText(settings.strLogPath));
        else
            run.messageBox.tell(UserMessages::Icon::Exclamation,
                                "Log file does not exists. Please check the Log file path.", kWindowTitle);
    });
    trap([&] { run.view.showButton(Button::cmdClose); });
    trap([&] { run.view.hideButton(Button::cmdViewLog); });
}

} // namespace run
