#pragma once

#include "base/Diagnostic.h"
#include "base/Failure.h"
#include "base/JobObserver.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// What a worker tells its starter, one message a line. The order: Accepted or Refused first; with Accepted any number
/// of the reports; at last Finished or Failed. Nothing follows Refused, Finished or Failed.
namespace orvane::protocol {

/// The job can be done and has begun.
struct Accepted {
    int pageCount = 0;     ///< of the whole document
    int selectedPages = 0; ///< that the job takes
};

/// The job was not begun.
struct Refused {
    FailureCode code = FailureCode::Internal;
    std::string message;
};

struct StatusReport {
    JobStage stage = JobStage::Opening;
    int first = 0;
    int second = 0;
};

struct DiagnosticReport {
    Diagnostic diagnostic;
};

/// What Task::Inspect tells of the document.
struct SourceReport {
    std::string pdfVersion;
    bool isEncrypted = false;
    bool isTagged = false;
    bool hasOutline = false;
    std::string title, author, subject, keywords, creator, producer, created, modified, language;
};

/// What Task::Inspect tells of one page.
struct PageReport {
    int number = 0;
    double width = 0; ///< points
    double height = 0;
    int rotation = 0;
    std::string label;
};

/// One file that a job of Layout::Images wrote. Reports of all files stand directly before Finished.
struct PictureReport {
    struct Part {
        int objectNumber = 0; ///< of the source; 0: an inline picture
        int x = 0;            ///< its place in the picture, pixels
        int y = 0;
    };
    std::string file; ///< its name in the target folder
    int width = 0;    ///< pixels
    int height = 0;
    std::vector<int> pages;  ///< that paint it, ascending; of very many the first
    std::vector<Part> parts; ///< what was joined to this picture, mostly one; of very many the first
};

/// What a job read from its source and wrote to its target.
struct Counts {
    std::int64_t charactersRead = 0; ///< that can be seen, blanks left out
    std::int64_t charactersWritten = 0;
    std::int64_t picturesRead = 0;
    std::int64_t picturesWritten = 0;
    std::int64_t linksRead = 0;
    std::int64_t linksWritten = 0;
    std::int64_t valuesRead = 0; ///< of form fields that are filled in
    std::int64_t valuesWritten = 0;

    bool operator==(const Counts&) const = default;
};

/// The target stands, whole.
struct Finished {
    Counts counts;
    int diagnostics = 0; ///< how many there were; of the reports some may have been left out
    double seconds = 0;
};

/// The job was begun and not done; an older target is as it was.
struct Failed {
    FailureCode code = FailureCode::Internal;
    std::string message;
    SourceLocation where;
};

using Message = std::variant<Accepted, Refused, StatusReport, DiagnosticReport, SourceReport, PageReport, PictureReport,
                             Finished, Failed>;

/// No line of either side is longer than this, its line end left out.
inline constexpr std::size_t kMaxLineLength = 64 * 1024;

/// The message as one line without its line end. Texts too long for a line are cut, and bytes that are not UTF-8
/// replaced.
std::string encodeMessage(const Message& message);

/// The reverse of encodeMessage().
/// Errors: ProtocolError for anything that encodeMessage() does not make.
Message decodeMessage(std::string_view line);

/// The line by which a starter asks a worker to stop.
inline constexpr std::string_view kCancelLine = "cancel";

/// How long a worker has to stop once it has been asked. Past that it gives up what it is at, and ends.
inline constexpr std::chrono::milliseconds kCancelGrace{3000};

} // namespace orvane::protocol
