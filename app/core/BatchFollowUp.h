#pragma once

#include "core/RunFollowUp.h"

class DocumentShell;

/// What follows a run: completion, the offer of the documents, and the queue of selected files.
class BatchFollowUp : public RunFollowUp {
public:
    explicit BatchFollowUp(DocumentShell& shell)
        : m_shell(shell) {}

    void ShowCompleted(ProgressRun& run, Offer prompt) override;
    void BatchConversion(ProgressRun& run) override;
    void GetNextFile(ProgressRun& run) override;
    void LaunchMsWordForMultipleFiles(ProgressRun& run) override;
    void UpdateListRow(ProgressRun& run, int row, const QString& text, int icon) override;

private:
    DocumentShell& m_shell;
};
