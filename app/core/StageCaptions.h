#pragma once

#include <QString>

struct ProgressRun;

namespace run {

/// Shows the stage of the run: puts the caption of the stage label of that name on the status line. "disableall" hides
/// the stage labels and leaves the status line alone; any other key does nothing.
void DisplayProgressFormCaptions(ProgressRun& run, const QString& key);

} // namespace run
