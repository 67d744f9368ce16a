#include "core/BatchOutput.h"

#include "core/Paths.h"
#include "records/SharedRecords.h"

#include <QDir>

namespace run {
namespace {

// Values of intOutputPath.
constexpr std::int16_t kInRecentFolder = 0;
constexpr std::int16_t kBesideSource = 2;

constexpr int kExtensionLength = 4; ///< of ".pdf"

} // namespace

QString extensionOf(std::int16_t intOutputFormat) {
    switch (intOutputFormat) {
    case 0:
        return ".doc";
    case 1:
        return ".rtf";
    case 2:
        return ".docx";
    default:
        return {};
    }
}

QString batchOutput(const AppSettings& settings, const QString& source, const QString& present) {
    const QString extension = extensionOf(settings.intOutputFormat);
    if (settings.intOutputPath == kBesideSource)
        return source.chopped(std::min<qsizetype>(kExtensionLength, source.size())) + extension;
    if (settings.intOutputPath != kInRecentFolder)
        return present;
    const QString name = nameOf(source);
    const QString& folder = settings.strRecentOutputFolder;
    const QString between = folder.endsWith(QDir::separator()) ? QString() : QString(QDir::separator());
    return folder + between + name.chopped(std::min<qsizetype>(kExtensionLength, name.size())) + extension;
}

} // namespace run
