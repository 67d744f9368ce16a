#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace orvane::tests {

/// Lines that a worker sends, for scripts that play one.
inline constexpr char kAcceptedLine[] = R"({"type":"accepted","pageCount":3,"selectedPages":2})";
inline constexpr char kFinishedLine[] =
    R"({"type":"finished","charactersRead":5,"charactersWritten":4,"picturesRead":3,"picturesWritten":2,)"
    R"("linksRead":1,"linksWritten":0,"valuesRead":2,"valuesWritten":1,"diagnostics":0,"seconds":0.5})";

/// A command of a shell script that sends the line.
inline std::string say(const std::string& line) {
    return "echo '" + line + "'\n";
}

/// Writes a program named orvane-worker into `folder` that reads its job and then does what the shell commands say.
/// It keeps the job's line in the file "job" beside it.
inline std::filesystem::path writeFakeWorker(const std::filesystem::path& folder, const std::string& commands) {
    const std::filesystem::path program = folder / "orvane-worker";
    std::ofstream(program) << "#!/bin/sh\nIFS= read -r job\nprintf '%s\\n' \"$job\" > '" << (folder / "job").string()
                           << "'\n"
                           << commands;
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    return program;
}

} // namespace orvane::tests
