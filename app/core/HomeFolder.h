#pragma once

#include <QString>

#include "records/SharedRecords.h"

#include <optional>
#include <string>

/// What the search for the home folder asks of the system. Every answer may throw: a failed question counts as
/// unanswered.
class HomeFolderSources {
public:
    virtual ~HomeFolderSources() = default;

    /// 1 makes the folder of the program's own file the home folder; 0 is a host that has nothing to say.
    virtual int hostAnswer() const = 0;
    virtual QString programFolder() const = 0;
    /// The desktop's folder of that id, as the system gives it; nothing on any failure.
    virtual std::optional<std::string> specialFolder(int folderId) const = 0;
    /// Empty when the variable is not set.
    virtual QString environment(const QString& name) const = 0;
};

/// The answers of the system the program runs on.
class SystemFolderSources : public HomeFolderSources {
public:
    int hostAnswer() const override;
    QString programFolder() const override;
    std::optional<std::string> specialFolder(int folderId) const override;
    QString environment(const QString& name) const override;
};

/// The path of a desktop folder, cut at the first zero character and trimmed; nothing on any failure.
std::optional<QString> GetSpecialFolderPath(int folderId, const HomeFolderSources& sources);

/// Sets strHomeFolder and blnHomeFolderKnown. The folder has no separator at its end and need not exist.
void FindHomeFolder(RunFlags& flags, const HomeFolderSources& sources);
