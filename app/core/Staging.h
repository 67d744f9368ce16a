#pragma once

#include "services/ErrorTrap.h"

#include <QString>

struct ProgressRun;

namespace run {

/// What became of clearing the staging folder.
enum class Staging { Ready, NotReady };

/// Deletes the folder and makes it anew, waiting up to five seconds for whoever holds it.
/// Errors: throws when the folder cannot be made. NotReady when the run was told to stop or the path is empty; a folder
/// that still holds something after the five seconds counts as ready.
Staging WaitOnDeleteFolder(ProgressRun& run, const QString& path);

/// Clears the staging folder and copies the source into it under its own name. NotReady when the folder could not be
/// cleared. Errors: a failed statement goes to `trap` and the next one runs.
Staging stageSource(ProgressRun& run, const ErrorTrap& trap, const QString& source);

/// The staging folder below the home folder.
QString stagingFolder(const ProgressRun& run);

} // namespace run
