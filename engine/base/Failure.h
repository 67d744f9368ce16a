#pragma once

#include <stdexcept>
#include <string>

namespace orvane {

/// Why a job cannot go on. Worker, component and command line map these to their own result codes, each in one table.
enum class FailureCode {
    InvalidRequest,      ///< the job's own words are off: an unknown layout, a bad page range
    NotSupported,        ///< understood, but this build does not do it
    SourceUnreadable,    ///< the file is missing, the system refuses to read it, or it is locked by other means than a password
    NotAPdf,             ///< the file is empty, or damaged beyond what can be repaired, or of another kind
    UserPasswordNeeded,  ///< the file opens with a password, and none or a wrong one was given
    OwnerPasswordNeeded, ///< the file opens, but its author forbids taking the content out without the owner's password
    NoPageInRange,       ///< the page range names no page of this document
    TargetUnwritable,    ///< the folder is missing, the disk is full, no right to write
    TargetInUse,         ///< another program holds the source or the target
    Cancelled,           ///< whoever started the job asked for its end
    LimitExceeded,       ///< the job ran past its limit of time or memory
    WorkerDied,          ///< the worker process ended without a result
    Internal,            ///< a fault of ours
};

/// Where in the source something happened. Zero means not known.
struct SourceLocation {
    int page = 0;   ///< 1-based
    int object = 0; ///< number of the PDF object
};

/// The one exception of the engine: a job that cannot go on. Thrown anywhere, caught in the worker.
class Failure : public std::runtime_error {
public:
    Failure(FailureCode code, const std::string& message, SourceLocation where = {})
        : std::runtime_error(message), m_code(code), m_where(where) {}

    FailureCode code() const { return m_code; }
    SourceLocation where() const { return m_where; }

private:
    FailureCode m_code;
    SourceLocation m_where;
};

/// The code's name as it stands in logs and messages, "NotAPdf" for instance.
const char* toString(FailureCode code);
/// The reverse of toString(); FailureCode::Internal for a name that is none.
FailureCode failureCodeFromString(const std::string& name);

} // namespace orvane
