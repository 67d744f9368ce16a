#pragma once

#include "records/SharedRecords.h"

class MainView;

namespace run {

/// A locked file was given up: steps the queue one file back and puts the main window in order before the next file,
/// which the user starts. The run in hand stops at its next test. The next document goes into the folder of the one
/// given up, whatever the output mode; the size box keeps the old file's size.
/// Errors: each failed statement is skipped, and nothing is logged.
void giveUpLockedFile(SharedRecords& records, MainView& mainWindow);

} // namespace run
