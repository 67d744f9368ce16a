#pragma once

#include <QString>

struct ProgressRun;

namespace run {

/// Sets status word and icon of a row of lvwGeneral. Errors: ignored, a row that is not there among them.
void UpdateListRow(ProgressRun& run, int row, const QString& text, int icon);

// The list has no rows during a run, and its tab shows only headers: nothing enters the selection with these two.

/// Puts a row in at `index`, counted from 1. Errors: throws for an index beyond the end and for a file name that the
/// list has already.
void AddToListView(ProgressRun& run, int index, const QString& fileName, const QString& source,
                   const QString& destination, const QString& status);

/// Enters the whole selection, in the order in which it is worked. Errors: as AddToListView().
void AddCompleteListView(ProgressRun& run);

} // namespace run
