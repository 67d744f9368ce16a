#include "core/BatchFollowUp.h"

#include "core/BatchConversion.h"
#include "core/BatchOffer.h"
#include "core/Completion.h"
#include "core/ListRows.h"

void BatchFollowUp::ShowCompleted(ProgressRun& run, Offer prompt) {
    run::ShowCompleted(run, prompt, m_shell);
}

void BatchFollowUp::BatchConversion(ProgressRun& run) {
    run::BatchConversion(run);
}

void BatchFollowUp::GetNextFile(ProgressRun& run) {
    run::GetNextFile(run);
}

void BatchFollowUp::LaunchMsWordForMultipleFiles(ProgressRun& run) {
    run::LaunchMsWordForMultipleFiles(run, m_shell);
}

void BatchFollowUp::UpdateListRow(ProgressRun& run, int row, const QString& text, int icon) {
    run::UpdateListRow(run, row, text, icon);
}
