#include "services/ErrorLog.h"

#include "platform/DateText.h"
#include "records/SharedRecords.h"

#include <QDir>
#include <QFile>

#include <ctime>

namespace {

constexpr char kFileName[] = "GUILog.tmp";
constexpr char kLineEnd[] = "\r\n";
constexpr int kRuleLength = 83;

QString record(const QString& formName, const QString& moduleName, const QString& description) {
    const QString now = QString::fromLocal8Bit(platform::generalDateText(std::time(nullptr)));
    // "occured" is how readers of these logs search for a record; the spelling stays.
    const QStringList lines{"Form Name: " + formName + ", Module Name: " + moduleName,
                            description.simplified() + " occured on: " + now, QString(kRuleLength, '-')};
    return lines.join(kLineEnd) + kLineEnd;
}

} // namespace

void WriteErrorLog(const QString& formName, const QString& moduleName, const QString& description) {
    if (description.trimmed().isEmpty())
        return;
    QFile file(sharedRecords().flags.strHomeFolder + QDir::separator() + kFileName);
    if (file.open(QIODevice::Append))
        file.write(record(formName, moduleName, description).toLocal8Bit());
}
