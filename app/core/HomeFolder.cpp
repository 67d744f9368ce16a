#include "core/HomeFolder.h"

#include "platform/Environment.h"
#include "platform/SpecialFolders.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr int kDocumentsFolder = 5;
constexpr int kHostAnswerOwnFolder = 1;
constexpr char kLastResort[] = "c:\\Temp"; ///< on every system: what remains when nothing is known about the user

/// The result of a question that may fail; a failed one counts as `otherwise`.
template<typename Value, typename Question>
Value answerOr(Value otherwise, Question&& question) {
    try {
        return question();
    } catch (...) {
        return otherwise;
    }
}

QString documentsFolder(const HomeFolderSources& sources) {
    return GetSpecialFolderPath(kDocumentsFolder, sources).value_or(QString());
}

QString environment(const HomeFolderSources& sources, const QString& name) {
    return answerOr(QString(), [&] { return sources.environment(name); });
}

/// The user's folder by what the desktop and the environment say; empty when neither does.
QString userFolder(const HomeFolderSources& sources) {
    QString folder = documentsFolder(sources);
    if (folder.isEmpty())
        folder = environment(sources, "HOMEDRIVE") + environment(sources, "HOMEPATH");
    if (folder.isEmpty())
        folder = environment(sources, "TEMP");
    return folder;
}

} // namespace

std::optional<QString> GetSpecialFolderPath(int folderId, const HomeFolderSources& sources) {
    const auto found = answerOr(std::optional<std::string>(), [&] { return sources.specialFolder(folderId); });
    if (!found)
        return std::nullopt;
    return QFile::decodeName(QByteArray(found->c_str())).trimmed();
}

void FindHomeFolder(RunFlags& flags, const HomeFolderSources& sources) {
    flags.strHomeFolder.clear();
    flags.blnHomeFolderKnown = false;
    const int answer = answerOr(0, [&] { return sources.hostAnswer(); });
    if (answer == kHostAnswerOwnFolder) {
        flags.strHomeFolder = answerOr(QString(), [&] { return sources.programFolder(); });
        flags.blnHomeFolderKnown = true;
    } else if (answer == 0) {
        flags.strHomeFolder = userFolder(sources);
    }
    if (flags.strHomeFolder.isEmpty())
        flags.strHomeFolder = kLastResort;
}

int SystemFolderSources::hostAnswer() const {
    // There is no host object on this platform, which counts as 0.
    return 0;
}

QString SystemFolderSources::programFolder() const {
    return QFile::decodeName(platform::programFile().parent_path().c_str());
}

std::optional<std::string> SystemFolderSources::specialFolder(int folderId) const {
    const auto folder = platform::specialFolder(platform::SpecialFolder{folderId});
    return folder ? std::optional<std::string>(folder->string()) : std::nullopt;
}

QString SystemFolderSources::environment(const QString& name) const {
    return QString::fromLocal8Bit(platform::environmentValue(name.toStdString()).value_or(std::string()));
}
