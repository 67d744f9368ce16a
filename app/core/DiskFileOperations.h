#pragma once

#include "core/System.h"

/// The files and folders of this machine.
class DiskFileOperations : public FileOperations {
public:
    bool exists(const QString& path) const override;
    bool folderExists(const QString& path) const override;
    void createFolder(const QString& path) override;
    Deletion deleteFolder(const QString& path) override;
    void copy(const QString& source, const QString& target) override;
    std::int64_t size(const QString& path) const override;
    void makeReachableAs(const QString& file, const QString& alias) override;
    QString readText(const QString& path) const override;
};
