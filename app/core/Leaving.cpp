#include "core/Leaving.h"

#include "core/Banner.h"
#include "core/BoundedList.h"
#include "core/ProgressRun.h"
#include "core/RunFollowUp.h"
#include "services/ErrorTrap.h"
#include "services/UnloadAllForms.h"

namespace run {
namespace {

constexpr char kFormName[] = "frmprogress";
constexpr char kCloseQuestion[] = "Do you want to close Tavrelion-PDF to Word Converter?";
constexpr std::int16_t kOfferWholeBatch = 1; ///< of intLauchMs

void stopEngine(ProgressRun& run, const ErrorTrap& trap) {
    if (!run.objEngine)
        return;
    trap([&] { run.objEngine->DoCancel(); });
    // One pass of the event loop is all the engine gets; it stops by itself.
    trap([&] { run.eventLoop.yield(); });
    run.objEngine.reset();
}

/// The cancelled file takes its place among the results, and the finished ones of its batch are offered.
void recordCancelledFile(ProgressRun& run, const ErrorTrap& trap) {
    if (run.records.settings.intLauchMs != kOfferWholeBatch || run.records.flags.intRunKind != run_kind::kConvert)
        return;
    BatchQueue& queue = run.records.queue;
    ++queue.intCurrentIndex;
    trap([&] { storeAt(queue.strOutputFiles, queue.intCurrentIndex, run.records.job.strOutputFile); });
    trap([&] { run.followUp.LaunchMsWordForMultipleFiles(run); });
}

void cancelRun(ProgressRun& run, const ErrorTrap& trap) {
    stopEngine(run, trap);
    recordCancelledFile(run, trap);
    run.records.flags.blnCloseRequested = true;
    trap([&] { run.mainWindow.show(); });
    awaitSource(run.mainWindow, trap);
    trap([&] { run.followUp.GetNextFile(run); });
    trap([&] { run.view.unload(); });
    trap([&] { run.eventLoop.yield(); });
}

} // namespace

void cmdCancel_click(ProgressRun& run) {
    const ErrorTrap trap(kFormName, "cmdCancel_click");
    trap([&] { run.view.stopTimer(); });
    trap([&] { run.yesNoDialog.ask("lblCancelConversion", YesNoDialog::Place::BelowCentreOfProgress); });
    if (run.records.flags.intDialogAnswer == 1)
        cancelRun(run, trap);
    else if (run.blnAsyncRun)
        trap([&] { run.view.startTimer(); });
    trap([&] { run.eventLoop.yield(); });
}

void cmdClose_click(ProgressRun& run) {
    const ErrorTrap trap(kFormName, "cmdClose_click");
    run.records.flags.blnCloseRequested = true;
    trap([&] { run.view.stopTimer(); });
    trap([&] { run.view.unload(); });
}

void Form_QueryUnload(ProgressRun& run, bool& cancel, UnloadMode unloadMode) {
    const ErrorTrap trap(kFormName, "Form_QueryUnload");
    run.records.flags.blnCloseRequested = true;
    trap([&] { run.view.stopTimer(); });
    if (unloadMode != UnloadMode::ControlMenu)
        return;
    auto answer = UserMessages::Answer::No;
    trap([&] { answer = run.messageBox.ask(kCloseQuestion, kWindowTitle); });
    if (answer == UserMessages::Answer::No) {
        cancel = true;
        if (run.blnAsyncRun) {
            trap([&] { run.view.startTimer(); });
            run.records.flags.blnCloseRequested = false;
        }
        return;
    }
    run.records.flags.blnCloseRequested = true;
    trap([&] { run.view.stopTimer(); });
    trap([&] { UnloadAllForms({}, run.windows); });
}

void Form_Unload(ProgressRun& run) {
    const ErrorTrap trap(kFormName, "Form_Unload");
    run.blnAsyncRun = false;
    run.blnFormUnloaded = true;
    run.objEngine.reset();
    trap([&] { run.mainWindow.show(); });
    if (!run.mainWindow.isMinimised())
        trap([&] { run.mainWindow.setNormal(); });
}

} // namespace run
