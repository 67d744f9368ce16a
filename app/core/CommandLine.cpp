#include "core/CommandLine.h"

#include "core/SourceSelection.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace {

constexpr char kModeSeparator[] = "~!~";
constexpr char kDirectRun[] = "1";
constexpr char kGuidedRun[] = "2";

constexpr int kShortestLine = 5; ///< characters, of "a.pdf"
// How far before the end of the line its extension is searched for.
constexpr int kReach = 4;
constexpr int kReachWithMode = 8;

/// The text from this many characters, and one more, before its end; null when the line is shorter.
QString tailOf(const QString& line, int reach) {
    return line.size() > reach ? line.right(reach + 1) : QString();
}

bool namesWordDocument(const QString& line) {
    const QString tail = tailOf(line, kReach);
    const std::array<const char*, 6> extensions{".doc", ".DOC", ".docx", ".DOCX", ".rtf", ".RTF"};
    return std::any_of(extensions.begin(), extensions.end(),
                       [&tail](const char* extension) { return tail.contains(extension); });
}

void applyMode(const QString& mode, AppSettings& settings, std::int16_t& intDirectRun) {
    if (mode == kDirectRun) {
        settings.intUseWiz = 0;
        intDirectRun = 1;
    } else if (mode == kGuidedRun) {
        settings.intUseWiz = 1;
    }
}

} // namespace

QString commandLineOf(const QStringList& arguments) {
    const QString line = arguments.join(' ');
    const QString path = line.section(kModeSeparator, 0, 0);
    const bool isRelativePdf =
        path.endsWith(".pdf", Qt::CaseInsensitive) && QFileInfo(path).isRelative() && QFileInfo::exists(path);
    return isRelativePdf ? QDir::current().absoluteFilePath(line) : line;
}

bool isCommandLinePending(const RunFlags& flags) {
    return flags.strCommandLine.size() >= kShortestLine && !flags.blnCloseRequested;
}

CommandLineFile fileOnCommandLine(const QString& strCommandLine) {
    const int reach = strCommandLine.contains(kModeSeparator) ? kReachWithMode : kReach;
    if (tailOf(strCommandLine, reach).contains(".pdf", Qt::CaseInsensitive))
        return CommandLineFile::Pdf;
    // A mode that nothing can precede leaves no file to judge.
    if (strCommandLine.size() <= reach)
        return CommandLineFile::Other;
    return namesWordDocument(strCommandLine) ? CommandLineFile::WordDocument : CommandLineFile::Other;
}

void takeCommandLine(SharedRecords& records, std::int16_t& intDirectRun) {
    QString line;
    std::swap(line, records.flags.strCommandLine);
    if (!line.contains(kModeSeparator))
        line = line.remove('"') + kModeSeparator + kDirectRun;
    const QStringList parts = line.split(kModeSeparator);
    BatchQueue& queue = records.queue;
    const QStringList statusBefore = queue.strFileStatus;
    fillQueue(queue, {parts[0]});
    queue.strFileStatus = statusBefore; // made anew by a selection alone
    applyMode(parts[1], records.settings, intDirectRun);
    queue.strCurrentFile = parts[0];
    records.job.strSourcePDF = parts[0];
    if (records.settings.strRecentFolder.isEmpty())
        records.settings.strRecentFolder = parts[0];
}
