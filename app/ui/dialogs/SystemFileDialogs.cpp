#include "ui/dialogs/SystemFileDialogs.h"

#include "core/SourceSelection.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

std::optional<QString> SystemFileDialogs::open(const OpenRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), request.title, startFolder(request.initialFolder));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilters(filterRows(request.filter));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialogText(dialog.selectedFiles(), request.longestAnswer);
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

QString startFolder(const QString& folderOrFile) {
    const QFileInfo told(folderOrFile);
    if (folderOrFile.isEmpty() || !told.exists())
        return QDir::currentPath();
    return told.isDir() ? told.absoluteFilePath() : told.absolutePath();
}
