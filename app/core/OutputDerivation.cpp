#include "core/OutputDerivation.h"

#include "core/Paths.h"

#include <QStringList>

namespace {

QString newOutputName(const SharedRecords& records, FormatChoice choice) {
    return outputNameOf(records.job.strSourcePDF, extensionOf(records.settings.intOutputFormat, choice));
}

} // namespace

QString extensionOf(std::int16_t intOutputFormat, FormatChoice choice) {
    if (intOutputFormat == output_format::kDoc)
        return ".doc";
    if (intOutputFormat == output_format::kRtf || choice == FormatChoice::DocOrRtf)
        return ".rtf";
    return intOutputFormat == output_format::kDocx ? ".docx" : QString();
}

QString outputNameOf(const QString& strSourcePDF, const QString& extension) {
    const QString name = nameOf(strSourcePDF);
    const QString stem = withoutExtension(name);
    return stem.isEmpty() ? name : stem + extension;
}

void DeriveOutputPath(SharedRecords& records, QString& strOutputName, FormatChoice choice) {
    ConversionJob& job = records.job;
    job.strOutputFile = outputOf(job.strSourcePDF, records.settings, job.strOutputFile, choice);
    if (records.settings.intOutputPath == output_mode::kRecentFolder)
        strOutputName = nameOf(job.strOutputFile);
}

QString outputOf(const QString& source, const AppSettings& settings, const QString& present, FormatChoice choice) {
    const QString extension = extensionOf(settings.intOutputFormat, choice);
    if (settings.intOutputPath == output_mode::kBesideSource)
        return withoutExtension(source) + extension;
    if (settings.intOutputPath == output_mode::kRecentFolder)
        return fileBelow(settings.strRecentOutputFolder, withoutExtension(nameOf(source)) + extension);
    return present;
}

QString outputBesideSource(const SharedRecords& records, std::int16_t intOutputFormat) {
    return withoutExtension(records.job.strSourcePDF) + extensionOf(intOutputFormat);
}

QString outputShownAtLoading(const SharedRecords& records, QString& strOutputName) {
    if (strOutputName.isEmpty())
        strOutputName = newOutputName(records, FormatChoice::DocOrRtf);
    return fileIn(records.flags.strHomeFolder, strOutputName);
}

QString outputShownAtActivation(const SharedRecords& records, QString& strOutputName) {
    strOutputName = newOutputName(records, FormatChoice::All);
    return fileIn(records.settings.strRecentOutputFolder, strOutputName);
}

QString outputShownInItsFolder(const SharedRecords& records, QString& strOutputName) {
    strOutputName = newOutputName(records, FormatChoice::All);
    return records.job.strOutputFile + strOutputName;
}

QString withFormat(const QString& path, std::int16_t intOutputFormat) {
    const QString found = extensionIn(path);
    const QString wanted = extensionOf(intOutputFormat);
    if (wanted.isEmpty() || !hasDocumentExtension(path) || found.toLower() == wanted)
        return path;
    return QString(path).replace(found, wanted);
}

bool hasDocumentExtension(const QString& path) {
    static const QStringList kExtensions{".doc", ".rtf", ".docx"};
    return kExtensions.contains(extensionIn(path).toLower());
}
