#pragma once

struct ProgressRun;

namespace run {

/// Opens a run and attempts its file until it is through: again after each password, and again after a result below
/// zero. The last step of the progress window's loading, so every run has its own window. Errors: each failed statement
/// goes to the error log, and the next one runs.
void StartConverting(ProgressRun& run);

} // namespace run
