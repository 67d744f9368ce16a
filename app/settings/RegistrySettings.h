#pragma once

#include "records/SharedRecords.h"

/// Fills the settings from the registry key of the program, by the rules of the settings file; the page range stays as
/// it is, and a missing value reads as an empty text. Nothing writes that key today and nothing calls this: it serves
/// installations that are set up by the registry.
void LoadSettingsFromRegistry(SharedRecords& records);
