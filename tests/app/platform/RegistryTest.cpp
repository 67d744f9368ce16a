#include "platform/Registry.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#ifndef _WIN32
#include "support/TemporaryFolder.h"
#endif

/// What holds for every system's registry: the suite is built for this system, and where there is a compiler and a
/// runner for Windows programs (see CMakeLists.txt) once more for that one.
namespace platform::registry {
namespace {

// Under the user's own hive, where every user may write on every system.
constexpr Hive kHive = Hive::CurrentUser;
const std::string kKey = "Software\\TavrelionTest";

#ifdef _WIN32
using Registry = testing::Test; // the system's own, below a key of the suite's
#else
class Registry : public testing::Test {
protected:
    Registry() { setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1); }
    ~Registry() override { unsetenv("XDG_CONFIG_HOME"); }

    orvane::tests::TemporaryFolder folder;
};
#endif

Key made(const std::string& path) {
    Key key = 0;
    EXPECT_EQ(createKey(kHive, path, kAllAccess, key), kSuccess);
    EXPECT_NE(key, 0u);
    return key;
}

/// A text without the terminator that some systems keep behind it.
std::string withoutTerminator(std::string bytes) {
    if (!bytes.empty() && bytes.back() == '\0')
        bytes.pop_back();
    return bytes;
}

/// The text stored under a name.
std::string readBack(const std::string& path, const std::string& name) {
    Key key = 0;
    EXPECT_EQ(openKey(kHive, path, kQueryValue, key), kSuccess);
    Value value;
    EXPECT_EQ(queryValue(key, name, value), kSuccess);
    closeKey(key);
    return withoutTerminator(value.bytes);
}

TEST_F(Registry, AClosedKeyIsNoKey) {
    const Key key = made(kKey);
    EXPECT_EQ(setValue(key, "Name", {kString, "text"}), kSuccess);
    closeKey(key);
    Value value;
    EXPECT_EQ(queryValue(key, "Name", value), kInvalidHandle);
    EXPECT_EQ(setValue(key, "Name", {kString, "other"}), kInvalidHandle);
    EXPECT_EQ(readBack(kKey, "Name"), "text");
}

TEST_F(Registry, KeepsTheThreeTypes) {
    const Key key = made(kKey);
    const Value values[] = {
        {kString, "text"}, {kExpandString, std::string("%PATH%\0", 7)}, {kDword, std::string("\x01\0\0\x80", 4)}};
    for (const Value& value : values) {
        EXPECT_EQ(setValue(key, "value", value), kSuccess);
        Value stored;
        EXPECT_EQ(queryValue(key, "value", stored), kSuccess);
        EXPECT_EQ(stored.type, value.type);
        EXPECT_EQ(withoutTerminator(stored.bytes), withoutTerminator(value.bytes));
    }
    closeKey(key);
}

TEST_F(Registry, KeepsEveryCharacterOfATextAndItsName) {
    const Key key = made(kKey);
    const std::string text = "C:\\a \"b\"\t\x7f[x]=\n";
    EXPECT_EQ(setValue(key, "a \"name\"\\", {kString, text}), kSuccess);
    closeKey(key);
    EXPECT_EQ(readBack(kKey, "a \"name\"\\"), text);
}

TEST_F(Registry, NamesAreEqualWhateverTheirCase) {
    const Key key = made(kKey + "\\Mixed\\Case");
    EXPECT_EQ(setValue(key, "Name", {kString, "1"}), kSuccess);
    closeKey(key);
    EXPECT_EQ(readBack("software\\TAVRELIONTEST\\mixed\\cASE", "nAME"), "1");
}

TEST_F(Registry, MakingAKeyMakesItsParents) {
    closeKey(made(kKey + "\\Parent\\Child\\Grandchild"));
    Key key = 0;
    EXPECT_EQ(openKey(kHive, kKey + "\\Parent\\Child", kQueryValue, key), kSuccess);
    closeKey(key);
}

TEST_F(Registry, MakingAnExistingKeyKeepsItsValues) {
    Key key = made(kKey + "\\Kept");
    EXPECT_EQ(setValue(key, "a", {kString, "1"}), kSuccess);
    closeKey(key);
    closeKey(made(kKey + "\\Kept"));
    EXPECT_EQ(readBack(kKey + "\\Kept", "a"), "1");
}

TEST_F(Registry, AMissingKeyOrValueIsNotFoundAndTouchesNothing) {
    Key key = 77;
    EXPECT_EQ(openKey(kHive, kKey + "\\NoSuchKey", kQueryValue, key), kFileNotFound);
    EXPECT_EQ(key, 77u);
    key = made(kKey);
    Value value{kString, "untouched"};
    EXPECT_EQ(queryValue(key, "no such value", value), kFileNotFound);
    EXPECT_EQ(value.bytes, "untouched");
    closeKey(key);
}

TEST_F(Registry, AHandleThatIsNoneIsRefused) {
    Value value;
    EXPECT_EQ(queryValue(0, "a", value), kInvalidHandle);
    EXPECT_EQ(setValue(0, "a", {kString, "1"}), kInvalidHandle);
}

TEST_F(Registry, AKeyOpenedForReadingIsNotWritten) {
    closeKey(made(kKey));
    Key key = 0;
    ASSERT_EQ(openKey(kHive, kKey, kQueryValue, key), kSuccess);
    EXPECT_EQ(setValue(key, "a", {kString, "1"}), kAccessDenied);
    closeKey(key);
}

TEST_F(Registry, ADeletedValueIsGone) {
    const Key key = made(kKey);
    EXPECT_EQ(setValue(key, "gone", {kString, "1"}), kSuccess);
    EXPECT_EQ(deleteValue(key, "gone"), kSuccess);
    Value value;
    EXPECT_EQ(queryValue(key, "gone", value), kFileNotFound);
    EXPECT_EQ(deleteValue(key, "gone"), kFileNotFound);
    closeKey(key);
}

TEST_F(Registry, ExpandsNamesOfTheEnvironmentThatExist) {
    const char* path = std::getenv("PATH");
    ASSERT_NE(path, nullptr);
    EXPECT_EQ(expandEnvironment("a %PATH% b", 100000), std::string("a ") + path + " b" + '\0');
    EXPECT_EQ(expandEnvironment("%NO_SUCH_NAME%", 100), std::string("%NO_SUCH_NAME%") + '\0');
    EXPECT_EQ(expandEnvironment("50 % of it", 100), std::string("50 % of it") + '\0');
    EXPECT_EQ(expandEnvironment("too long", 8), "") << "the terminator has no room";
}

} // namespace
} // namespace platform::registry
