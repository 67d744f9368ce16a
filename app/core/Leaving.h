#pragma once

#include "core/UnloadMode.h"

struct ProgressRun;

namespace run {

// The ways out of the progress window. Errors of all four: each failed statement goes to the error log, and the next
// one runs.

/// Asks whether to cancel; on Yes stops the engine, steps the queue and brings the main window back.
void cmdCancel_click(ProgressRun& run);

/// Closes the window by the program.
void cmdClose_click(ProgressRun& run);

/// Asks before the user's close box ends the application; `cancel` becomes true when the window is to stay.
void Form_QueryUnload(ProgressRun& run, bool& cancel, UnloadMode unloadMode);

/// The window goes: the engine is released, which leaves a run that was closed this way to end by itself, and the main
/// window comes back.
void Form_Unload(ProgressRun& run);

} // namespace run
