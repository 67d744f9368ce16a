#pragma once

#include "base/Failure.h"

#include <string>

namespace orvane::cli {

/// What `orvane` returns to the shell. Scripts rely on these numbers: a meaning never changes, and there is no 1.
///
/// | code | meaning                                                                                    |
/// |------|--------------------------------------------------------------------------------------------|
/// | 0    | done                                                                                       |
/// | 2    | usage: wrong options, a page range without a page, a layout or format that is not there    |
/// | 3    | a password is needed, or the one given is wrong                                            |
/// | 4    | not a readable PDF                                                                         |
/// | 5    | the output cannot be written                                                               |
/// | 6    | cancelled                                                                                  |
/// | 7    | the conversion process died, ran past a limit, or met a fault of its own                   |
///
/// With several files it is that of the first file, in the order given, that was not converted.
enum class ExitCode {
    Done = 0,
    Usage = 2,
    Password = 3,
    NotAPdf = 4,
    Output = 5,
    Cancelled = 6,
    Died = 7,
};

ExitCode exitCodeFor(FailureCode code);

/// The table above as it stands at the end of --help.
std::string exitCodeHelp();

} // namespace orvane::cli
