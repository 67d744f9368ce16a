#pragma once

#include "records/SharedRecords.h"

#include <QString>
#include <QStringList>

// The command line names one file, optionally followed by "~!~" and a mode: report.pdf~!~2.

/// The arguments as one text. A relative path to a PDF becomes absolute, so that it stays the same file wherever the
/// program goes.
QString commandLineOf(const QStringList& arguments);

/// Whether the pending command line is acted on: it is long enough to name a file, and the program is not closing. One
/// that is too short is left where it is.
bool isCommandLinePending(const RunFlags& flags);

/// What kind of file a command line names, judged by the end of the text as it was given, quotes and mode included.
enum class CommandLineFile { Pdf, WordDocument, Other };
CommandLineFile fileOnCommandLine(const QString& strCommandLine);

/// Takes the command line out of the records and makes its file the selection; a path without a mode loses its quotes
/// and gets the mode "1". Mode "1" runs at once (`intDirectRun` becomes 1), "2" with the wizard, any other as the
/// settings have it.
void takeCommandLine(SharedRecords& records, std::int16_t& intDirectRun);
