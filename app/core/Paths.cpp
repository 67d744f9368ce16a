#include "core/Paths.h"

#include <QDir>

#include <algorithm>
#include <stdexcept>

namespace {

constexpr qsizetype kExtensionLength = 4; ///< of ".pdf"

} // namespace

QString nameOf(const QString& path) {
    return path.mid(path.lastIndexOf(QDir::separator()) + 1);
}

QString folderOf(const QString& path) {
    const auto end = path.lastIndexOf(QDir::separator());
    if (end < 0)
        throw std::runtime_error("there is no folder in the path " + path.toStdString());
    return path.left(end);
}

QString folderWithSeparator(const QString& path) {
    return path.left(path.lastIndexOf(QDir::separator()) + 1);
}

QString stemOf(const QString& name) {
    const auto point = name.lastIndexOf('.');
    return point < 0 ? name : name.left(point);
}

QString fileIn(const QString& folder, const QString& name) {
    return folder + QDir::separator() + name;
}

QString extensionIn(const QString& path) {
    const auto point = path.lastIndexOf('.');
    return point < 0 ? path : path.mid(point);
}

QString withoutExtension(const QString& path) {
    return path.chopped(std::min(kExtensionLength, path.size()));
}

QString fileBelow(const QString& folder, const QString& name) {
    return folder.endsWith(QDir::separator()) ? folder + name : fileIn(folder, name);
}
