#include "settings/SettingsFile.h"

#include "app/support/ScratchHome.h"
#include "services/RegistryStore.h"
#include "services/SystemProbes.h"
#include "settings/DefaultSettings.h"
#include "settings/SettingsRecord.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

class SettingsFile : public ScratchHome {
protected:
    QString file() const { return path("docval.temp"); }
    QByteArray content() const {
        QFile in(file());
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }
    void store(const QByteArray& bytes) const {
        QFile out(file());
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
    }
    /// The seventeen fields of an ordinary file, with one of them replaced.
    static QStringList fieldsWith(int index, const QString& text) {
        QStringList fields{"1",   "2", "1", "2", "0",   "0",    "3",    "1", "1",
                           "1-3", "0", "1", "1", "/in", "/out", "/log", "1"};
        fields[index] = text;
        return fields;
    }
    void storeFields(const QStringList& fields) const { store('"' + fields.join("~:~").toLocal8Bit() + "\"\r\n"); }
};

TEST_F(SettingsFile, WritesOneQuotedRecordOfSeventeenFields) {
    records.settings = {};
    records.settings.intLanguageID = 3;
    records.settings.intOutputPath = -1;
    records.settings.strConversionMethod = "0";
    records.settings.strRecentFolder = "/in put";
    records.settings.strRecentOutputFolder = "/out";
    records.settings.strLogPath = "/log";
    records.settings.intLogPath = 1;
    records.settings.strLogPathFlag = "0";
    records.job.strPageRange = "1-3,7";
    UpdateSettings(records);
    EXPECT_EQ(content(), "\"3~:~0~:~-1~:~0~:~0~:~0~:~0~:~0~:~0~:~1-3,7~:~0~:~0~:~0~:~/in put~:~/out~:~/log~:~1\"\r\n");
}

TEST_F(SettingsFile, LoadsWhatItWrote) {
    SetDefaultSettings(records);
    records.settings.intLanguageID = 8;
    records.settings.intPromptConversion = 7;
    records.settings.strRecentFolder = QString::fromUtf8("/Straße");
    records.job.strPageRange = "2,4";
    UpdateSettings(records);
    const SharedRecords written = records;
    records.settings = {};
    records.job = {};
    LoadSettings(records);
    EXPECT_EQ(settings_record::make(records), settings_record::make([&] {
                  SharedRecords expected = written;
                  expected.settings.intLogPath = 0;
                  return expected;
              }()));
    EXPECT_EQ(records.settings.intPromptConversion, 7) << "no window reads it, and it comes back all the same";
}

TEST_F(SettingsFile, WithoutAFileTheDefaultsHoldAndNoFileAppears) {
    records.job.strPageRange = "5";
    LoadSettings(records);
    EXPECT_EQ(records.settings.intLauchMs, 2);
    EXPECT_EQ(records.settings.intReconstMode, 3);
    EXPECT_EQ(records.settings.intCharSpac, 1);
    EXPECT_EQ(records.job.strCharSpacing, "yes") << "a pair that does not match, and stays so until the next load";
    EXPECT_EQ(records.job.strPageRange, "5") << "the defaults do not touch the page range";
    EXPECT_EQ(records.settings.strLogPath, path("Tavrelion.log"));
    EXPECT_EQ(records.settings.strRecentOutputFolder, home());
    EXPECT_FALSE(QFile::exists(file()));
}

TEST_F(SettingsFile, TheDefaultFormatFollowsTheWordProcessor) {
    SetDefaultSettings(records);
    EXPECT_EQ(records.settings.intOutputFormat, 1);
    CreateKey(Hive::LocalMachine, wordProcessorKey("12.0"));
    WriteKeyValue(Hive::LocalMachine, wordProcessorKey("12.0"), "Path", "/somewhere", platform::registry::kString);
    SetDefaultSettings(records);
    EXPECT_EQ(records.settings.intOutputFormat, 0);
}

TEST_F(SettingsFile, EachFieldIsReadByItsRule) {
    struct Row {
        int field;
        QString text;
        std::function<QString(const SharedRecords&)> value;
        QString expected;
        const char* why;
    };
    const auto number = [](std::int16_t AppSettings::*member) {
        return [member](const SharedRecords& r) { return QString::number(r.settings.*member); };
    };
    const auto text = [](QString AppSettings::*member) {
        return [member](const SharedRecords& r) { return r.settings.*member; };
    };
    const auto spacing = [](const SharedRecords& r) {
        return QString::number(r.settings.intCharSpac) + ' ' + r.job.strCharSpacing;
    };
    const auto range = [](const SharedRecords& r) { return r.job.strPageRange; };
    const QString nul(QChar(0));
    const Row rows[] = {
        {0, "4", number(&AppSettings::intLanguageID), "4", "a number"},
        {0, "", number(&AppSettings::intLanguageID), "0", "empty is 0"},
        {0, "3x", number(&AppSettings::intLanguageID), "3", "the leading number counts"},
        {0, "x3", number(&AppSettings::intLanguageID), "0", "no leading number is 0"},
        {0, "-2", number(&AppSettings::intLanguageID), "-2", "negative numbers"},
        {0, "2.5", number(&AppSettings::intLanguageID), "2", "halves go to the even neighbour"},
        {0, "3.5", number(&AppSettings::intLanguageID), "4", "halves go to the even neighbour"},
        {0, "2.51", number(&AppSettings::intLanguageID), "3", "rounded, not cut"},
        {0, "1e2", number(&AppSettings::intLanguageID), "100", "an exponent belongs to the number"},
        {0, "99999", number(&AppSettings::intLanguageID), "32767", "the nearest 16-bit integer"},
        {0, "1" + nul + "2", number(&AppSettings::intLanguageID), "12", "NUL characters go first"},
        {1, "", number(&AppSettings::intLauchMs), "0", "empty is 0"},
        {2, "-1", number(&AppSettings::intOutputPath), "2", "the old truth value"},
        {2, "", number(&AppSettings::intOutputPath), "2", "empty is 2 here"},
        {2, "0", number(&AppSettings::intOutputPath), "0", "0 stays 0"},
        {2, "-1" + nul, number(&AppSettings::intOutputPath), "2", "NUL characters go before the comparison"},
        {3, "", number(&AppSettings::intOutputFormat), "0", "empty is 0"},
        {4, "1", number(&AppSettings::intProgressWind), "1", "a number"},
        {5, "2", number(&AppSettings::intUseWiz), "2", "a number"},
        {6, "4", number(&AppSettings::intReconstMode), "4", "a number"},
        {7, "", number(&AppSettings::intRecoverImg), "0", "empty is 0"},
        {8, "0", spacing, "0 yes", "0 keeps the spacing"},
        {8, "", spacing, "0 yes", "so does an empty text"},
        {8, "2", spacing, "2 no", "anything else does not"},
        {8, "1", spacing, "1 no", "anything else does not"},
        {9, "1" + nul + "-3", range, "1" + nul + "-3", "the page range is taken as it stands"},
        {10, "1" + nul, text(&AppSettings::strConversionMethod), "1", "NUL characters go"},
        {11, "1", number(&AppSettings::intConvertFrom), "1", "a number"},
        {12, "", number(&AppSettings::intPromptConversion), "0", "empty is 0"},
        {13, "/a" + nul, text(&AppSettings::strRecentFolder), "/a", "NUL characters go"},
        {14, "/b" + nul, text(&AppSettings::strRecentOutputFolder), "/b", "NUL characters go"},
        {15, "/c" + nul, text(&AppSettings::strLogPath), "/c", "NUL characters go"},
        {16, "1" + nul, text(&AppSettings::strLogPathFlag), "1", "the flag is read as a text"},
        {16, "1", number(&AppSettings::intLogPath), "0", "and not into the number"},
    };
    for (const Row& row : rows) {
        records.settings = {};
        storeFields(fieldsWith(row.field, row.text));
        LoadSettings(records);
        EXPECT_EQ(row.value(records), row.expected) << "field " << row.field << ": " << row.why;
    }
}

TEST_F(SettingsFile, SixteenFieldsGiveTheDefaultsWhole) {
    storeFields(fieldsWith(0, "5").mid(0, 16));
    LoadSettings(records);
    EXPECT_EQ(records.settings.intLanguageID, 0);
    EXPECT_EQ(records.settings.intLauchMs, 2);
}

TEST_F(SettingsFile, TheEighteenthFieldIsNotLookedAt) {
    storeFields(fieldsWith(0, "5") << "more");
    LoadSettings(records);
    EXPECT_EQ(records.settings.intLanguageID, 5);
    EXPECT_EQ(records.settings.strLogPathFlag, "1");
}

TEST_F(SettingsFile, AnEmptyFileEndsTheProgramWithAReason) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray("\r\n"), QByteArray("  ")}) {
        store(bytes);
        EXPECT_THROW(LoadSettings(records), SettingsUnreadable);
    }
}

TEST_F(SettingsFile, AFileThatCannotBeReadEndsTheProgramWithAReason) {
    QDir().mkpath(file()); // a folder of that name exists and cannot be read as a file, whoever runs this
    try {
        LoadSettings(records);
        ADD_FAILURE() << "loaded";
    } catch (const SettingsUnreadable& error) {
        EXPECT_STRNE(error.what(), "");
    }
}

TEST_F(SettingsFile, ASaveBeforeTheOptionsWindowWasOpenedWritesZeroAsTheLogFlag) {
    storeFields(fieldsWith(16, "1"));
    LoadSettings(records);
    UpdateSettings(records);
    EXPECT_TRUE(content().endsWith("~:~0\"\r\n")) << content().toStdString();
}

TEST_F(SettingsFile, AnEmptyOutputFolderIsWrittenEmptyAndFilledAfterwards) {
    SetDefaultSettings(records);
    records.settings.strRecentOutputFolder = "  ";
    UpdateSettings(records);
    EXPECT_EQ(QString(content()).split("~:~").at(14), "  ") << "the record was made before the folder was filled in";
    EXPECT_EQ(records.settings.strRecentOutputFolder, home());
    UpdateSettings(records);
    EXPECT_TRUE(content().contains("~:~" + home().toLocal8Bit() + "~:~" + path("Tavrelion.log").toLocal8Bit()));
}

TEST_F(SettingsFile, AFailedSaveIsLoggedAndLeavesTheOldFileWhole) {
    SetDefaultSettings(records);
    UpdateSettings(records);
    const QByteArray old = content();
    records.settings.intLanguageID = 2;
    records.flags.strHomeFolder = path("missing");
    UpdateSettings(records);
    EXPECT_EQ(content(), old);
    records.flags.strHomeFolder = home();
    QDir().mkpath(path("folder/docval.temp"));
    records.flags.strHomeFolder = path("folder");
    UpdateSettings(records);
    QFile log(path("folder/GUILog.tmp"));
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_TRUE(log.readAll().startsWith("Form Name: modXML, Module Name: UpdateSettings\r\n"));
}

} // namespace
} // namespace tavrelion::tests
