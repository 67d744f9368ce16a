#pragma once

#include "core/RunFollowUp.h"

/// What follows a run of one file: the main window comes back and says where the document lies. There is no batch to
/// step through, nothing is offered to the word processor, and no list is filled.
class SingleFileFollowUp : public RunFollowUp {
public:
    void ShowCompleted(ProgressRun& run, Offer prompt) override;
    void BatchConversion(ProgressRun& run) override;
    void GetNextFile(ProgressRun& run) override;
    void LaunchMsWordForMultipleFiles(ProgressRun& run) override;
    void UpdateListRow(ProgressRun& run, int row, const QString& text, int icon) override;
};
