#pragma once

#include "core/FileDialogs.h"

#include <QDir>
#include <QStringList>

/// The desktop's own file dialogs, over the active window.
class SystemFileDialogs : public FileDialogs {
public:
    std::optional<QString> open(const OpenRequest& request) override;
    std::optional<QString> save(const SaveRequest& request) override;
};

/// The rows of a filter as the desktop's dialogs take them: "PDF Files (*.pdf)" for "PDF Files (*.pdf)|*.pdf".
QStringList filterRows(const QString& filter);

/// The files of a name box that lists several, each in double quotes: full paths, those without a folder in the one
/// told. Empty when nothing is quoted.
QStringList quotedFiles(const QString& text, const QDir& folder);

/// The folder that a dialog starts in: the one that is told, that of the file that is told, else the current one.
QString startFolder(const QString& folderOrFile);
