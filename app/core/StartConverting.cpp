#include "core/StartConverting.h"

#include "core/Attempt.h"
#include "core/EngineComponent.h"
#include "core/EngineRequest.h"
#include "core/Leaving.h"
#include "core/ProgressRun.h"
#include "core/RunFollowUp.h"
#include "core/StageCaptions.h"
#include "services/ErrorTrap.h"

namespace run {
namespace {

using Button = ProgressView::Button;

constexpr std::int16_t kModeOfImageRun = 1;

bool isClosing(const ProgressRun& run) {
    return run.records.flags.blnCloseRequested;
}

void resetFile(ProgressRun& run, const ErrorTrap& trap) {
    run.intOwnerPassAsked = 0;
    run.intUserPassAsked = 0;
    run.intPasswordKept = 0;
    run.strFirstPassword = " ";
    trap([&] { run.view.showButton(Button::cmdCancel); });
    run.intParseState = parse_state::kStart;
}

void testForEngine(ProgressRun& run, const ErrorTrap& trap) {
    const bool isConversion = run.records.flags.intRunKind == run_kind::kConvert;
    const std::int16_t mode = isConversion ? run.records.settings.intReconstMode : kModeOfImageRun;
    QString message;
    bool found = false;
    IsComponentExists(run.engines, mode, message, found);
    if (found || isClosing(run))
        return;
    trap([&] {
        run.messageBox.tell(UserMessages::Icon::Information,
                            message + "\nPlease make sure that the file exists and registered.", kWindowTitle);
    });
    run.records.flags.blnCloseRequested = true;
}

void nameListRow(ProgressRun& run, const ErrorTrap& trap, const QString& word, int icon) {
    trap([&] { run.followUp.UpdateListRow(run, run.intListRow, word, icon); });
}

/// Asks before a document is replaced. False when it is to stay, which ends the run.
bool mayWriteTarget(ProgressRun& run, const ErrorTrap& trap) {
    if (!run.files.exists(run.records.job.strOutputFile))
        return true;
    trap([&] { run.view.show(); });
    trap([&] { run.yesNoDialog.ask("lblAlreadyExists", YesNoDialog::Place::BelowCentreOfProgress); });
    if (run.records.flags.intDialogAnswer != 0)
        return true;
    nameListRow(run, trap, "Cancelled", list_icon::kCancelled);
    run.blnAdvanceQueue = true;
    trap([&] { run.followUp.BatchConversion(run); });
    run.blnAdvanceQueue = false;
    trap([&] { run.view.showButton(Button::cmdClose); });
    cmdClose_click(run);
    return false;
}

void attemptUntilThrough(ProgressRun& run) {
    const ConversionJob& job = run.records.job;
    while (run.intParseState != parse_state::kThrough) {
        ParsePDF(run, job.strSourcePDF, job.strPdfPassword, run.strFromText, run.strToText);
        if (isClosing(run))
            run.intParseState = parse_state::kThrough;
    }
}

void convert(ProgressRun& run, const ErrorTrap& trap) {
    const ConversionJob& job = run.records.job;
    ++run.intListRow;
    nameListRow(run, trap, "Converting", list_icon::kWorking);
    if (!mayWriteTarget(run, trap))
        return;
    run.strTargetPath = job.strOutputFile;
    run.strFromText = job.intUseFromTo != 0 ? QString() : QString::number(job.intPageFrom);
    run.strToText = job.intUseFromTo != 0 ? QString() : QString::number(job.intPageTo);
    attemptUntilThrough(run);
    trap([&] { run.view.setDefaultPointer(); });
}

/// The window went down while the images were being asked for.
void leaveImageRun(ProgressRun& run, const ErrorTrap& trap) {
    trap([&] { run.view.setDefaultPointer(); });
    if (run.records.settings.intProgressWind == 1 && !isClosing(run)) {
        trap([&] { run.view.hideButton(Button::cmdCancel); });
        trap([&] { run.view.showButton(Button::cmdClose); });
        return;
    }
    run.records.flags.blnCloseRequested = true;
    trap([&] { run.mainWindow.show(); });
    trap([&] { run.view.unload(); });
}

void extractImages(ProgressRun& run, const ErrorTrap& trap) {
    const ConversionJob& job = run.records.job;
    ++run.intListRow;
    nameListRow(run, trap, "Extracting", list_icon::kWorking);
    run.strTargetPath = job.strOutputFile;
    run.strFromText = QString::number(job.intImagePageFrom);
    run.strToText = QString::number(job.intImagePageTo);
    if (run.blnAsyncRun) {
        run.blnAsyncRun = false;
        run.records.settings.strConversionMethod = "1";
    }
    attemptUntilThrough(run);
    if (!isClosing(run) && run.intParseState == parse_state::kThrough)
        DisplayProgressFormCaptions(run, "lblExtractImage");
    if (!isClosing(run))
        trap([&] { run.view.setBar(5); });
    trap([&] { run.eventLoop.yield(); });
    if (!run.blnAsyncRun && run.intParseState == parse_state::kThrough)
        leaveImageRun(run, trap);
}

} // namespace

void StartConverting(ProgressRun& run) {
    const ErrorTrap trap("frmprogress", "StartConverting");
    resetFile(run, trap);
    testForEngine(run, trap);
    takeImageFormat(run.records.job);
    if (!isClosing(run))
        trap([&] { run.eventLoop.yield(); });
    if (isClosing(run)) {
        trap([&] { run.view.unload(); });
        return;
    }
    if (run.records.flags.intRunKind == run_kind::kConvert)
        convert(run, trap);
    else if (run.records.flags.intRunKind == run_kind::kExtractImages)
        extractImages(run, trap);
}

} // namespace run
