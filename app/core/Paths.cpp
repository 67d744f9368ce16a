#include "core/Paths.h"

#include <QDir>

#include <stdexcept>

namespace run {

QString nameOf(const QString& path) {
    return path.mid(path.lastIndexOf(QDir::separator()) + 1);
}

QString folderOf(const QString& path) {
    const auto end = path.lastIndexOf(QDir::separator());
    if (end < 0)
        throw std::runtime_error("there is no folder in the path " + path.toStdString());
    return path.left(end);
}

QString stemOf(const QString& name) {
    const auto point = name.lastIndexOf('.');
    return point < 0 ? name : name.left(point);
}

QString fileIn(const QString& folder, const QString& name) {
    return folder + QDir::separator() + name;
}

} // namespace run
