#pragma once

#include "records/SharedRecords.h"
#include "support/TemporaryFolder.h"

#include <QDir>
#include <QFile>
#include <QString>

namespace tavrelion::tests {

/// Sends the error log of the process to a folder of a test's own.
class ErrorLogFolder {
public:
    ErrorLogFolder() { sharedRecords().flags.strHomeFolder = QString::fromStdString(m_folder.path().string()); }
    ~ErrorLogFolder() { sharedRecords() = SharedRecords(); }
    ErrorLogFolder(const ErrorLogFolder&) = delete;
    ErrorLogFolder& operator=(const ErrorLogFolder&) = delete;

    /// What was logged; empty for nothing.
    QString text() const {
        QFile file(sharedRecords().flags.strHomeFolder + QDir::separator() + "GUILog.tmp");
        return file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.readAll()) : QString();
    }
    /// How many records stand under these two names.
    qsizetype records(const QString& formName, const QString& moduleName) const {
        return text().count("Form Name: " + formName + ", Module Name: " + moduleName + "\r\n");
    }

private:
    orvane::tests::TemporaryFolder m_folder;
};

} // namespace tavrelion::tests
