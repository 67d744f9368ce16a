#include "core/StartUp.h"

#include "core/OutputDerivation.h"
#include "services/ErrorTrap.h"

namespace {

constexpr std::chrono::milliseconds kMainWindowDelay{250};

} // namespace

void StartUp(SharedRecords& records, StartUpSteps& steps) {
    steps.LoadSettings();
    if (steps.IsMSWordInstalled() == 0)
        records.settings.intOutputFormat = output_format::kRtf;
    // The second load puts a stored format back over the forced one; users without a word processor rely on their
    // choice.
    steps.LoadSettings();
    steps.runLater(kMainWindowDelay, [&records, &steps] {
        const ErrorTrap trap("Timer", "Timer1_Timer");
        trap([&] {
            records.flags.strCommandLine = steps.programCommandLine();
            steps.showMainWindow();
        });
    });
}
