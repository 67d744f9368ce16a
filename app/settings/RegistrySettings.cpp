#include "settings/RegistrySettings.h"

#include "services/RegistryStore.h"
#include "settings/SettingsRecord.h"

void LoadSettingsFromRegistry(SharedRecords& records) {
    // In the order of the settings file; the page range has no value here.
    constexpr const char* kValueNames[settings_record::kFieldCount] = {"Lang",
                                                                       "Launch",
                                                                       "OutPath",
                                                                       "OutFormat",
                                                                       "ProgWind",
                                                                       "UseWiz",
                                                                       "ReMode",
                                                                       "RecImg",
                                                                       "CharSpac",
                                                                       nullptr,
                                                                       "ConversionMethod",
                                                                       "ConvertPageFrom",
                                                                       "PromptConversion",
                                                                       "RecentFolder",
                                                                       "RecentOutputFolder",
                                                                       "StrLogPath",
                                                                       "LogPath"};
    QStringList fields;
    for (const char* name : kValueNames)
        fields << (name ? ReadKeyValue(Hive::ClassesRoot, kSettingsKey, name).toString() : QString());
    settings_record::take(fields, settings_record::PageRange::LeftAlone, records);
}
