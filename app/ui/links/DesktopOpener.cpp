#include "ui/links/DesktopOpener.h"

#include "platform/DefaultViewer.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QUrl>

bool DesktopOpener::canShow(const QString& file) const {
    if (!QFileInfo::exists(file))
        return false;
    // By the name alone: help books of different makers start differently.
    const QMimeType type = QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension);
    return platform::hasDefaultViewer(type.name().toStdString());
}

void DesktopOpener::open(const QString& target) {
    const bool isAddress = target.contains("://");
    QDesktopServices::openUrl(isAddress ? QUrl(target) : QUrl::fromLocalFile(target));
}
