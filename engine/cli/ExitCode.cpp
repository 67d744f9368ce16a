#include "cli/ExitCode.h"

namespace orvane::cli {

ExitCode exitCodeFor(FailureCode code) {
    switch (code) {
    case FailureCode::InvalidRequest:
    case FailureCode::NotSupported:
    case FailureCode::NoPageInRange:
        return ExitCode::Usage;
    case FailureCode::UserPasswordNeeded:
    case FailureCode::OwnerPasswordNeeded:
        return ExitCode::Password;
    case FailureCode::SourceUnreadable:
    case FailureCode::NotAPdf:
        return ExitCode::NotAPdf;
    case FailureCode::TargetUnwritable:
    case FailureCode::TargetInUse:
        return ExitCode::Output;
    case FailureCode::Cancelled:
        return ExitCode::Cancelled;
    case FailureCode::LimitExceeded:
    case FailureCode::WorkerDied:
    case FailureCode::Internal:
        break;
    }
    return ExitCode::Died;
}

std::string exitCodeHelp() {
    return "Exit codes:\n"
           "  0  done\n"
           "  2  usage: wrong options, a page range without a page, a layout or format that is not there\n"
           "  3  a password is needed, or the one given is wrong\n"
           "  4  not a readable PDF\n"
           "  5  the output cannot be written\n"
           "  6  cancelled\n"
           "  7  the conversion process died, ran past a limit, or met a fault of its own\n"
           "With several files it is that of the first file that was not converted; all are tried.\n";
}

} // namespace orvane::cli
