#pragma once

struct ProgressRun;
class DocumentShell;

namespace run {

/// Sets blnMultiComplete once the last document of a batch is there: when the document that is recorded one below the
/// bound has the name of the selection's first file, which is worked last. Letter case counts. A single file never
/// completes a batch. Errors: logged.
void checkMultConComplete(ProgressRun& run);

/// Opens every recorded document that was completed and is there.
/// Errors: those of the shell.
void openCompletedDocuments(ProgressRun& run, DocumentShell& shell);

/// Offers the documents of a batch whose last file failed or was given up. Errors: logged; they end the procedure.
void LaunchMsWordForMultipleFiles(ProgressRun& run, DocumentShell& shell);

} // namespace run
