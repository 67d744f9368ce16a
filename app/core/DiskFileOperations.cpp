#include "core/DiskFileOperations.h"

#include "platform/FolderDeletion.h"

#include <QFile>

#include <filesystem>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

fs::path nativePath(const QString& path) {
    return fs::path(path.toStdU16String());
}

} // namespace

bool DiskFileOperations::exists(const QString& path) const {
    std::error_code ignored;
    return fs::is_regular_file(nativePath(path), ignored);
}

bool DiskFileOperations::folderExists(const QString& path) const {
    std::error_code ignored;
    return fs::is_directory(nativePath(path), ignored);
}

void DiskFileOperations::createFolder(const QString& path) {
    fs::create_directories(nativePath(path));
    fs::permissions(nativePath(path), fs::perms::owner_all);
}

FileOperations::Deletion DiskFileOperations::deleteFolder(const QString& path) {
    return platform::deleteFolder(nativePath(path)) == platform::Deletion::Done ? Deletion::Done : Deletion::Failed;
}

void DiskFileOperations::copy(const QString& source, const QString& target) {
    fs::copy_file(nativePath(source), nativePath(target), fs::copy_options::overwrite_existing);
}

std::int64_t DiskFileOperations::size(const QString& path) const {
    return static_cast<std::int64_t>(fs::file_size(nativePath(path)));
}

void DiskFileOperations::makeReachableAs(const QString& file, const QString& alias) {
    std::error_code ignored;
    if (!fs::exists(nativePath(file), ignored) || fs::equivalent(nativePath(file), nativePath(alias), ignored))
        return;
    fs::remove(nativePath(alias));
    fs::create_hard_link(nativePath(file), nativePath(alias));
}

QString DiskFileOperations::readText(const QString& path) const {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(file.errorString().toStdString());
    return QString::fromUtf8(file.readAll());
}
