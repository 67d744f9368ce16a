#pragma once

#include "base/ImageFileFormat.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvane::protocol {

/// What a worker is to do with the source.
enum class Task : std::uint8_t {
    Convert, ///< write the target
    Inspect, ///< tell what the file is; nothing is written
    Draw,    ///< draw what a stage of the layout saw on the one page of the range
};

/// How pages become text, or that they become pictures.
enum class Layout : std::uint8_t { Flowing, TruePage, Continuous, PlainText, Images };

/// The format of the target.
enum class Format : std::uint8_t { Docx, Doc, Rtf };

enum class Pictures : std::uint8_t { Keep, Remove };

/// Whether the distances between characters are set as they stand in the source, or left to the word processor.
enum class CharacterSpacing : std::uint8_t { Automatic, Exact };

/// What a worker does when the process that started it is gone.
enum class WhenStarterEnds : std::uint8_t {
    Stop,   ///< as if it had been cancelled
    Finish, ///< the document is written all the same
};

/// What a worker may use. Past a limit it ends with FailureCode::LimitExceeded.
struct Limits {
    int memoryMegabytes = 4096; ///< address space of the process
    int seconds = 1800;         ///< by the clock on the wall
    int threads = 0;            ///< that read pages; 0: as many as the machine has, at most four
};

/// Everything a worker is told; it gets it as the first line of its standard input, so that no password stands among
/// the arguments of a process.
struct Job {
    Task task = Task::Convert;
    std::string source;
    std::string userPassword;
    std::string ownerPassword;
    std::string pageRange; ///< empty: all pages
    Layout layout = Layout::Flowing;
    Format format = Format::Docx;                            ///< of a document
    ImageFileFormat imageFormat = ImageFileFormat::Original; ///< of Layout::Images
    Pictures pictures = Pictures::Keep;
    CharacterSpacing characterSpacing = CharacterSpacing::Automatic;
    std::string stage;           ///< of Task::Draw, by its name
    std::string target;          ///< the document, or the folder of Layout::Images
    std::string logPath;         ///< empty: no log
    std::string scratchFolder;   ///< where the job makes a folder of its own; empty: the system's place for such files
    std::string applicationName; ///< stands in the log
    WhenStarterEnds whenStarterEnds = WhenStarterEnds::Stop;
    Limits limits;
};

/// The names by which users and messages know these: "true-page", "docx".
const char* toString(Layout layout);
const char* toString(Format format);
const char* toString(ImageFileFormat format);
std::optional<Layout> layoutFromString(std::string_view name);
std::optional<Format> formatFromString(std::string_view name);
std::optional<ImageFileFormat> imageFormatFromString(std::string_view name);

/// The job as one line without its line end.
std::string encodeJob(const Job& job);

/// The reverse of encodeJob().
/// Errors: ProtocolError for anything that encodeJob() does not make.
Job decodeJob(std::string_view line);

} // namespace orvane::protocol
