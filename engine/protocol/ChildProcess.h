#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace orvane::protocol {

/// How a process ended.
struct ProcessEnd {
    bool ranPastLimit = false; ///< the system ended it for using more than it may
    std::string description;   ///< "ended with signal 11 (Segmentation fault)"
};

/// A process started by this one, with its standard input, output and error output in our hands. What differs by
/// operating system lies behind this header. Owns: the process's streams. When the object goes, the process stays, and
/// finds its input and output closed. Thread: one at a time.
class ChildProcess {
public:
    /// Starts `program` without arguments.
    /// Errors: Failure(WorkerDied) when it cannot be started.
    explicit ChildProcess(const std::filesystem::path& program);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Writes to its standard input. Nothing happens when it no longer listens.
    void send(std::string_view bytes);

    /// Waits until the process has said something, has ended, or `timeout` is over, and appends what it said.
    void read(std::chrono::milliseconds timeout, std::string& output, std::string& errorOutput);

    /// True once it has closed its output: it has ended or is about to.
    bool isOutputClosed() const;

    /// Ends it at once.
    void kill();

    /// Waits for its end, which is forced when it does not come within `patience`.
    ProcessEnd waitForEnd(std::chrono::milliseconds patience);

private:
    struct System;
    std::unique_ptr<System> m_system;
};

} // namespace orvane::protocol
