#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace orvane::tests {

/// How a program is started.
struct ProgramOptions {
    std::map<std::string, std::string> environment; ///< added to this process's own
    std::optional<long> maxFileSize; ///< bytes that a file may grow to: a disk that is full at that point
    bool hasTerminal = false;        ///< its error output is a terminal
};

struct ProgramResult {
    int exitCode = -1; ///< minus the signal's number when a signal ended it
    std::string output;
    std::string errorOutput;
};

/// A program that runs beside the test, in a process group of its own.
/// Owns: the process; it is ended with the object.
class RunningProgram {
public:
    RunningProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                   const ProgramOptions& options = {});
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    pid_t process() const { return m_process; }
    /// The processes that it has started and that still run.
    std::vector<pid_t> children() const;

    enum class Whom { Itself, WholeGroup };
    void send(int signal, Whom whom = Whom::Itself) const;

    /// Reads what it says until it ends.
    ProgramResult wait();

private:
    pid_t m_process = -1;
    int m_output = -1;
    int m_errorOutput = -1;
};

ProgramResult runProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const ProgramOptions& options = {});

} // namespace orvane::tests
