#include "core/OpenDocument.h"

#include "platform/DocumentOpening.h"
#include "records/SharedRecords.h"
#include "services/SystemProbes.h"
#include "services/WordProcessorSearch.h"

#include <filesystem>

namespace {

constexpr char kWordProcessor[] = "winword"; ///< where its installer left no program of another name

std::filesystem::path nativePath(const QString& path) {
    return std::filesystem::path(path.toStdU16String());
}

} // namespace

int SystemDocumentShell::IsMSWordInstalled() {
    return ::IsMSWordInstalled();
}

void SystemDocumentShell::openInWordProcessor(const QString& path, const QString& folder) {
    const QString program = wordProcessorProgram();
    platform::openWith(nativePath(program.isEmpty() ? kWordProcessor : program), nativePath(path), nativePath(folder));
}

void SystemDocumentShell::openByAssociation(const QString& path, const QString& folder) {
    platform::openByAssociation(nativePath(path), nativePath(folder));
}

namespace run {

void OpenDocument(DocumentShell& shell, const SharedRecords& records, const QString& path) {
    if (shell.IsMSWordInstalled() == 1)
        shell.openInWordProcessor(path, records.flags.strHomeFolder);
    else
        shell.openByAssociation(path, records.flags.strHomeFolder);
}

} // namespace run
