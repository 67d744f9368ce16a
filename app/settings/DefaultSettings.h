#pragma once

#include "records/SharedRecords.h"

/// Fills the settings with the values of a first start. Writes nothing to disk.
/// Requires: strHomeFolder is known.
void SetDefaultSettings(SharedRecords& records);
