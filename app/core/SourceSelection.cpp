#include "core/SourceSelection.h"

#include "core/Paths.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

bool isNamedPdf(const QString& path) {
    return path.right(4).toLower() == ".pdf";
}

/// Full path of the last file of the selection.
QString lastFileOf(const BatchQueue& queue) {
    const QStringList& files = queue.strSelectedFiles;
    return queue.lngSelectedBound == 0 ? files.front() : fileBelow(files.front(), files.back());
}

/// Leaves the first file that is not named as a PDF in strCurrentFile.
bool areAllNamedPdf(BatchQueue& queue) {
    if (queue.lngSelectedBound == 0)
        return isNamedPdf(queue.strCurrentFile);
    const QStringList& files = queue.strSelectedFiles;
    return std::all_of(files.begin() + 1, files.end(), [&queue, &files](const QString& name) {
        queue.strCurrentFile = fileIn(files.front(), name);
        return isNamedPdf(queue.strCurrentFile);
    });
}

} // namespace

std::optional<QString> dialogText(const QStringList& paths, qsizetype limit) {
    if (paths.isEmpty())
        return std::nullopt;
    QStringList parts = paths;
    if (paths.size() > 1) {
        const QString folder = QFileInfo(paths.front()).absolutePath();
        parts = QStringList{QDir::toNativeSeparators(folder)};
        for (const QString& path : paths) {
            if (QFileInfo(path).absolutePath() != folder)
                return std::nullopt;
            parts << QFileInfo(path).fileName();
        }
    } else {
        parts.front() = QDir::toNativeSeparators(parts.front());
    }
    const QString text = parts.join(QChar(u'\0'));
    return text.size() > limit ? std::nullopt : std::make_optional(text);
}

void fillQueue(BatchQueue& queue, const QStringList& selectedFiles) {
    queue.strSelectedFiles = selectedFiles;
    queue.lngSelectedBound = static_cast<std::int32_t>(selectedFiles.size()) - 1;
    queue.strOutputFiles = QStringList(selectedFiles.size());
    queue.strFileStatus = QStringList(selectedFiles.size());
    queue.intCurrentIndex = -1;
}

Selection takeSelection(SharedRecords& records, const FileOperations& files, const QString& dialogText) {
    BatchQueue& queue = records.queue;
    fillQueue(queue, dialogText.isEmpty() ? QStringList() : dialogText.split(QChar(u'\0')));
    if (queue.lngSelectedBound < 0)
        return Selection::Nothing;
    queue.strCurrentFile = lastFileOf(queue);
    if (queue.strCurrentFile.isEmpty() || !files.exists(queue.strCurrentFile))
        return Selection::Nothing;
    const QString shown = queue.strCurrentFile;
    if (!areAllNamedPdf(queue))
        return Selection::NotPdf;
    queue.strCurrentFile = shown;
    records.job.strSourcePDF = shown;
    // The first selection ever leaves a file's path here; the dialogs start from it as well as from a folder.
    if (records.settings.strRecentFolder.isEmpty())
        records.settings.strRecentFolder = shown;
    return Selection::Taken;
}
