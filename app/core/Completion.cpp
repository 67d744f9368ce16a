#include "core/Completion.h"

#include "core/BatchConversion.h"
#include "core/BatchOffer.h"
#include "core/BoundedList.h"
#include "core/Leaving.h"
#include "core/ListRows.h"
#include "core/OpenDocument.h"
#include "core/ProgressRun.h"
#include "services/ErrorTrap.h"

namespace run {
namespace {

using Button = ProgressView::Button;

// Values of intLauchMs.
constexpr std::int16_t kOfferWholeBatch = 1;
constexpr std::int16_t kOfferEachDocument = 2;

constexpr char kOffer[] = "msgDocumentGenerationComplete";

bool isAnsweredYes(const ProgressRun& run) {
    return run.records.flags.intDialogAnswer == 1;
}

void recordDocument(ProgressRun& run, const ErrorTrap& trap) {
    BatchQueue& queue = run.records.queue;
    ConversionJob& job = run.records.job;
    ++queue.intCurrentIndex;
    job.strWordTarget = job.strOutputFile;
    trap([&] { storeAt(queue.strOutputFiles, queue.intCurrentIndex, job.strWordTarget); });
}

void offer(ProgressRun& run, const ErrorTrap& trap) {
    trap([&] { run.yesNoDialog.ask(kOffer, YesNoDialog::Place::CentreOfProgress); });
}

/// Out of the way of the word processor.
void minimiseWindows(ProgressRun& run, const ErrorTrap& trap) {
    trap([&] { run.mainWindow.minimise(); });
    trap([&] { run.view.minimise(); });
}

void completeFileOfBatch(ProgressRun& run, const ErrorTrap& trap, DocumentShell& shell) {
    BatchQueue& queue = run.records.queue;
    trap([&] { storeAt(queue.strFileStatus, queue.intCurrentIndex, kCompletedStatus); });
    UpdateListRow(run, run.intListRow, kCompletedStatus, list_icon::kCompleted);
    if (run.blnMultiComplete)
        offer(run, trap);
    if (!isAnsweredYes(run))
        return;
    trap([&] { openCompletedDocuments(run, shell); });
    minimiseWindows(run, trap);
}

void completeSingleDocument(ProgressRun& run, const ErrorTrap& trap, RunFollowUp::Offer prompt, DocumentShell& shell) {
    if (prompt == RunFollowUp::Offer::Allowed)
        offer(run, trap);
    UpdateListRow(run, run.intListRow, kCompletedStatus, list_icon::kCompleted);
    if (!isAnsweredYes(run))
        return;
    trap([&] { OpenDocument(shell, run.records, run.records.job.strWordTarget); });
    minimiseWindows(run, trap);
}

void stepQueue(ProgressRun& run) {
    run.blnAdvanceQueue = true;
    BatchConversion(run);
    run.blnAdvanceQueue = false;
}

/// The buttons of a window that is to stay; a single document's window goes at once.
void arrangeWindow(ProgressRun& run, const ErrorTrap& trap) {
    if (run.records.settings.intProgressWind == 1) {
        trap([&] { run.view.hideButton(Button::cmdCancel); });
        trap([&] { run.view.showButton(Button::cmdClose); });
    } else if (run.records.settings.intLauchMs == kOfferEachDocument && !run.blnMultiComplete) {
        run.records.flags.blnCloseRequested = true;
        trap([&] { run.mainWindow.show(); });
        trap([&] { run.view.unload(); });
    }
}

} // namespace

void ShowCompleted(ProgressRun& run, RunFollowUp::Offer prompt, DocumentShell& shell) {
    const ErrorTrap trap("frmprogress", "ShowCompleted");
    if (run.records.flags.blnCloseRequested) {
        trap([&] { run.view.unload(); });
        return;
    }
    trap([&] { run.eventLoop.yield(); });
    recordDocument(run, trap);
    checkMultConComplete(run);
    run.records.job.strPdfPassword.clear();
    run.records.flags.intDialogAnswer = 0;
    const bool isConversion = run.records.flags.intRunKind == run_kind::kConvert;
    if (isConversion && run.records.settings.intLauchMs == kOfferWholeBatch)
        completeFileOfBatch(run, trap, shell);
    else if (isConversion && run.records.settings.intLauchMs == kOfferEachDocument)
        completeSingleDocument(run, trap, prompt, shell);
    else
        UpdateListRow(run, run.intListRow, kCompletedStatus, list_icon::kCompleted);
    stepQueue(run);
    if (isConversion)
        trap([&] { run.mainWindow.showFinishedDocument(run.records.job.strWordTarget); });
    arrangeWindow(run, trap);
    // The window closes here even where it was arranged to stay.
    cmdClose_click(run);
}

} // namespace run
