#pragma once

#include "cli/CommandLine.h"
#include "cli/ExitCode.h"

#include <iosfwd>

namespace orvane::cli {

/// Where a command writes: results to `out`, what went wrong to `err`.
struct Streams {
    std::ostream& out;
    std::ostream& err;
};

/// `orvane convert`.
ExitCode convert(const ConvertOptions& options, const Streams& streams);

/// `orvane images`.
ExitCode images(const ImagesOptions& options, const Streams& streams);

/// `orvane info`.
ExitCode info(const InfoOptions& options, const Streams& streams);

/// `orvane inspect`.
ExitCode inspect(const InspectOptions& options, const Streams& streams);

/// `orvane dump`.
ExitCode dump(const DumpOptions& options, const Streams& streams);

} // namespace orvane::cli
