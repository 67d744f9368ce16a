#include "settings/DefaultSettings.h"

#include "services/SystemProbes.h"

#include <QDir>

void SetDefaultSettings(SharedRecords& records) {
    AppSettings& settings = records.settings;
    settings.intLanguageID = 0;
    settings.intLauchMs = 2;
    settings.intOutputPath = 0;
    settings.intOutputFormat = IsMSWordInstalled() == 1 ? 0 : 1;
    settings.intProgressWind = 1;
    settings.intUseWiz = 1;
    settings.intReconstMode = 3;
    settings.intRecoverImg = 1;
    settings.intCharSpac = 1;
    settings.strConversionMethod = "0";
    settings.intConvertFrom = 0;
    settings.intPromptConversion = 0;
    settings.intPromptPageRange = 0;
    settings.strRecentFolder = records.flags.strHomeFolder;
    settings.strRecentOutputFolder = records.flags.strHomeFolder;
    settings.strLogPath = records.flags.strHomeFolder + QDir::separator() + "Tavrelion.log";
    settings.intLogPath = 0;
    settings.strLogPathFlag = "0";
    // Only the next load or the options window brings this text in line with intCharSpac.
    records.job.strCharSpacing = "yes";
}
