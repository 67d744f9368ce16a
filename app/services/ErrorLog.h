#pragma once

#include <QString>

/// Appends a record of three lines to GUILog.tmp in the home folder: the developers' log of trapped failures, which is
/// not the conversion log. A description of blanks writes nothing, so that a handler can call this unconditionally.
/// Errors: none; a log that cannot be written stays silent.
void WriteErrorLog(const QString& formName, const QString& moduleName, const QString& description);
