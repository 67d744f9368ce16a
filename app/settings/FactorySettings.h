#pragma once

#include "records/SharedRecords.h"

#include <functional>

namespace pugi {
class xml_document;
}

/// The factory values that ship as XML/DefaultSettings.xml beside the executable, so that they can be changed without a
/// new build.

/// What the restore needs around it.
struct FactorySources {
    QString file;        ///< the XML file
    QString shownFolder; ///< what the options window shows as the folder (its txtShow)
    std::function<void(const QString& path)> reportLoadFailure;
};

/// Value of the first parameter of that name, 0 when there is none or it is no 16-bit integer.
std::int16_t GetDefaultValue(const pugi::xml_document& document, const char* name);

/// Puts the factory values into the settings and writes them to the settings file at once.
/// Errors: a file that cannot be loaded is reported, and nothing has changed.
void RestoreDefaultSettings(SharedRecords& records, const FactorySources& sources);
