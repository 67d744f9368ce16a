#include "protocol/Job.h"

#include "protocol/JsonReader.h"
#include "protocol/PercentText.h"

#include <limits>

namespace orvane::protocol {
namespace {

constexpr EnumNames<Task, 3> kTasks{{{Task::Convert, "convert"}, {Task::Inspect, "inspect"}, {Task::Draw, "draw"}}};
constexpr EnumNames<Layout, 5> kLayouts{{{Layout::Flowing, "flowing"},
                                         {Layout::TruePage, "true-page"},
                                         {Layout::Continuous, "continuous"},
                                         {Layout::PlainText, "plain-text"},
                                         {Layout::Images, "images"}}};
constexpr EnumNames<Format, 3> kFormats{{{Format::Docx, "docx"}, {Format::Doc, "doc"}, {Format::Rtf, "rtf"}}};
constexpr EnumNames<ImageFileFormat, 10> kImageFormats{{{ImageFileFormat::Bmp, "bmp"},
                                                        {ImageFileFormat::Jpg, "jpg"},
                                                        {ImageFileFormat::Pbm, "pbm"},
                                                        {ImageFileFormat::Pcx, "pcx"},
                                                        {ImageFileFormat::Png, "png"},
                                                        {ImageFileFormat::Pnm, "pnm"},
                                                        {ImageFileFormat::Ppm, "ppm"},
                                                        {ImageFileFormat::Psd, "psd"},
                                                        {ImageFileFormat::Tiff, "tiff"},
                                                        {ImageFileFormat::Original, "original"}}};
constexpr EnumNames<Pictures, 2> kPictures{{{Pictures::Keep, "keep"}, {Pictures::Remove, "remove"}}};
constexpr EnumNames<CharacterSpacing, 2> kSpacings{
    {{CharacterSpacing::Automatic, "automatic"}, {CharacterSpacing::Exact, "exact"}}};
constexpr EnumNames<WhenStarterEnds, 2> kStarterEnds{
    {{WhenStarterEnds::Stop, "stop"}, {WhenStarterEnds::Finish, "finish"}}};

constexpr int kMost = std::numeric_limits<int>::max();

} // namespace

const char* toString(Layout layout) {
    return nameOf(kLayouts, layout);
}
const char* toString(Format format) {
    return nameOf(kFormats, format);
}
const char* toString(ImageFileFormat format) {
    return nameOf(kImageFormats, format);
}
std::optional<Layout> layoutFromString(std::string_view name) {
    return valueOf(kLayouts, name);
}
std::optional<Format> formatFromString(std::string_view name) {
    return valueOf(kFormats, name);
}
std::optional<ImageFileFormat> imageFormatFromString(std::string_view name) {
    return valueOf(kImageFormats, name);
}

std::string encodeJob(const Job& job) {
    // Paths and passwords are bytes of any kind; JSON holds Unicode only.
    const nlohmann::json object{{"task", nameOf(kTasks, job.task)},
                                {"source", percentEncoded(job.source)},
                                {"userPassword", percentEncoded(job.userPassword)},
                                {"ownerPassword", percentEncoded(job.ownerPassword)},
                                {"pageRange", percentEncoded(job.pageRange)},
                                {"layout", toString(job.layout)},
                                {"format", toString(job.format)},
                                {"imageFormat", toString(job.imageFormat)},
                                {"pictures", nameOf(kPictures, job.pictures)},
                                {"characterSpacing", nameOf(kSpacings, job.characterSpacing)},
                                {"stage", percentEncoded(job.stage)},
                                {"target", percentEncoded(job.target)},
                                {"logPath", percentEncoded(job.logPath)},
                                {"scratchFolder", percentEncoded(job.scratchFolder)},
                                {"applicationName", percentEncoded(job.applicationName)},
                                {"whenStarterEnds", nameOf(kStarterEnds, job.whenStarterEnds)},
                                {"memoryMegabytes", job.limits.memoryMegabytes},
                                {"seconds", job.limits.seconds},
                                {"threads", job.limits.threads}};
    return object.dump();
}

Job decodeJob(std::string_view line) {
    const nlohmann::json object = parseObject(line);
    JsonReader reader(object, "job");
    Job job;
    job.task = reader.name("task", kTasks);
    job.source = percentDecoded(reader.text("source"));
    job.userPassword = percentDecoded(reader.text("userPassword"));
    job.ownerPassword = percentDecoded(reader.text("ownerPassword"));
    job.pageRange = percentDecoded(reader.text("pageRange"));
    job.layout = reader.name("layout", kLayouts);
    job.format = reader.name("format", kFormats);
    job.imageFormat = reader.name("imageFormat", kImageFormats);
    job.pictures = reader.name("pictures", kPictures);
    job.characterSpacing = reader.name("characterSpacing", kSpacings);
    job.stage = percentDecoded(reader.text("stage"));
    job.target = percentDecoded(reader.text("target"));
    job.logPath = percentDecoded(reader.text("logPath"));
    job.scratchFolder = percentDecoded(reader.text("scratchFolder"));
    job.applicationName = percentDecoded(reader.text("applicationName"));
    job.whenStarterEnds = reader.name("whenStarterEnds", kStarterEnds);
    job.limits.memoryMegabytes = reader.integer("memoryMegabytes", {1, kMost});
    job.limits.seconds = reader.integer("seconds", {1, kMost});
    job.limits.threads = reader.integer("threads", {0, 64});
    reader.requireNothingElse();
    return job;
}

} // namespace orvane::protocol
