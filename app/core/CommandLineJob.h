#pragma once

#include "records/SharedRecords.h"

/// What the command line asks for.
enum class CommandLineJob { None, Ready, NotAPdf };

/// Makes the job of a PDF that is named on the command line: all pages, the document beside the PDF, in the format of
/// the settings. Takes the command line out of the records, so that it is acted on once.
CommandLineJob takeCommandLineJob(SharedRecords& records);
