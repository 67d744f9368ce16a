#pragma once

#include <QString>

struct ProgressRun;

/// What follows the work on one file: the result is recorded and offered, and the queue of selected files moves on.
class RunFollowUp {
public:
    virtual ~RunFollowUp() = default;

    /// The engine reported success. `prompt`: the document may be offered.
    enum class Offer { Allowed, Suppressed };
    virtual void ShowCompleted(ProgressRun& run, Offer prompt) = 0;

    /// Steps the queue when blnAdvanceQueue is set and brings the file under the cursor into the main window.
    virtual void BatchConversion(ProgressRun& run) = 0;

    /// The same for a file that was given up: the cursor always steps.
    virtual void GetNextFile(ProgressRun& run) = 0;

    /// Offers the documents of a batch once its last file is through.
    virtual void LaunchMsWordForMultipleFiles(ProgressRun& run) = 0;

    /// Sets status word and icon of a row of lvwGeneral; a row that is not there is ignored.
    virtual void UpdateListRow(ProgressRun& run, int row, const QString& text, int icon) = 0;
};
