#include "core/Polling.h"

#include "core/BoundedList.h"
#include "core/EngineCall.h"
#include "core/ProgressRun.h"
#include "core/RunFollowUp.h"
#include "core/StageCaptions.h"
#include "services/ErrorTrap.h"

namespace run {
namespace {

QString withNumber(QString text, std::int32_t number) {
    return text.replace("%ld", QString::number(number));
}

QString statusText(const QStringList& texts, std::int32_t status, std::int32_t first, std::int32_t second) {
    switch (status) {
    case 0:
        return " ";
    case 1:
    case 2:
    case 3:
        return textAt(texts, status - 1);
    case 4:
        return withNumber(textAt(texts, 3), first);
    case 5:
        return withNumber(textAt(texts, 3), first) + withNumber(textAt(texts, 4), second);
    case 6:
    case 7:
        return withNumber(textAt(texts, status - 1), first);
    case 10:
    case 11:
    case 12:
        return textAt(texts, status - 3);
    default:
        return {};
    }
}

void endWithFailure(ProgressRun& run) {
    run.view.hideButton(ProgressView::Button::cmdCancel);
    run.view.showButton(ProgressView::Button::cmdViewLog);
    run.followUp.BatchConversion(run);
}

void endWithSuccess(ProgressRun& run) {
    DisplayProgressFormCaptions(run, "disableall");
    run.view.setBar(10);
    run.followUp.ShowCompleted(run, RunFollowUp::Offer::Allowed);
}

void poll(ProgressRun& run) {
    if (!run.blnPollEnabled) {
        run.view.stopTimer();
        return;
    }
    // An engine that is still at work on a call will be asked at the next tick.
    if (!run.objEngine || run.isEngineBusy)
        return;
    std::int32_t status = 0;
    std::int32_t first = 0;
    std::int32_t second = 0;
    std::int16_t finishCode = 0;
    callEngine(run, [&](orvane::ConversionEngine& engine) { status = engine.GetStatus(first, second, finishCode); });
    if (run.blnFormUnloaded)
        return;
    // Released before anything else happens, so that a tick in between has nothing to ask.
    if (finishCode > 0)
        run.objEngine.reset();
    run.view.setStatus(GetStatusText(run, status, first, second));
    if (finishCode <= 0)
        return;
    run.view.stopTimer();
    if (finishCode == orvane::finish::kFailed)
        endWithFailure(run);
    else if (finishCode == orvane::finish::kSucceeded)
        endWithSuccess(run);
}

} // namespace

QString GetStatusText(const ProgressRun& run, std::int32_t status, std::int32_t first, std::int32_t second) {
    const ErrorTrap trap("frmProgress", "Timer1_Timer");
    QString text;
    trap([&] { text = statusText(run.astrStatusText, status, first, second); });
    return text;
}

void Timer1_Timer(ProgressRun& run) {
    const ErrorTrap trap("frmProgress", "Timer1_Timer", [&run] {
        run.view.stopTimer();
        run.objEngine.reset();
    });
    trap([&] { poll(run); });
}

} // namespace run
