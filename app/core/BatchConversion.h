#pragma once

struct ProgressRun;

namespace run {

// A batch is worked from the last file of the selection to its first, one run a file. These two bring the next file
// into the main window, where the user's next command starts it. Errors of both: each failed statement goes to the
// error log, and the next one runs.

/// Steps the queue's cursor when blnAdvanceQueue is set, and loads the file under it. A run that is to stop only loses
/// its window. A next file that is gone meanwhile is passed over silently: the main window keeps what it shows.
void BatchConversion(ProgressRun& run);

/// The same for a file that was given up: the cursor always steps, and any extension will do. At the end of the queue
/// it leaves blanks where BatchConversion() leaves nothing.
void GetNextFile(ProgressRun& run);

} // namespace run
