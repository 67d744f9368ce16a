#pragma once

#include "i18n/LanguageTable.h"
#include "support/TemporaryFolder.h"

#include <QFile>
#include <QString>
#include <QStringList>

#include <filesystem>

namespace tavrelion::tests {

/// An application folder of a test's own with language files that the test writes, a language table over it, and the
/// load failures that were told.
class LanguageFolder {
public:
    explicit LanguageFolder(const AppSettings& settings)
        : table({settings, QString::fromStdString(m_folder.path().string()),
                 [this](const QString& text) { told << text; }}) {
        std::filesystem::create_directory(m_folder.path() / "XML");
    }

    QString path(const QString& fileName) const { return table.applicationFolder + "/XML/" + fileName; }

    /// Writes a language file with these items, "NAME=VALUE" or "NAME=VALUE|TOOLTIPTEXT" each.
    void write(const QString& fileName, const QStringList& items) const {
        QString xml;
        for (const QString& item : items) {
            const QString name = item.section('=', 0, 0);
            const QString texts = item.section('=', 1);
            const QString toolTip = texts.contains('|') ? " TOOLTIPTEXT=\"" + texts.section('|', 1) + '"' : QString();
            xml += "<CONVERTERITEM NAME=\"" + name + "\" VALUE=\"" + texts.section('|', 0, 0) + '"' + toolTip + "/>";
        }
        writeRaw(fileName, "<Root><LANGUAGEOPTIONS>" + xml + "</LANGUAGEOPTIONS></Root>");
    }
    void writeRaw(const QString& fileName, const QString& xml) const {
        QFile file(path(fileName));
        if (!file.open(QIODevice::WriteOnly) || file.write(xml.toUtf8()) < 0)
            qFatal("a test cannot write its language file");
    }
    void remove(const QString& fileName) const { QFile::remove(path(fileName)); }

private:
    orvane::tests::TemporaryFolder m_folder;

public:
    LanguageTable table;
    QStringList told;
};

} // namespace tavrelion::tests
