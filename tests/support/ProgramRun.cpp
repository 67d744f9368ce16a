#include "support/ProgramRun.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include <fcntl.h>
#include <fmt/format.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane::tests {
namespace {

/// The two ends of a pipe, or of a terminal whose first end shows what programs write to the second.
std::array<int, 2> makeChannel(bool isTerminal) {
    std::array<int, 2> ends{-1, -1};
    if (!isTerminal) {
        if (pipe2(ends.data(), O_CLOEXEC) != 0)
            throw std::runtime_error("cannot make a pipe");
        return ends;
    }
    ends[0] = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (ends[0] < 0 || grantpt(ends[0]) != 0 || unlockpt(ends[0]) != 0)
        throw std::runtime_error("cannot make a terminal");
    ends[1] = open(ptsname(ends[0]), O_RDWR | O_NOCTTY | O_CLOEXEC);
    return ends;
}

[[noreturn]] void become(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const ProgramOptions& options, int output, int errorOutput) {
    setpgid(0, 0);
    dup2(output, STDOUT_FILENO);
    dup2(errorOutput, STDERR_FILENO);
    for (const auto& [name, value] : options.environment)
        setenv(name.c_str(), value.c_str(), 1);
    if (options.maxFileSize) {
        const auto size = static_cast<rlim_t>(*options.maxFileSize);
        const rlimit limit{size, size};
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, SIG_IGN);
    }
    std::string name = program.string();
    std::vector<std::string> copies = arguments;
    std::vector<char*> pointers{name.data()};
    for (std::string& copy : copies)
        pointers.push_back(copy.data());
    pointers.push_back(nullptr);
    execv(name.c_str(), pointers.data());
    _exit(126);
}

/// Takes what is there; false at the end.
bool drain(int descriptor, std::string& text) {
    std::array<char, 4096> buffer;
    const ssize_t count = read(descriptor, buffer.data(), buffer.size());
    if (count > 0)
        text.append(buffer.data(), static_cast<std::size_t>(count));
    return count > 0 || (count < 0 && errno == EINTR);
}

} // namespace

RunningProgram::RunningProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                               const ProgramOptions& options) {
    const std::array<int, 2> output = makeChannel(false);
    const std::array<int, 2> errorOutput = makeChannel(options.hasTerminal);
    m_process = fork();
    if (m_process == 0)
        become(program, arguments, options, output[1], errorOutput[1]);
    setpgid(m_process, m_process);
    close(output[1]);
    close(errorOutput[1]);
    m_output = output[0];
    m_errorOutput = errorOutput[0];
}

RunningProgram::~RunningProgram() {
    if (m_process >= 0) {
        ::kill(-m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    close(m_output);
    close(m_errorOutput);
}

std::vector<pid_t> RunningProgram::children() const {
    std::vector<pid_t> result;
    // A process started by any of its threads stands under that thread.
    std::error_code error;
    for (const auto& thread : std::filesystem::directory_iterator(fmt::format("/proc/{}/task", m_process), error)) {
        std::ifstream list(thread.path() / "children");
        for (pid_t child; list >> child;)
            result.push_back(child);
    }
    return result;
}

void RunningProgram::send(int signal, Whom whom) const {
    ::kill(whom == Whom::Itself ? m_process : -m_process, signal);
}

ProgramResult RunningProgram::wait() {
    ProgramResult result;
    std::array<pollfd, 2> sources{{{m_output, POLLIN, 0}, {m_errorOutput, POLLIN, 0}}};
    std::array<std::string*, 2> texts{&result.output, &result.errorOutput};
    while (sources[0].fd >= 0 || sources[1].fd >= 0) {
        poll(sources.data(), sources.size(), -1);
        for (std::size_t i = 0; i < sources.size(); ++i)
            if (sources[i].revents != 0 && !drain(sources[i].fd, *texts[i]))
                sources[i].fd = -1;
    }
    int status = 0;
    waitpid(m_process, &status, 0);
    m_process = -1;
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    return result;
}

ProgramResult runProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const ProgramOptions& options) {
    return RunningProgram(program, arguments, options).wait();
}

} // namespace orvane::tests
