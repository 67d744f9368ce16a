#include "core/BatchOffer.h"

#include "core/BoundedList.h"
#include "core/Completion.h"
#include "core/OpenDocument.h"
#include "core/Paths.h"
#include "core/ProgressRun.h"
#include "services/ErrorTrap.h"

namespace run {
namespace {

void markWhenComplete(ProgressRun& run) {
    const BatchQueue& queue = run.records.queue;
    if (upperBound(queue.strSelectedFiles) < 1)
        return;
    const QString& lastDocument = textAt(queue.strOutputFiles, upperBound(queue.strOutputFiles) - 1);
    if (!lastDocument.isEmpty() && stemOf(nameOf(lastDocument)) == stemOf(textAt(queue.strSelectedFiles, 1)))
        run.blnMultiComplete = true;
}

} // namespace

void checkMultConComplete(ProgressRun& run) {
    const ErrorTrap trap("frmProgress", "checkMultConComplete");
    trap([&] { markWhenComplete(run); });
}

void openCompletedDocuments(ProgressRun& run, DocumentShell& shell) {
    const BatchQueue& queue = run.records.queue;
    for (int i = 0; i < upperBound(queue.strOutputFiles); ++i) {
        const QString& document = textAt(queue.strOutputFiles, i);
        if (run.files.exists(document) && textAt(queue.strFileStatus, i) == kCompletedStatus)
            OpenDocument(shell, run.records, document);
        run.records.flags.intWordOpened = 1; // whether or not one was opened
    }
}

void LaunchMsWordForMultipleFiles(ProgressRun& run, DocumentShell& shell) {
    const ErrorTrap trap("frmProgress", "LaunchMsWordForMultipleFiles");
    trap([&] {
        checkMultConComplete(run);
        if (!run.blnMultiComplete)
            return;
        run.yesNoDialog.ask("msgDocumentGenerationComplete", YesNoDialog::Place::BelowCentreOfProgress);
        if (run.records.flags.intDialogAnswer == 1)
            openCompletedDocuments(run, shell);
    });
}

} // namespace run
