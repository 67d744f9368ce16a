#include "services/InstallLog.h"

#include "records/SharedRecords.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace {

constexpr qsizetype kDateLength = 18; ///< characters of the date and time behind "installation started"

/// Position of the last separator of a path, the platform's own or the one that installers write.
qsizetype lastSeparator(const QString& line) {
    return std::max(line.lastIndexOf('\\'), line.lastIndexOf(QDir::separator()));
}

QString startOfInstallation(const QString& line) {
    static const QString mark = "installation started";
    const qsizetype found = line.indexOf(mark);
    return found < 0 ? QString() : line.mid(found + mark.size(), kDateLength);
}

QString installerName(const QString& line) {
    const qsizetype extension = line.lastIndexOf(".exe");
    const qsizetype separator = lastSeparator(line);
    if (!line.contains("source:") || extension < 0 || separator < 0)
        return {};
    // One character more than the name with its ".exe". It does no harm, since the channel is looked for before the
    // last ".exe", and support knows the names with it.
    const qsizetype length = extension - separator + 4;
    return length > 0 ? line.mid(separator + 1, length) : QString();
}

} // namespace

QString ParseInstallLine(const QString& selector, const QString& line) {
    const QString lowered = line.toLower();
    if (selector == "1")
        return startOfInstallation(lowered);
    if (selector == "2")
        return installerName(lowered);
    return {};
}

QVariant ReadInstallLog(const QString& key) {
    QFile log(sharedRecords().flags.strHomeFolder + QDir::separator() + "install.log");
    if (!log.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    const QString selector = key == "installedondate" ? "1" : key == "filename" ? "2" : "";
    QVariant last;
    while (!log.atEnd()) {
        QString line = QString::fromLocal8Bit(log.readLine());
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        const QString value = ParseInstallLine(selector, line);
        if (value.size() > 1)
            last = value;
    }
    return last;
}

QString GetInstallChannel() {
    const QString name = ReadInstallLog("filename").toString().toLower();
    const qsizetype extension = name.lastIndexOf(".exe");
    const qsizetype underscore = name.lastIndexOf('_');
    if (extension < 0 || underscore < 0 || underscore > extension)
        return "default";
    return name.mid(underscore + 1, extension - underscore - 1);
}
