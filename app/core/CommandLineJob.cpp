#include "core/CommandLineJob.h"

#include "core/ProgressRun.h"

#include <QFileInfo>

namespace {

QString extensionOf(std::int16_t intOutputFormat) {
    switch (intOutputFormat) {
    case 2:
        return ".docx";
    case 1:
        return ".rtf";
    default:
        return ".doc";
    }
}

void selectSingleFile(BatchQueue& queue, const QString& path) {
    queue.strSelectedFiles = {path};
    queue.lngSelectedBound = 0;
    queue.strCurrentFile = path;
    queue.strOutputFiles = {QString()};
    queue.strFileStatus = {QString()};
    queue.intCurrentIndex = -1;
}

} // namespace

CommandLineJob takeCommandLineJob(SharedRecords& records) {
    QString commandLine;
    std::swap(commandLine, records.flags.strCommandLine);
    commandLine.remove('"');
    if (commandLine.trimmed().isEmpty())
        return CommandLineJob::None;
    const QString path = QFileInfo(commandLine).absoluteFilePath();
    if (!path.endsWith(".pdf", Qt::CaseInsensitive))
        return CommandLineJob::NotAPdf;
    selectSingleFile(records.queue, path);
    ConversionJob& job = records.job;
    job.strSourcePDF = path;
    job.strOutputShown = extensionOf(records.settings.intOutputFormat);
    job.strOutputFile = path.chopped(4) + job.strOutputShown;
    records.flags.intRunKind = run_kind::kConvert;
    records.flags.blnCloseRequested = false;
    return CommandLineJob::Ready;
}
