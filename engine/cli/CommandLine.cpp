#include "cli/CommandLine.h"

#include "cli/ExitCode.h"

#include <CLI/CLI.hpp>

namespace orvane::cli {
namespace {

using protocol::Format;
using protocol::Layout;

constexpr int kMaxJobs = 64;

constexpr const char* kPasswordHelp = "Read the password from the first line of FILE. Without it, the\n"
                                      "variable ORVANE_PASSWORD is used if it is set. It is tried as\n"
                                      "user and as owner password";

/// Pictures have a command of their own, so they are no layout here.
std::optional<Layout> textLayout(const std::string& name) {
    const std::optional<Layout> layout = protocol::layoutFromString(name);
    return layout == Layout::Images ? std::nullopt : layout;
}

/// Adds an option that takes one of a few names. Those that CLI11 offers for this write the names out twice in the
/// help.
template<typename Take>
CLI::Option* addNameOption(CLI::App& command, const char* option, const char* help, Take take) {
    return command.add_option_function<std::string>(
        option,
        [take, option](const std::string& name) {
            if (!take(name))
                throw CLI::ValidationError(option, "there is no \"" + name + "\"");
        },
        help);
}

void addWhereAndHow(CLI::App& command, ConvertOptions& options) {
    command
        .add_option("FILE", options.files,
                    "The PDF, and the document to write; without the latter\n"
                    "it stands beside the PDF. With --out-dir, all are PDFs")
        ->required()
        ->type_name("");
    command.add_option("--out-dir", options.outputFolder, "Write the documents into DIR, which is made if need be")
        ->type_name("DIR");
    addNameOption(command, "--to",
                  "Format to write: docx, doc or rtf. Default: by the name\n"
                  "of the document, or docx",
                  [&options](const std::string& name) {
                      options.format = protocol::formatFromString(name);
                      return options.format.has_value();
                  })
        ->type_name("FORMAT");
    addNameOption(command, "--layout",
                  "flowing: as its author would have typed it (default)\n"
                  "true-page: every line where it stood\n"
                  "continuous: formatted text as one flow\n"
                  "plain-text: the words alone",
                  [&options](const std::string& name) {
                      const std::optional<Layout> layout = textLayout(name);
                      options.layout = layout.value_or(Layout::Flowing);
                      return layout.has_value();
                  })
        ->type_name("LAYOUT");
}

/// What all commands that work through pages take.
void addRunOptions(CLI::App& command, std::string& pages, std::string& passwordFile, std::string& log) {
    command.add_option("--pages", pages, "Pages to take, such as 1-3,7. Default: all")->type_name("RANGE");
    command.add_option("--password-file", passwordFile, kPasswordHelp)->type_name("FILE");
    command.add_option("--log", log, "Append a record of each conversion to FILE")->type_name("FILE");
}

void addConvert(CLI::App& app, ConvertOptions& options) {
    CLI::App& command = *app.add_subcommand("convert", "Convert PDF files to word processor documents:\n"
                                                       "  orvane convert IN.pdf [OUT.docx]\n"
                                                       "  orvane convert A.pdf B.pdf ... --out-dir DIR --to docx");
    addWhereAndHow(command, options);
    addRunOptions(command, options.pages, options.passwordFile, options.log);
    command.add_flag("--no-images", options.removeImages, "Leave pictures out");
    command.add_flag("--keep-spacing", options.keepSpacing,
                     "Set the distances between characters exactly as in the\n"
                     "PDF, instead of leaving them to the word processor");
    command.add_flag("--json", options.json, "Print one JSON object a file instead of text");
    command
        .add_option("--jobs", options.jobs,
                    "Files to convert at the same time. Default: one a\n"
                    "processor, at most four")
        ->check(CLI::Range(1, kMaxJobs))
        ->type_name("N");
}

void addInfo(CLI::App& app, InfoOptions& options) {
    CLI::App& command = *app.add_subcommand("info", "Tell what a PDF file is:\n  orvane info IN.pdf");
    command.add_option("FILE", options.file, "The PDF")->required()->type_name("");
    command.add_option("--password-file", options.passwordFile, kPasswordHelp)->type_name("FILE");
    command.add_flag("--json", options.json, "Print a JSON object instead of text");
}

void addInspect(CLI::App& app, InspectOptions& options) {
    CLI::App& command = *app.add_subcommand("inspect", "Draw what a stage of the layout saw on a page:\n"
                                                       "  orvane inspect IN.pdf --page 3 --stage lines -o lines.svg");
    command.add_option("FILE", options.file, "The PDF")->required()->type_name("");
    command.add_option("--page", options.page, "Number of the page. Default: 1")
        ->check(CLI::PositiveNumber)
        ->type_name("N");
    command
        .add_option("--stage", options.stage,
                    "words, lines, rules, figures, regions, paragraphs or\n"
                    "tables; rules shows figures too")
        ->required()
        ->type_name("STAGE");
    command.add_option("-o,--output", options.output, "The SVG file to write. Default: IN-pN-STAGE.svg, here")
        ->type_name("FILE");
    command.add_option("--password-file", options.passwordFile, kPasswordHelp)->type_name("FILE");
}

void addImages(CLI::App& app, ImagesOptions& options) {
    CLI::App& command =
        *app.add_subcommand("images", "Take the pictures out of a PDF file:\n  orvane images IN.pdf DIR");
    command.add_option("FILE", options.file, "The PDF")->required()->type_name("");
    command.add_option("DIR", options.folder, "Where the files go; made if need be")->required()->type_name("");
    addNameOption(command, "--format",
                  "bmp, jpg, pbm, pcx, png, pnm, ppm, psd or tiff; or\n"
                  "original (default): the bytes as they stand in the PDF\n"
                  "where these are a picture file, png for the others",
                  [&options](const std::string& name) {
                      const auto format = protocol::imageFormatFromString(name);
                      options.format = format.value_or(ImageFileFormat::Original);
                      return format.has_value();
                  })
        ->type_name("FORMAT");
    addRunOptions(command, options.pages, options.passwordFile, options.log);
    command.add_flag("--json", options.json, "Print a JSON object instead of text");
}

void addDump(CLI::App& app, DumpOptions& options) {
    CLI::App& command =
        *app.add_subcommand("dump", "List the structures of a binary document as text:\n  orvane dump FILE.doc");
    command.add_option("FILE", options.file, "The DOC, of an edition from 97 on")->required()->type_name("");
}

/// What the option types cannot say; empty when all is well.
std::string findContradiction(const ConvertOptions& options) {
    if (!options.outputFolder && options.files.size() > 2)
        return "more than two files: say with --out-dir where the documents go";
    return "";
}

} // namespace

ParsedCommandLine parseCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    ConvertOptions convert;
    InfoOptions info;
    InspectOptions inspect;
    ImagesOptions images;
    DumpOptions dump;
    CLI::App app("Orvane converts PDF files to word processor documents.", "orvane");
    app.set_version_flag("--version", "orvane " ORVANE_VERSION);
    app.require_subcommand(1);
    app.footer(exitCodeHelp());
    addConvert(app, convert);
    addImages(app, images);
    addInfo(app, info);
    addInspect(app, inspect);
    addDump(app, dump);
    for (CLI::App* command : app.get_subcommands({}))
        command->footer(exitCodeHelp());
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const bool wasHelpAskedFor = app.exit(error, out, err) == 0;
        return static_cast<int>(wasHelpAskedFor ? ExitCode::Done : ExitCode::Usage);
    }
    if (app.got_subcommand("info"))
        return Command(info);
    if (app.got_subcommand("inspect"))
        return Command(inspect);
    if (app.got_subcommand("dump"))
        return Command(dump);
    if (app.got_subcommand("images"))
        return Command(images);
    if (const std::string contradiction = findContradiction(convert); !contradiction.empty()) {
        err << contradiction << "\nRun with --help for more information.\n";
        return static_cast<int>(ExitCode::Usage);
    }
    return Command(convert);
}

} // namespace orvane::cli
