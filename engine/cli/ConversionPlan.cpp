#include "cli/ConversionPlan.h"

#include "cli/UsageError.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <thread>

#include <fmt/format.h>

namespace orvane::cli {
namespace {

using protocol::Format;
using protocol::Job;
namespace fs = std::filesystem;

constexpr int kDefaultMaxJobs = 4;

int processors() {
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

Format formatByName(const fs::path& target) {
    std::string extension = target.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (!extension.empty())
        if (const auto format = protocol::formatFromString(extension.substr(1)))
            return *format;
    throw UsageError(fmt::format("the format of {} cannot be told by its name: say it with --to", target.string()));
}

/// The name a PDF's document gets.
fs::path documentName(const fs::path& source, Format format) {
    return source.filename().replace_extension(toString(format));
}

/// Files of one name from several folders would overwrite each other in one folder; the later ones get a number.
fs::path unusedName(const fs::path& name, std::set<fs::path>& used) {
    fs::path candidate = name;
    for (int number = 2; !used.insert(candidate).second; ++number)
        candidate = fmt::format("{}-{}{}", name.stem().string(), number, name.extension().string());
    return candidate;
}

Job commonJob(const ConvertOptions& options, const std::string& password) {
    Job job;
    job.userPassword = password;
    job.ownerPassword = password;
    job.pageRange = options.pages;
    job.layout = options.layout;
    job.pictures = options.removeImages ? protocol::Pictures::Remove : protocol::Pictures::Keep;
    job.characterSpacing =
        options.keepSpacing ? protocol::CharacterSpacing::Exact : protocol::CharacterSpacing::Automatic;
    job.logPath = options.log;
    job.applicationName = "orvane";
    return job;
}

} // namespace

std::vector<Job> planConversions(const ConvertOptions& options, const std::string& password) {
    Job job = commonJob(options, password);
    std::vector<Job> jobs;
    if (!options.outputFolder) {
        const bool isTargetNamed = options.files.size() > 1;
        job.source = options.files.front();
        job.format = options.format ? *options.format : isTargetNamed ? formatByName(options.files[1]) : Format::Docx;
        job.target = isTargetNamed
                         ? options.files[1]
                         : (fs::path(job.source).parent_path() / documentName(job.source, job.format)).string();
        jobs.push_back(job);
        return jobs;
    }
    job.format = options.format.value_or(Format::Docx);
    job.limits.threads = std::max(1, processors() / concurrentJobs(options, options.files.size()));
    std::set<fs::path> used;
    for (const std::string& file : options.files) {
        job.source = file;
        job.target = (fs::path(*options.outputFolder) / unusedName(documentName(file, job.format), used)).string();
        jobs.push_back(job);
    }
    return jobs;
}

int concurrentJobs(const ConvertOptions& options, std::size_t fileCount) {
    const int wanted = options.jobs > 0 ? options.jobs : std::min(processors(), kDefaultMaxJobs);
    return static_cast<int>(
        std::min<std::size_t>(static_cast<std::size_t>(wanted), std::max<std::size_t>(fileCount, 1)));
}

} // namespace orvane::cli
