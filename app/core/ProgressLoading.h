#pragma once

struct ProgressRun;

namespace run {

/// The loading of the progress window: sets the run's fields and texts and starts it, so that the whole first attempt
/// runs inside the loading. Errors: each failed statement goes to the error log, and the next one runs.
void Form_Load(ProgressRun& run);

/// Shows the conversion log, and steps the queue past the file that failed.
void cmdViewLog_click(ProgressRun& run);

} // namespace run
