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

} // namespace
} // namespace tavrelion::tests
