#include "protocol/ChildProcess.h"

#include "base/Failure.h"
#include "protocol/FileDescriptor_posix.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <mutex>
#include <vector>

#include <fcntl.h>
#include <fmt/format.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace orvane::protocol {
namespace {

/// Processes that were still running when their object went. They are waited for when the next one starts, so that none
/// of them stays in the process table.
class Orphans {
public:
    void add(pid_t process) {
        const std::lock_guard lock(m_mutex);
        m_processes.push_back(process);
    }
    void reap() {
        const std::lock_guard lock(m_mutex);
        std::erase_if(m_processes, [](pid_t process) { return waitpid(process, nullptr, WNOHANG) != 0; });
    }

private:
    std::mutex m_mutex;
    std::vector<pid_t> m_processes;
};

Orphans& orphans() {
    static Orphans instance;
    return instance;
}

struct Channel {
    FileDescriptor ours;
    FileDescriptor theirs;
};

[[noreturn]] void throwCannotStart(const std::filesystem::path& program, int error) {
    throw Failure(FailureCode::WorkerDied,
                  fmt::format("cannot start the conversion process {}: {}", program.string(), std::strerror(error)));
}

/// A socket, because only writing to a socket can be kept from raising SIGPIPE in the application that we live in.
Channel makeInputChannel() {
    std::array<int, 2> ends{-1, -1};
    socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data());
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

Channel makeOutputChannel() {
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) == 0)
        fcntl(ends[0], F_SETFL, O_NONBLOCK);
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

/// Starts `program` with the three descriptors as its standard streams, no other open file and default signal handling.
int spawn(const std::filesystem::path& program, std::array<int, 3> streams, pid_t& process) {
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&actions);
    posix_spawnattr_init(&attributes);
    for (int stream = 0; stream < 3; ++stream)
        posix_spawn_file_actions_adddup2(&actions, streams[static_cast<std::size_t>(stream)], stream);
    posix_spawn_file_actions_addclosefrom_np(&actions, 3);

    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

    std::string name = program.string();
    std::array<char*, 2> arguments{name.data(), nullptr};
    const int error = posix_spawn(&process, name.c_str(), &actions, &attributes, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
    return error;
}

/// A descriptor that becomes readable when the process ends. The C library of Debian 12 declares its own function for
/// this so that C++ cannot link it.
FileDescriptor openEndOf(pid_t process) {
    return FileDescriptor(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
}

/// Appends what lies in the pipe; closes it at its end.
void drain(FileDescriptor& pipe, std::string& text) {
    std::array<char, 16 * 1024> buffer;
    while (pipe.isOpen()) {
        const ssize_t count = ::read(pipe.get(), buffer.data(), buffer.size());
        if (count > 0)
            text.append(buffer.data(), static_cast<std::size_t>(count));
        else if (count == 0 || (errno != EINTR && errno != EAGAIN))
            pipe.close();
        else if (errno == EAGAIN)
            return;
    }
}

ProcessEnd describe(int status) {
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        if (signal == SIGSYS)
            return {false, "was stopped at a forbidden system call"};
        return {signal == SIGXCPU, fmt::format("ended with signal {} ({})", signal, strsignal(signal))};
    }
    return {false, fmt::format("ended with code {}", WEXITSTATUS(status))};
}

} // namespace

struct ChildProcess::System {
    pid_t process = -1; // -1 once it has been waited for
    FileDescriptor end; // becomes readable when the process ends; not open where the system has no such thing
    FileDescriptor input;
    FileDescriptor output;
    FileDescriptor errorOutput;
    ProcessEnd result;
};

ChildProcess::ChildProcess(const std::filesystem::path& program)
    : m_system(std::make_unique<System>()) {
    orphans().reap();
    Channel input = makeInputChannel();
    Channel output = makeOutputChannel();
    Channel errorOutput = makeOutputChannel();
    if (!input.ours.isOpen() || !output.ours.isOpen() || !errorOutput.ours.isOpen())
        throwCannotStart(program, errno);
    if (const int error =
            spawn(program, {input.theirs.get(), output.theirs.get(), errorOutput.theirs.get()}, m_system->process))
        throwCannotStart(program, error);
    m_system->end = openEndOf(m_system->process);
    m_system->input = std::move(input.ours);
    m_system->output = std::move(output.ours);
    m_system->errorOutput = std::move(errorOutput.ours);
}

ChildProcess::~ChildProcess() {
    if (m_system->process >= 0)
        orphans().add(m_system->process);
    orphans().reap();
}

void ChildProcess::send(std::string_view bytes) {
    while (!bytes.empty() && m_system->input.isOpen()) {
        const ssize_t count = ::send(m_system->input.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            m_system->input.close();
    }
}

void ChildProcess::read(std::chrono::milliseconds timeout, std::string& output, std::string& errorOutput) {
    // A descriptor that is not open is -1, which poll() passes over.
    std::array<pollfd, 3> sources{{{m_system->output.get(), POLLIN, 0},
                                   {m_system->errorOutput.get(), POLLIN, 0},
                                   {m_system->process >= 0 ? m_system->end.get() : -1, POLLIN, 0}}};
    poll(sources.data(), sources.size(), static_cast<int>(timeout.count()));
    drain(m_system->output, output);
    drain(m_system->errorOutput, errorOutput);
    // Another process may have inherited the pipe and hold it open; what the ended one said has been read by now.
    if (sources[2].revents != 0)
        m_system->output.close();
}

bool ChildProcess::isOutputClosed() const {
    return !m_system->output.isOpen();
}

void ChildProcess::kill() {
    if (m_system->process >= 0)
        ::kill(m_system->process, SIGKILL);
}

ProcessEnd ChildProcess::waitForEnd(std::chrono::milliseconds patience) {
    if (m_system->process < 0)
        return m_system->result;
    pollfd end{m_system->end.get(), POLLIN, 0};
    if (poll(&end, 1, static_cast<int>(patience.count())) <= 0)
        kill();
    int status = 0;
    while (waitpid(m_system->process, &status, 0) < 0 && errno == EINTR) {
    }
    m_system->process = -1;
    m_system->result = describe(status);
    return m_system->result;
}

} // namespace orvane::protocol
