#pragma once

#include "core/RunFollowUp.h"

class DocumentShell;

namespace run {

/// Status of a file that is through, in strFileStatus and in lvwGeneral.
inline constexpr char kCompletedStatus[] = "Completed";

/// The engine reported success: records the document, offers it as intLauchMs says, moves the queue and closes the
/// window. An image run offers nothing. Errors: each failed statement goes to the error log, and the next one runs.
void ShowCompleted(ProgressRun& run, RunFollowUp::Offer prompt, DocumentShell& shell);

} // namespace run
