#include "protocol/ConversionLog.h"

#include "protocol/DiagnosticDigest.h"

#include <ctime>
#include <fstream>
#include <map>

#include <fmt/chrono.h>
#include <fmt/format.h>

namespace orvane::protocol {
namespace {

constexpr int kMaxLinesOfOneKind = 40;

/// A text of the outside world as one line: a path or a title may hold line ends, and would look like lines of the log.
std::string oneLine(std::string text) {
    for (char& c : text)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
            c = ' ';
    return text;
}

std::string heading(const Job& job, const LogRecord& record) {
    const std::time_t time = std::chrono::system_clock::to_time_t(record.start);
    const std::string application = job.applicationName.empty() ? "" : oneLine(job.applicationName) + ", ";
    return fmt::format("== {:%Y-%m-%d %H:%M:%S}  {}Orvane {}\n", fmt::localtime(time), application, ORVANE_VERSION);
}

std::string pageLine(const Job& job, const LogRecord& record) {
    const std::string range = job.pageRange.empty() ? "all" : oneLine(job.pageRange);
    if (!record.accepted)
        return fmt::format("pages:    {}\n", range);
    return fmt::format("pages:    {} ({} of {})\n", range, record.accepted->selectedPages, record.accepted->pageCount);
}

std::string optionLine(const Job& job) {
    if (job.layout == Layout::Images)
        return fmt::format("options:  layout {}, format {}\n", toString(job.layout), toString(job.imageFormat));
    return fmt::format("options:  layout {}, format {}, pictures {}, character spacing {}\n", toString(job.layout),
                       toString(job.format), job.pictures == Pictures::Keep ? "kept" : "removed",
                       job.characterSpacing == CharacterSpacing::Exact ? "as in the source" : "automatic");
}

std::string diagnosticLine(const DiagnosticGroup& group) {
    std::string line = fmt::format("  {}: {}", toString(group.kind), oneLine(group.message));
    if (group.pages.size() == 1)
        line += fmt::format(" (page {})", group.pages.front());
    else if (!group.pages.empty())
        line += fmt::format(" (pages {})", formatPages(group.pages));
    if (group.count > 1)
        line += fmt::format(", {} times", group.count);
    return line + "\n";
}

std::string diagnosticLines(const std::vector<Diagnostic>& diagnostics) {
    std::string text = fmt::format("notes:    {}\n", diagnostics.size());
    std::map<DiagnosticKind, int> lines;
    std::map<DiagnosticKind, int> leftOut;
    for (const DiagnosticGroup& group : groupDiagnostics(diagnostics)) {
        if (++lines[group.kind] <= kMaxLinesOfOneKind)
            text += diagnosticLine(group);
        else
            leftOut[group.kind] += group.count;
    }
    for (const auto& [kind, count] : leftOut)
        text += fmt::format("  {}: and {} more\n", toString(kind), count);
    return text;
}

std::string pictureLines(const std::vector<PictureReport>& pictures) {
    std::string text;
    for (const PictureReport& picture : pictures) {
        const char* plural = picture.pages.size() == 1 ? "" : "s";
        text += fmt::format("picture:  {}, {} x {} pixels, page{} {}", oneLine(picture.file), picture.width,
                            picture.height, plural, formatPages(picture.pages));
        text += picture.parts.size() > 1 ? fmt::format(", {} pieces\n", picture.parts.size()) : "\n";
    }
    return text;
}

std::string countLine(const Job& job, const Counts& counts) {
    if (job.layout == Layout::Images)
        return fmt::format("counts:   pictures {} read, {} written\n", counts.picturesRead, counts.picturesWritten);
    return fmt::format("counts:   characters {} read, {} written; pictures {} read, {} written; "
                       "links {} read, {} written; values of form fields {} read, {} written\n",
                       counts.charactersRead, counts.charactersWritten, counts.picturesRead, counts.picturesWritten,
                       counts.linksRead, counts.linksWritten, counts.valuesRead, counts.valuesWritten);
}

std::string resultLine(const LogRecord& record) {
    if (!record.failure)
        return "result:   done\n";
    const Failed& failure = *record.failure;
    std::string line = fmt::format("result:   {}: {}", toString(failure.code), oneLine(failure.message));
    if (failure.where.page > 0)
        line += fmt::format(" (page {})", failure.where.page);
    if (failure.where.object > 0)
        line += fmt::format(" (object {})", failure.where.object);
    return line + "\n";
}

} // namespace

std::string formatLogRecord(const Job& job, const LogRecord& record) {
    std::string text = heading(job, record);
    text += fmt::format("source:   {}\n", oneLine(job.source));
    text += fmt::format("target:   {}\n", oneLine(job.target));
    text += pageLine(job, record);
    text += optionLine(job);
    if (!record.diagnostics.empty())
        text += diagnosticLines(record.diagnostics);
    for (const std::string& remark : record.remarks)
        text += fmt::format("remark:   {}\n", oneLine(remark));
    text += pictureLines(record.pictures);
    if (record.counts)
        text += countLine(job, *record.counts);
    text += fmt::format("time:     {:.2f} s\n", record.seconds);
    text += resultLine(record);
    return text + "\n";
}

bool appendToLog(const Job& job, const LogRecord& record) {
    if (job.logPath.empty())
        return true;
    const std::string text = formatLogRecord(job, record);
    // Without a buffer in between, the text goes to the file in one write, which the system does not mix with others.
    std::ofstream log;
    log.rdbuf()->pubsetbuf(nullptr, 0);
    log.open(job.logPath, std::ios::binary | std::ios::app);
    log.write(text.data(), static_cast<std::streamsize>(text.size()));
    return log.good();
}

} // namespace orvane::protocol
