#pragma once

#include <QString>

struct ProgressRun;

namespace run {

/// One attempt on one file: checks the source, stages a copy of it, calls the engine and reacts to its result. What the
/// attempt came to stands in intParseState and blnCloseRequested. The last two arguments are taken and not used: pages
/// reach the engine through strPageRange only. Errors: each failed statement goes to the error log and stops the timer,
/// and the next statement runs.
void ParsePDF(ProgressRun& run, QString source, QString password, QString fromText, QString toText);

/// A message that is defined with the attempt and that nothing shows.
extern const char kTerminatedAbnormallyMessage[];

} // namespace run
