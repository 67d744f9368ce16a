#include "core/SingleFileFollowUp.h"

#include "core/BoundedList.h"
#include "core/Leaving.h"
#include "core/ProgressRun.h"
#include "services/ErrorTrap.h"

namespace {

void emptyOutput(SharedRecords& records) {
    records.job.strOutputFile.clear();
    records.job.strOutputShown.clear();
}

} // namespace

void SingleFileFollowUp::ShowCompleted(ProgressRun& run, Offer) {
    const ErrorTrap trap("frmprogress", "ShowCompleted");
    if (run.records.flags.blnCloseRequested) {
        trap([&] { run.view.unload(); });
        return;
    }
    trap([&] { run.eventLoop.yield(); });
    BatchQueue& queue = run.records.queue;
    ConversionJob& job = run.records.job;
    ++queue.intCurrentIndex;
    job.strWordTarget = job.strOutputFile;
    trap([&] { storeAt(queue.strOutputFiles, queue.intCurrentIndex, job.strOutputFile); });
    job.strPdfPassword.clear();
    run.records.flags.intDialogAnswer = 0;
    run.blnAdvanceQueue = true;
    BatchConversion(run);
    run.blnAdvanceQueue = false;
    trap([&] { run.mainWindow.showFinishedDocument(job.strWordTarget); });
    run::cmdClose_click(run);
}

void SingleFileFollowUp::BatchConversion(ProgressRun& run) {
    const ErrorTrap trap("frmprogress", "BatchConversion");
    if (run.records.flags.blnCloseRequested) {
        trap([&] { run.view.unload(); });
        return;
    }
    trap([&] { run.eventLoop.yield(); });
    if (run.blnAdvanceQueue)
        --run.records.queue.lngSelectedBound;
    trap([&] { run.mainWindow.awaitSource(); });
    trap([&] { run.mainWindow.emptyJobBoxes(); });
    emptyOutput(run.records);
    run.records.job.strSourcePDF.clear();
    run.records.job.strFileSizeText.clear();
}

void SingleFileFollowUp::GetNextFile(ProgressRun& run) {
    const ErrorTrap trap("frmProgress", "GetNextFile");
    --run.records.queue.lngSelectedBound;
    trap([&] { run.mainWindow.awaitSource(); });
    trap([&] { run.mainWindow.emptyJobBoxes(); });
    run.records.job.strSourcePDF = " ";
    run.records.job.strFileSizeText = " ";
}

void SingleFileFollowUp::LaunchMsWordForMultipleFiles(ProgressRun&) {
    // A single file never completes a batch.
}

void SingleFileFollowUp::UpdateListRow(ProgressRun&, int, const QString&, int) {
    // The list has no rows during a run, and a row that is not there is ignored.
}
