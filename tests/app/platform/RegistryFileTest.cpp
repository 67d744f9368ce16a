#include "platform/RegistryFile.h"
#include "platform/Registry.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include <sys/wait.h>
#include <unistd.h>

/// What holds for the registry that is a file of our own: it outlives crashes and several writers.
namespace platform::registry {
namespace {

class RegistryFile : public testing::Test {
protected:
    RegistryFile() { setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1); }
    ~RegistryFile() override { unsetenv("XDG_CONFIG_HOME"); }

    static void write(const std::string& name, const std::string& text) {
        Key key = 0;
        createKey(Hive::LocalMachine, "Test", kAllAccess, key);
        setValue(key, name, {kString, text});
        closeKey(key);
    }
    static Keys stored() {
        std::ifstream in(registryFile(), std::ios::binary);
        return parseRegistry(std::string(std::istreambuf_iterator<char>(in), {}));
    }

    orvane::tests::TemporaryFolder folder;
};

/// Runs `work` in a process of its own.
template<typename Work>
pid_t startProcess(Work work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    return child;
}

TEST_F(RegistryFile, ReadsWhatItPrints) {
    const Keys keys{{"HKEY_LOCAL_MACHINE\\A",
                     {{"text", {kString, "C:\\x \"y\"\n"}},
                      {"ended", {kString, std::string("z\0", 2)}},
                      {"number", {kDword, std::string("\xFE\xFF\xFF\xFF", 4)}},
                      {"other", {kBinary, std::string("\1\2", 2)}}}},
                    {"HKEY_LOCAL_MACHINE\\B", {}}};
    const std::string text = printRegistry(keys);
    EXPECT_EQ(printRegistry(parseRegistry(text)), text);
    const Keys read = parseRegistry(text);
    EXPECT_EQ(read.at("HKEY_LOCAL_MACHINE\\A").at("ended").bytes, std::string("z\0", 2));
    EXPECT_EQ(read.at("HKEY_LOCAL_MACHINE\\A").at("number").bytes, std::string("\xFE\xFF\xFF\xFF", 4));
    EXPECT_TRUE(read.contains("hkey_local_machine\\b"));
}

TEST_F(RegistryFile, PassesOverLinesThatMeanNothing) {
    const Keys keys = parseRegistry(
        "noise\n\"a\"=string:\"before any key\"\n[K]\n\"b\"=string:\"1\"\n\"c\"=string:\"open\n\"d\"=float:1\n=\n[]\n");
    ASSERT_EQ(keys.size(), 1u);
    EXPECT_EQ(keys.at("K").size(), 1u);
}

TEST_F(RegistryFile, TwoProcessesThatWriteAtOnceLoseNothing) {
    constexpr int kValues = 60;
    const auto writeAll = [](const char* prefix) {
        for (int i = 0; i < kValues; ++i)
            write(prefix + std::to_string(i), "x");
    };
    const pid_t child = startProcess([&] { writeAll("child"); });
    writeAll("parent");
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    EXPECT_EQ(stored().at("HKEY_LOCAL_MACHINE\\Test").size(), 2u * kValues);
}

TEST_F(RegistryFile, AWriterKilledInTheMiddleLeavesTheFileWhole) {
    const std::string kText(20000, 'v');
    write("kept", kText);
    for (int round = 0; round < 25; ++round) {
        const pid_t child = startProcess([&] {
            for (int i = 0;; ++i)
                write("value", kText + std::to_string(i));
        });
        usleep(static_cast<useconds_t>(500 + round * 400)); // at a different place in the write each time
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const Keys keys = stored();
        ASSERT_TRUE(keys.contains("HKEY_LOCAL_MACHINE\\Test")) << "round " << round;
        ASSERT_EQ(keys.at("HKEY_LOCAL_MACHINE\\Test").at("kept").bytes, kText) << "round " << round;
    }
    write("after", "1");
    EXPECT_EQ(stored().at("HKEY_LOCAL_MACHINE\\Test").at("after").bytes, "1")
        << "a dead writer's lock stands in nobody's way";
}

TEST_F(RegistryFile, AFolderThatCannotBeMadeIsAFailedWriteNotACrash) {
    std::ofstream(folder.path() / "tavrelion") << "a file where the folder should be";
    Key key = 0;
    EXPECT_NE(createKey(Hive::LocalMachine, "Test", kAllAccess, key), kSuccess);
    EXPECT_EQ(key, 0u);
}

} // namespace
} // namespace platform::registry
