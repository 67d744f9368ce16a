#include "core/PasswordStep.h"

#include "core/ProgressRun.h"

namespace run {
namespace {

void noteOwnerRequest(ProgressRun& run) {
    run.intOwnerPassAsked = 1;
    if (run.intUserPassAsked == 1 && run.intPasswordKept == 0) {
        run.strFirstPassword = run.records.job.strPdfPassword;
        run.intPasswordKept = 1;
    }
}

} // namespace

void askForPassword(ProgressRun& run, std::int32_t engineResult) {
    if (engineResult == orvane::result::kOwnerPasswordNeeded)
        noteOwnerRequest(run);
    else if (engineResult == orvane::result::kUserPasswordNeeded)
        run.intUserPassAsked = 1;
    const bool isOwner = engineResult != orvane::result::kUserPasswordNeeded && run.intOwnerPassAsked == 1;
    run.passwordPrompt.ask(isOwner ? PasswordPrompt::Password::Owner : PasswordPrompt::Password::User);
    if (run.intUserPassAsked == 1 && run.intOwnerPassAsked == 1)
        run.records.job.strPdfPassword += orvane::kPasswordSeparator + run.strFirstPassword;
}

} // namespace run
