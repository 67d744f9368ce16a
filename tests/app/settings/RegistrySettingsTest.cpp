#include "settings/RegistrySettings.h"

#include "app/support/ScratchHome.h"
#include "services/RegistryStore.h"

namespace tavrelion::tests {
namespace {

class RegistrySettings : public ScratchHome {};

TEST_F(RegistrySettings, TakesTheValuesByTheRulesOfTheSettingsFile) {
    CreateKey(Hive::ClassesRoot, kSettingsKey);
    const auto writeText = [](const char* name, const QString& text) {
        WriteKeyValue(Hive::ClassesRoot, kSettingsKey, name, text, platform::registry::kString);
    };
    WriteKeyValue(Hive::ClassesRoot, kSettingsKey, "Lang", 6, platform::registry::kDword);
    writeText("OutPath", "-1");
    writeText("CharSpac", QString("2") + QChar(0)); // as another program writes it, with its terminator
    writeText("RecentFolder", "/in");
    writeText("LogPath", "1");
    records.job.strPageRange = "4-5";
    LoadSettingsFromRegistry(records);
    EXPECT_EQ(records.settings.intLanguageID, 6);
    EXPECT_EQ(records.settings.intOutputPath, 2);
    EXPECT_EQ(records.settings.intCharSpac, 2);
    EXPECT_EQ(records.job.strCharSpacing, "no");
    EXPECT_EQ(records.settings.strRecentFolder, "/in");
    EXPECT_EQ(records.settings.strLogPathFlag, "1");
    EXPECT_EQ(records.settings.intLauchMs, 0) << "a missing value reads as an empty text";
    EXPECT_EQ(records.job.strPageRange, "4-5") << "the registry has no page range";
}

TEST_F(RegistrySettings, EveryFieldHasItsValue) {
    CreateKey(Hive::ClassesRoot, kSettingsKey);
    const auto write = [](const char* name, const QString& text) {
        WriteKeyValue(Hive::ClassesRoot, kSettingsKey, name, text, platform::registry::kString);
    };
    int number = 10;
    for (const char* name : {"Lang", "Launch", "OutPath", "OutFormat", "ProgWind", "UseWiz", "ReMode", "RecImg",
                             "CharSpac", "ConversionMethod", "ConvertPageFrom", "PromptConversion", "LogPath"})
        write(name, QString::number(++number));
    write("RecentFolder", "/in");
    write("RecentOutputFolder", "/out");
    write("StrLogPath", "/log");
    LoadSettingsFromRegistry(records);
    const AppSettings& settings = records.settings;
    EXPECT_EQ(settings.intLanguageID, 11);
    EXPECT_EQ(settings.intLauchMs, 12);
    EXPECT_EQ(settings.intOutputPath, 13);
    EXPECT_EQ(settings.intOutputFormat, 14);
    EXPECT_EQ(settings.intProgressWind, 15);
    EXPECT_EQ(settings.intUseWiz, 16);
    EXPECT_EQ(settings.intReconstMode, 17);
    EXPECT_EQ(settings.intRecoverImg, 18);
    EXPECT_EQ(settings.intCharSpac, 19);
    EXPECT_EQ(settings.strConversionMethod, "20");
    EXPECT_EQ(settings.intConvertFrom, 21);
    EXPECT_EQ(settings.intPromptConversion, 22);
    EXPECT_EQ(settings.strLogPathFlag, "23");
    EXPECT_EQ(settings.strRecentFolder, "/in");
    EXPECT_EQ(settings.strRecentOutputFolder, "/out");
    EXPECT_EQ(settings.strLogPath, "/log");
}

} // namespace
} // namespace tavrelion::tests
