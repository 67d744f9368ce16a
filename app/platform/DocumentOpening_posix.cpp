#include "platform/DocumentOpening.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <string>

namespace platform {
namespace {

constexpr char kDesktopOpener[] = "xdg-open";
constexpr int kCannotExecute = 127;

/// What a child process is started with: prepared beforehand, since little is allowed between fork and exec.
struct Command {
    std::string program;
    std::string document;
    std::string folder;
};

/// Becomes the program. Comes back only by telling the reader of `report` that it could not.
[[noreturn]] void becomeProgram(const Command& command, int report) {
    std::signal(SIGPIPE, SIG_DFL);
    if (const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC); nothing >= 0)
        dup2(nothing, STDIN_FILENO);
    // A folder that is not there leaves the program in ours; the document's path does not depend on it.
    [[maybe_unused]] const int moved = chdir(command.folder.c_str());
    std::array<char*, 3> arguments{const_cast<char*>(command.program.c_str()),
                                   const_cast<char*>(command.document.c_str()), nullptr};
    execvp(command.program.c_str(), arguments.data());
    const char failed = 1;
    [[maybe_unused]] const ssize_t written = write(report, &failed, sizeof failed);
    _exit(kCannotExecute);
}

/// A process of its own session, whose parent ends at once: nobody has to wait for the program's end.
Launch startDetached(const Command& command) {
    std::array<int, 2> report{};
    if (pipe2(report.data(), O_CLOEXEC) != 0)
        return Launch::Failed;
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        const pid_t program = fork();
        if (program == 0)
            becomeProgram(command, report[1]);
        _exit(program > 0 ? 0 : kCannotExecute);
    }
    close(report[1]);
    int status = 0;
    const bool isStarted =
        child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    // The program's start closes the other end of the pipe without a word.
    char failed = 0;
    const bool isReplaced = isStarted && read(report[0], &failed, sizeof failed) == 0;
    close(report[0]);
    return isReplaced ? Launch::Started : Launch::Failed;
}

} // namespace

Launch openWith(const std::filesystem::path& program, const std::filesystem::path& document,
                const std::filesystem::path& folder) {
    std::error_code error;
    const std::filesystem::path whole = std::filesystem::absolute(folder / document, error);
    if (error || program.empty() || document.empty())
        return Launch::Failed;
    return startDetached({program.string(), whole.string(), folder.string()});
}

Launch openByAssociation(const std::filesystem::path& document, const std::filesystem::path& folder) {
    return openWith(kDesktopOpener, document, folder);
}

} // namespace platform
