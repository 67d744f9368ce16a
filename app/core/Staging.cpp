#include "core/Staging.h"

#include "core/ProgressRun.h"

#include <QDir>
#include <QFileInfo>

namespace run {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr seconds kDeletionLimit{5};
constexpr milliseconds kBetweenDeletions{100};
constexpr char kFolderName[] = "tmpQVL";
constexpr char kExtension[] = ".pdf";

bool isWithinLimit(const ProgressRun& run, milliseconds start) {
    return std::chrono::duration_cast<seconds>(run.clock.now() - start) < kDeletionLimit;
}

/// A staged name without ".pdf" leaves the stem as it was.
void takeStagedStem(ProgressRun& run, const ErrorTrap& trap) {
    const auto extension = run.strStagedPath.lastIndexOf(kExtension, -1, Qt::CaseInsensitive);
    if (extension < 0)
        return;
    run.strStagedStem = run.strStagedPath.left(extension);
    // The engine is given the name with ".pdf" in small letters, which is another file where letter case counts.
    trap([&] { run.files.makeReachableAs(run.strStagedPath, run.strStagedStem + kExtension); });
}

} // namespace

QString stagingFolder(const ProgressRun& run) {
    return run.records.flags.strHomeFolder + QDir::separator() + kFolderName;
}

Staging WaitOnDeleteFolder(ProgressRun& run, const QString& path) {
    const milliseconds start = run.clock.now();
    while (run.files.folderExists(path) && isWithinLimit(run, start)) {
        if (run.records.flags.blnCloseRequested)
            return Staging::NotReady;
        run.view.setStatus("Please wait...");
        auto deletion = FileOperations::Deletion::Failed;
        run.eventLoop.runAside([&] { deletion = run.files.deleteFolder(path); });
        if (deletion == FileOperations::Deletion::Done)
            break;
        run.clock.sleep(kBetweenDeletions);
        run.eventLoop.yield();
    }
    if (path.isEmpty())
        return Staging::NotReady;
    if (!run.files.folderExists(path))
        run.files.createFolder(path);
    return Staging::Ready;
}

Staging stageSource(ProgressRun& run, const ErrorTrap& trap, const QString& source) {
    run.strStagedPath = source;
    run.strWorkFolder = run.records.flags.strHomeFolder;
    Staging state = Staging::Ready;
    trap([&] { state = WaitOnDeleteFolder(run, stagingFolder(run)); });
    if (state == Staging::NotReady)
        return state;
    run.strStagedName = QFileInfo(run.strStagedPath).fileName();
    const QString copy = stagingFolder(run) + QDir::separator() + run.strStagedName;
    trap([&] { run.eventLoop.runAside([&] { run.files.copy(source, copy); }); });
    run.strStagedPath = copy;
    takeStagedStem(run, trap);
    return state;
}

} // namespace run
