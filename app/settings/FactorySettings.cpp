#include "settings/FactorySettings.h"

#include "settings/SettingsFile.h"

#include <pugixml.hpp>

#include <QDir>

#include <cmath>
#include <filesystem>
#include <limits>
#include <string>

namespace {

bool load(pugi::xml_document& document, const QString& path) {
    return document.load_file(std::filesystem::path(path.toStdString()).c_str()) && document.document_element();
}

void takeParameters(const pugi::xml_document& document, AppSettings& settings) {
    const auto value = [&document](const char* name) { return GetDefaultValue(document, name); };
    settings.intLanguageID = value("intLanguageID");
    settings.intLauchMs = value("intLauchMs");
    settings.intOutputPath = value("intOutputPath");
    settings.intOutputFormat = value("intOutputFormat");
    settings.intProgressWind = value("intProgressWind");
    settings.intUseWiz = value("intUseWiz");
    settings.intReconstMode = value("intReconstMode");
    settings.intRecoverImg = value("intRecoverImg");
    settings.intCharSpac = value("intCharSpac");
    settings.intPromptPageRange = value("intPromptPageRange");
    settings.intConvertFrom = value("intConvertFrom");
    settings.intLogPath = value("intLogPath");
    settings.intPromptConversion = value("intPromptConversion");
    settings.strConversionMethod = QString::number(value("strConversionMethod"));
}

/// Gives the output file the extension of the format. Every occurrence of the old extension's text in the path is
/// replaced, in its own case; a restore to DOCX leaves the path alone.
void fitExtension(SharedRecords& records) {
    QString& path = records.job.strOutputFile;
    const qsizetype point = path.lastIndexOf('.');
    if (point < 0)
        return;
    const QString extension = path.mid(point);
    const QString upper = extension.toUpper();
    if (records.settings.intOutputFormat == 1 && (upper == ".DOC" || upper == ".DOCX"))
        path.replace(extension, ".rtf");
    else if (records.settings.intOutputFormat == 0 && (upper == ".RTF" || upper == ".DOCX"))
        path.replace(extension, ".doc");
}

} // namespace

std::int16_t GetDefaultValue(const pugi::xml_document& document, const char* name) {
    const std::string path = std::string("//Root/SETTINGPARAMETER[@NAME='") + name + "']";
    const pugi::xpath_node node = document.select_node(path.c_str());
    if (!node)
        return 0;
    bool isNumber = false;
    const double number = QString::fromUtf8(node.node().attribute("VALUE").value()).toDouble(&isNumber);
    const double rounded = std::nearbyint(number);
    using Limits = std::numeric_limits<std::int16_t>;
    if (!isNumber || rounded < Limits::min() || rounded > Limits::max())
        return 0;
    return static_cast<std::int16_t>(rounded);
}

void RestoreDefaultSettings(SharedRecords& records, const FactorySources& sources) {
    pugi::xml_document document;
    if (!load(document, sources.file)) {
        sources.reportLoadFailure(sources.file);
        return;
    }
    // Read afresh before it is used: a file that vanished in between leaves the parameters as they are.
    if (load(document, sources.file))
        takeParameters(document, records.settings);

    AppSettings& settings = records.settings;
    settings.intCharSpac = settings.intCharSpac != 0 ? 1 : 0;
    records.job.strCharSpacing = settings.intCharSpac != 0 ? "no" : "yes";
    fitExtension(records);
    settings.strRecentOutputFolder = records.flags.strHomeFolder;
    settings.strLogPath = records.flags.strHomeFolder + QDir::separator() + "Tavrelion.log";
    settings.strRecentFolder = sources.shownFolder;
    UpdateSettings(records);
}
