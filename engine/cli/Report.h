#pragma once

#include "cli/ExitCode.h"
#include "cli/JobFollower.h"

#include <string>

namespace orvane::cli {

ExitCode exitCodeOf(const Outcome& outcome);

/// One line about a document that was written: "report.docx: 12 pages, 3 notes".
std::string successLine(const Outcome& outcome);

/// One line about the pictures that were written: "out: 4 pictures of 12 pages".
std::string picturesLine(const Outcome& outcome);

/// One line about a file that was not converted, with what the user can do about it.
std::string failureLine(const Outcome& outcome);

/// The outcome of a conversion as a JSON object on one line.
std::string conversionJson(const Outcome& outcome);

/// The outcome of `orvane images` as a JSON object on one line.
std::string imagesJson(const Outcome& outcome);

/// What `orvane info` tells: a line a fact.
std::string infoText(const Outcome& outcome);

/// The same as a JSON object on one line.
std::string infoJson(const Outcome& outcome);

} // namespace orvane::cli
