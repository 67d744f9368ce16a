#include "ui/form/FolderDialog.h"

#include <QDir>
#include <QFileDialog>

QString SystemFolderDialog::BrowseFolder(QWidget& window, const QString& title) {
    const QString folder = QFileDialog::getExistingDirectory(&window, title);
    return QDir::toNativeSeparators(folder.section(QChar::Null, 0, 0)).trimmed();
}
