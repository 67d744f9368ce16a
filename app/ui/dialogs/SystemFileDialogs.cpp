#include "ui/dialogs/SystemFileDialogs.h"

#include "core/SourceSelection.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

#include <algorithm>

namespace {

/// Name of the box for file names in Qt's own dialog.
constexpr char kNameBox[] = "fileNameEdit";

/// The files of an open dialog. What its name box lists goes before the rows that it has selected meanwhile: of several
/// names that were typed it can leave a row unselected and would open the others without a word.
QStringList chosenFiles(const QFileDialog& dialog) {
    const auto* nameBox = dialog.findChild<QLineEdit*>(kNameBox);
    const QStringList listed = nameBox ? quotedFiles(nameBox->text(), dialog.directory()) : QStringList();
    const bool areThere =
        std::all_of(listed.begin(), listed.end(), [](const QString& file) { return QFile::exists(file); });
    return listed.isEmpty() || !areThere ? dialog.selectedFiles() : listed;
}

} // namespace

std::optional<QString> SystemFileDialogs::open(const OpenRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), request.title, startFolder(request.initialFolder));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilters(filterRows(request.filter));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialogText(chosenFiles(dialog), request.longestAnswer);
}

std::optional<QString> SystemFileDialogs::save(const SaveRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), request.title, startFolder(request.initialFolder));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    const QStringList rows = filterRows(request.filter);
    dialog.setNameFilters(rows);
    if (request.filterRow >= 1 && request.filterRow <= rows.size())
        dialog.selectNameFilter(rows[request.filterRow - 1]);
    dialog.selectFile(request.fileName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return QDir::toNativeSeparators(dialog.selectedFiles().front());
}

QStringList filterRows(const QString& filter) {
    const QStringList parts = filter.split('|');
    QStringList rows;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString description = parts[i].section(" (", 0, 0);
        rows << description + " (" + parts[i + 1] + ')';
    }
    return rows;
}

QStringList quotedFiles(const QString& text, const QDir& folder) {
    const QStringList parts = text.split('"');
    QStringList files;
    for (qsizetype i = 1; i < parts.size(); i += 2)
        files << QDir::cleanPath(folder.absoluteFilePath(parts[i]));
    return files;
}

QString startFolder(const QString& folderOrFile) {
    const QFileInfo told(folderOrFile);
    if (folderOrFile.isEmpty() || !told.exists())
        return QDir::currentPath();
    return told.isDir() ? told.absoluteFilePath() : told.absolutePath();
}
