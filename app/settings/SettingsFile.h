#pragma once

#include "records/SharedRecords.h"

#include <stdexcept>

/// The settings file exists and cannot be read, or holds nothing. The program cannot go on: going on with defaults
/// would overwrite what the user has chosen at the next save.
class SettingsUnreadable : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Path of the settings file: docval.temp in the home folder.
QString settingsFile(const SharedRecords& records);

/// Fills the settings from their file, or with the defaults where there is no file or one of fewer than seventeen
/// fields. Errors: SettingsUnreadable.
void LoadSettings(SharedRecords& records);

/// Writes the settings to their file, whole or not at all. An empty output folder becomes the home folder, but only
/// after the record is made: the file gets it at the next save. Errors: logged; the user sees nothing.
void UpdateSettings(SharedRecords& records);
