#include "core/AttemptResult.h"

#include "core/BoundedList.h"
#include "core/ProgressRun.h"
#include "core/RunFollowUp.h"
#include "core/StageCaptions.h"

namespace run {
namespace {

namespace result = orvane::result;

constexpr std::int16_t kOfferWholeBatch = 1; ///< of intLauchMs

constexpr char kSharingViolation[] = "Cannot convert with the specified file name.\n"
                                     "There has been a sharing violation.\n"
                                     "The source or destination file may be in use.\n"
                                     "Try saving with a different file name.";

bool isPasswordRequest(std::int32_t engineResult) {
    return engineResult == result::kUserPasswordNeeded || engineResult == result::kOwnerPasswordNeeded;
}

void setStatus(ProgressRun& run, const ErrorTrap& trap, const QString& text) {
    if (!run.blnFormUnloaded)
        trap([&] { run.view.setStatus(text); });
}

void startPolling(ProgressRun& run, const ErrorTrap& trap) {
    setStatus(run, trap, "Initiated asynchronous conversion.");
    trap([&] { run.view.startTimer(); });
}

/// The failed file takes its place among the results, so that the others of its batch can be offered.
void recordFailedFile(ProgressRun& run, const ErrorTrap& trap) {
    BatchQueue& queue = run.records.queue;
    ++queue.intCurrentIndex;
    trap([&] { storeAt(queue.strOutputFiles, queue.intCurrentIndex, run.records.job.strOutputFile); });
    trap([&] { run.followUp.LaunchMsWordForMultipleFiles(run); });
}

void tellFailure(ProgressRun& run, const ErrorTrap& trap) {
    if (!run.blnFormUnloaded) {
        if (run.records.flags.intRunKind == run_kind::kExtractImages) {
            setStatus(run, trap, "Image Extraction has failed.");
        } else {
            setStatus(run, trap, "Failed to Convert File.");
            if (run.records.settings.intLauchMs == kOfferWholeBatch)
                recordFailedFile(run, trap);
        }
    }
    run.objEngine.reset();
    DisplayProgressFormCaptions(run, "disableall");
    trap([&] { run.view.hideButton(ProgressView::Button::cmdCancel); });
    trap([&] { run.view.showButton(ProgressView::Button::cmdViewLog); });
}

void tellSharingViolation(ProgressRun& run, const ErrorTrap& trap) {
    run.records.flags.blnCloseRequested = true;
    trap([&] { run.messageBox.tell(UserMessages::Icon::Critical, kSharingViolation, kWindowTitle); });
    run.intParseState = parse_state::kFailed;
}

} // namespace

void judgeResult(ProgressRun& run, const ErrorTrap& trap, std::int32_t engineResult) {
    if (isPasswordRequest(engineResult)) {
        // An image run polls while the prompt is open, and this engine has nothing more to tell.
        run.objEngine.reset();
        run.intParseState = parse_state::kPasswordWanted;
        return;
    }
    if (engineResult == result::kAccepted) {
        if (run.blnAsyncRun)
            startPolling(run, trap);
        else
            setStatus(run, trap, "File converted successfully!");
        run.intParseState = parse_state::kThrough;
        return;
    }
    tellFailure(run, trap);
    if (engineResult == result::kInUse) {
        tellSharingViolation(run, trap);
    } else if (engineResult > 0) {
        run.records.flags.blnCloseRequested = true;
        run.intParseState = parse_state::kFailed;
    }
}

} // namespace run
