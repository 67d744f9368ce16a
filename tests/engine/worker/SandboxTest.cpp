#include "worker/Sandbox.h"
#include "support/ForkedProcess.h"
#include "worker/BuildKind.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <thread>

#include <sys/socket.h>
#include <unistd.h>

namespace orvane::worker {
namespace {

template<typename Action>
void expectInSandbox(Action action) {
    EXPECT_EQ(tests::inForkedProcess([&] { return enterSandbox() == Sandbox::Closed && action() ? 0 : 1; }), 0);
}

TEST(Sandbox, RefusesTheNetwork) {
    expectInSandbox([] {
        for (const int family : {AF_INET, AF_INET6, AF_UNIX})
            if (socket(family, SOCK_STREAM, 0) != -1 || errno != EPERM)
                return false;
        return true;
    });
}

TEST(Sandbox, RefusesOtherPrograms) {
    expectInSandbox([] {
        char name[] = "/bin/true";
        char* arguments[] = {name, nullptr};
        char* environment[] = {nullptr};
        return execve(name, arguments, environment) == -1 && errno == EPERM;
    });
}

TEST(Sandbox, RefusesNewProcesses) {
    if (kBuildKind == BuildKind::Plain) // a sanitizer makes one to look for leaks
        expectInSandbox([] { return fork() == -1 && errno == EPERM; });
}

TEST(Sandbox, RefusesToTouchOtherProcesses) {
    expectInSandbox([] { return kill(getppid(), 0) == -1 && errno == EPERM; });
}

TEST(Sandbox, LeavesThreadsAndFilesAlone) {
    expectInSandbox([] {
        bool wasRead = false;
        std::thread reader([&wasRead] {
            std::ifstream file("/proc/self/status");
            wasRead = file.get() != std::ifstream::traits_type::eof();
        });
        reader.join();
        FILE* file = std::tmpfile();
        return wasRead && file != nullptr && std::fputs("text", file) >= 0 && std::fclose(file) == 0;
    });
}

} // namespace
} // namespace orvane::worker
