#include "services/RegistryStore.h"

#include "app/support/ScratchHome.h"

namespace registry = platform::registry;

namespace tavrelion::tests {
namespace {

class RegistryStore : public ScratchHome {
protected:
    /// Stores bytes as another program would.
    void storeBytes(const char* name, const registry::Value& value) {
        registry::Key key = 0;
        ASSERT_EQ(registry::createKey(Hive::LocalMachine, "Test", registry::kAllAccess, key), registry::kSuccess);
        ASSERT_EQ(registry::setValue(key, name, value), registry::kSuccess);
        registry::closeKey(key);
    }
    static QVariant read(const char* name) { return ReadKeyValue(Hive::LocalMachine, "Test", name); }
};

TEST_F(RegistryStore, AMissingKeyReadsAsTheEmptyVariant) {
    const QVariant value = ReadKeyValue(Hive::LocalMachine, "No\\Such\\Key", "Path");
    EXPECT_FALSE(value.isValid());
    EXPECT_EQ(value.toString(), "");
}

TEST_F(RegistryStore, AMissingValueReadsAsTheEmptyVariant) {
    CreateKey(Hive::LocalMachine, "Test");
    EXPECT_FALSE(read("absent").isValid());
}

TEST_F(RegistryStore, ATextWrittenHereComesBackWithoutATerminator) {
    CreateKey(Hive::LocalMachine, "Test");
    const QString text = QString::fromUtf8("Straße");
    EXPECT_EQ(WriteKeyValue(Hive::LocalMachine, "Test", "text", text, registry::kString), registry::kSuccess);
    EXPECT_EQ(read("text").toString(), text);
}

TEST_F(RegistryStore, ATextOfAnotherProgramEndsInItsTerminator) {
    storeBytes("text", {registry::kString, std::string("abc\0", 4)});
    EXPECT_EQ(read("text").toString(), QString("abc") + QChar(0));
}

TEST_F(RegistryStore, ANumberComesBackSigned) {
    CreateKey(Hive::LocalMachine, "Test");
    EXPECT_EQ(WriteKeyValue(Hive::LocalMachine, "Test", "number", -5, registry::kDword), registry::kSuccess);
    EXPECT_EQ(read("number"), QVariant(-5));
}

TEST_F(RegistryStore, AnExpandableTextIsExpandedAndEndsInATerminator) {
    qputenv("TAVRELION_TEST_NAME", "value");
    storeBytes("text", {registry::kExpandString, std::string("a %TAVRELION_TEST_NAME%\0", 24)});
    EXPECT_EQ(read("text").toString(), QString("a value") + QChar(0));
    qputenv("TAVRELION_TEST_NAME", QByteArray(500, 'x'));
    EXPECT_FALSE(read("text").isValid()) << "the reserve is 400 characters";
    qunsetenv("TAVRELION_TEST_NAME");
}

TEST_F(RegistryStore, AnExpandableTextIsNotWritten) {
    storeBytes("text", {registry::kString, "old"});
    EXPECT_EQ(WriteKeyValue(Hive::LocalMachine, "Test", "text", "new", registry::kExpandString), registry::kSuccess);
    EXPECT_EQ(read("text").toString(), "old");
}

TEST_F(RegistryStore, AValueOfAnotherTypeIsNotRead) {
    storeBytes("bytes", {registry::kBinary, "abc"});
    EXPECT_FALSE(read("bytes").isValid());
    registry::Key key = 0;
    registry::openKey(Hive::LocalMachine, "Test", registry::kQueryValue, key);
    QVariant value = "untouched";
    EXPECT_EQ(RegReadValue(key, "bytes", value), -1);
    EXPECT_EQ(value, QVariant("untouched"));
    registry::closeKey(key);
}

TEST_F(RegistryStore, AWriteUnderAMissingKeyFailsInSilence) {
    EXPECT_NE(WriteKeyValue(Hive::LocalMachine, "Missing", "a", "1", registry::kString), registry::kSuccess);
    EXPECT_FALSE(ReadKeyValue(Hive::LocalMachine, "Missing", "a").isValid());
}

} // namespace
} // namespace tavrelion::tests
