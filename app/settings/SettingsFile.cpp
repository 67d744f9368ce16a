#include "settings/SettingsFile.h"

#include "services/ErrorLog.h"
#include "settings/DefaultSettings.h"
#include "settings/SettingsRecord.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace {

/// The quoted text at the front of the file, without its quotes; a text without quotes ends at the first comma or line
/// end. A quote within a path thus ends the record early; the format has no way to write it.
QByteArray quotedText(const QByteArray& content) {
    qsizetype start = 0;
    while (start < content.size() && QByteArrayView(" \t\r\n").contains(content[start]))
        ++start;
    if (start == content.size())
        throw SettingsUnreadable("Input past end of file.");
    if (content[start] != '"') {
        qsizetype end = start;
        while (end < content.size() && !QByteArrayView(",\r\n").contains(content[end]))
            ++end;
        return content.mid(start, end - start);
    }
    const qsizetype end = content.indexOf('"', start + 1);
    return content.mid(start + 1, end < 0 ? -1 : end - start - 1);
}

QByteArray readAll(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw SettingsUnreadable(file.errorString().toStdString());
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw SettingsUnreadable(file.errorString().toStdString());
    return content;
}

void write(const QString& path, const QString& record) {
    QSaveFile file(path);
    file.setDirectWriteFallback(false);
    const QByteArray line = '"' + record.toLocal8Bit() + "\"\r\n";
    if (!file.open(QIODevice::WriteOnly) || file.write(line) != line.size() || !file.commit())
        throw std::runtime_error(file.errorString().toStdString());
}

} // namespace

QString settingsFile(const SharedRecords& records) {
    return records.flags.strHomeFolder + QDir::separator() + "docval.temp";
}

void LoadSettings(SharedRecords& records) {
    const QString path = settingsFile(records);
    if (!QFile::exists(path)) {
        SetDefaultSettings(records);
        return;
    }
    const QStringList fields = QString::fromLocal8Bit(quotedText(readAll(path))).split(settings_record::kSeparator);
    if (fields.size() < settings_record::kFieldCount) {
        SetDefaultSettings(records);
        return;
    }
    settings_record::take(fields, settings_record::PageRange::Taken, records);
}

void UpdateSettings(SharedRecords& records) {
    const QString record = settings_record::make(records).join(settings_record::kSeparator);
    if (records.settings.strRecentOutputFolder.trimmed().isEmpty())
        records.settings.strRecentOutputFolder = records.flags.strHomeFolder;
    try {
        write(settingsFile(records), record);
    } catch (const std::exception& error) {
        WriteErrorLog("modXML", "UpdateSettings", QString::fromUtf8(error.what()));
    }
}
