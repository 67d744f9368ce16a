#include "ui/options/OutputPath.h"

#include <QDir>
#include <QStringList>

#include <algorithm>

QString extensionOf(const QString& path) {
    return path.mid(std::max<qsizetype>(path.lastIndexOf('.'), 0));
}

bool isDocumentPath(const QString& path) {
    return QStringList{".DOC", ".RTF", ".DOCX"}.contains(extensionOf(path).toUpper());
}

QString withFormat(const QString& path, std::int16_t intOutputFormat) {
    struct Format {
        std::int16_t number;
        QStringList others;
        const char* extension;
    };
    const Format formats[]{
        {2, {".DOC", ".RTF"}, ".docx"}, {1, {".DOC", ".DOCX"}, ".rtf"}, {0, {".DOCX", ".RTF"}, ".doc"}};
    const QString found = extensionOf(path);
    for (const Format& format : formats)
        if (format.number == intOutputFormat && format.others.contains(found.toUpper()))
            return QString(path).replace(found, format.extension);
    return path;
}

QString withItsSeparator(const QString& path) {
    return path.left(path.lastIndexOf(QDir::separator()) + 1);
}

QString inFolder(const QString& folder, const QString& name) {
    return folder.endsWith(QDir::separator()) ? folder + name : folder + QDir::separator() + name;
}
