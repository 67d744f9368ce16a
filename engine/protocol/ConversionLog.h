#pragma once

#include "base/Diagnostic.h"
#include "protocol/Job.h"
#include "protocol/Message.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace orvane::protocol {

/// All that the conversion log tells of one run.
///
/// Who writes it: the worker, for each job that it brings to an end, refused and failed ones too; the starter only for
/// a job that no worker brought to an end, because it could not be started or died.
struct LogRecord {
    std::chrono::system_clock::time_point start;
    double seconds = 0;
    std::optional<Accepted> accepted; ///< empty when the job was not begun
    std::vector<Diagnostic> diagnostics;
    std::vector<PictureReport> pictures; ///< files that were written
    std::optional<Counts> counts;        ///< of a job that was done
    std::optional<Failed> failure;       ///< of one that was not
    std::vector<std::string> remarks;    ///< about the run itself, a line each
};

/// The record as text. Of equal diagnostics one line stands with the pages that have it; of one kind no more than a
/// screenful.
std::string formatLogRecord(const Job& job, const LogRecord& record);

/// Appends the record to the job's log, if it has one. Several processes may write to one log: a record comes whole.
/// A log that cannot be written is no reason to lose a document, so nothing is thrown; the result is false.
bool appendToLog(const Job& job, const LogRecord& record);

} // namespace orvane::protocol
