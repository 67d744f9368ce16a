#include "core/Attempt.h"

#include "core/AttemptResult.h"
#include "core/EngineCall.h"
#include "core/EngineRequest.h"
#include "core/PasswordStep.h"
#include "core/ProgressRun.h"
#include "core/StageCaptions.h"
#include "core/Staging.h"
#include "services/ErrorTrap.h"

#include <QDir>

namespace run {

const char kTerminatedAbnormallyMessage[] =
    "Tavrelion application seems to have terminated abnormally. Close all instances of Winword and start the Tavrelion "
    "application again.";

namespace {

constexpr std::int16_t kModeWithoutEngine = 5; ///< of intReconstMode; no window offers it
constexpr std::int16_t kImageFormatOfDocuments = 1;

/// What becomes of the attempt after one of its steps.
enum class Step { GoOn, End };

bool isClosing(const ProgressRun& run) {
    return run.records.flags.blnCloseRequested;
}

void prepareImageRun(ProgressRun& run, const ErrorTrap& trap) {
    if (run.records.flags.intRunKind != run_kind::kExtractImages)
        return;
    run.blnAsyncRun = true;
    trap([&] { run.view.startTimer(); });
    run.blnPollEnabled = true;
}

void refuseMissingSource(ProgressRun& run, const ErrorTrap& trap) {
    run.records.flags.blnCloseRequested = true;
    trap([&] { run.view.unload(); });
    trap([&] { run.eventLoop.yield(); });
    trap([&] { run.mainWindow.show(); });
    trap([&] {
        run.messageBox.tell(UserMessages::Icon::Critical, "The selected PDF file doesn't exist.", kWindowTitle);
    });
}

void showStage(ProgressRun& run, const ErrorTrap& trap, const QString& stageLabel, int barValue) {
    if (isClosing(run))
        return;
    DisplayProgressFormCaptions(run, stageLabel);
    trap([&] { run.view.setBar(barValue); });
}

/// Whether the run goes on; one that is to stop loses its window.
Step leaveWhenClosing(ProgressRun& run, const ErrorTrap& trap) {
    if (!isClosing(run))
        return Step::GoOn;
    trap([&] { run.view.unload(); });
    return Step::End;
}

/// Lets events run. What they did can end the run, as can what happened before.
Step yieldOrLeave(ProgressRun& run, const ErrorTrap& trap) {
    if (leaveWhenClosing(run, trap) == Step::End)
        return Step::End;
    trap([&] { run.eventLoop.yield(); });
    return leaveWhenClosing(run, trap);
}

Step showInitialStage(ProgressRun& run, const ErrorTrap& trap) {
    if (!isClosing(run))
        trap([&] { run.view.show(); });
    trap([&] { run.mainWindow.hide(); });
    showStage(run, trap, "lblInitConversion", 1);
    if (yieldOrLeave(run, trap) == Step::End)
        return Step::End;
    trap([&] { run.mainWindow.hide(); });
    return Step::GoOn;
}

Step stageOrRefuse(ProgressRun& run, const ErrorTrap& trap, const QString& source) {
    if (stageSource(run, trap, source) == Staging::Ready)
        return Step::GoOn;
    if (!isClosing(run))
        trap([&] {
            run.messageBox.tell(UserMessages::Icon::Critical,
                                "Failed to clear temporary setup. Sorry for inconvenience.\n\nPlease try again.",
                                kWindowTitle);
        });
    trap([&] { run.view.unload(); });
    return Step::End;
}

std::int32_t askEngine(ProgressRun& run, const ErrorTrap& trap, const QString& password) {
    run.objEngine.reset();
    trap([&] { run.objEngine = run.engines.create(); });
    const std::int16_t layout = layoutCode(run);
    ConversionJob& job = run.records.job;
    if (layout != orvane::layout_code::kImages)
        job.intImageFormat = kImageFormatOfDocuments;
    if (job.strImageFolder.endsWith(QDir::separator()))
        job.strImageFolder.chop(1);
    run.lngConvFlags = GetConversionFlags(run);
    // A call that gives no answer counts as a failure, so that nothing waits for an engine that does not work.
    std::int32_t result = orvane::result::kFailed;
    const orvane::ConversionRequest request = engineRequest(run, password, layout);
    trap([&] { callEngine(run, [&](orvane::ConversionEngine& engine) { result = engine.DoConvert(request); }); });
    trap([&] { run.eventLoop.yield(); });
    return result;
}

void tryFile(ProgressRun& run, const ErrorTrap& trap, const QString& password) {
    const std::int32_t result = askEngine(run, trap, password);
    judgeResult(run, trap, result);
    showStage(run, trap, "lblScanPDF", 3);
    if (run.intParseState == parse_state::kPasswordWanted)
        trap([&] { askForPassword(run, result); });
}

void endAttempt(ProgressRun& run, const ErrorTrap& trap) {
    trap([&] { run.eventLoop.yield(); });
    if (!isClosing(run))
        trap([&] { run.view.setBar(4); });
    trap([&] { run.eventLoop.yield(); });
}

} // namespace

void ParsePDF(ProgressRun& run, QString source, QString password, QString, QString) {
    const ErrorTrap trap("frmprogress", "ParsePDF", [&run] { run.view.stopTimer(); });
    run.blnRunStarted = true;
    prepareImageRun(run, trap);
    // An empty source is no missing file: it ends the attempt further down, with nothing said.
    if (!source.isEmpty() && !run.files.exists(source))
        return refuseMissingSource(run, trap);
    if (showInitialStage(run, trap) == Step::End || source.isEmpty())
        return;
    if (stageOrRefuse(run, trap, source) == Step::End)
        return;
    showStage(run, trap, "lblParsePDF", 2);
    if (yieldOrLeave(run, trap) == Step::End)
        return;
    if (run.records.settings.intReconstMode != kModeWithoutEngine)
        tryFile(run, trap, password);
    endAttempt(run, trap);
}

} // namespace run
