#pragma once

#include "protocol/Job.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace orvane::cli {

/// `orvane convert` as it was typed.
struct ConvertOptions {
    std::vector<std::string> files;
    std::optional<std::string> outputFolder;
    std::optional<protocol::Format> format;
    protocol::Layout layout = protocol::Layout::Flowing;
    std::string pages;
    std::string passwordFile;
    bool removeImages = false;
    bool keepSpacing = false;
    std::string log;
    bool json = false;
    int jobs = 0; ///< 0: not said
};

/// `orvane info` as it was typed.
struct InfoOptions {
    std::string file;
    std::string passwordFile;
    bool json = false;
};

/// `orvane inspect` as it was typed.
struct InspectOptions {
    std::string file;
    int page = 1;
    std::string stage;
    std::string output; ///< empty: named after the file, the page and the stage
    std::string passwordFile;
};

/// `orvane dump` as it was typed.
struct DumpOptions {
    std::string file;
};

/// `orvane images` as it was typed.
struct ImagesOptions {
    std::string file;
    std::string folder;
    ImageFileFormat format = ImageFileFormat::Original;
    std::string pages;
    std::string passwordFile;
    std::string log;
    bool json = false;
};

using Command = std::variant<ConvertOptions, InfoOptions, InspectOptions, ImagesOptions, DumpOptions>;

/// Either a command, or the code to leave with: the help was asked for and written to `out`, or the line was wrong, and
/// `err` got why.
using ParsedCommandLine = std::variant<Command, int>;

ParsedCommandLine parseCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

} // namespace orvane::cli
