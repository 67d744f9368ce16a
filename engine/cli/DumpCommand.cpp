#include "cli/Commands.h"

#include "read/doc/DocDump.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>
#include <system_error>

namespace orvane::cli {
namespace {

/// Larger files are no documents of this format, whose places are numbers of 32 bits.
constexpr std::uintmax_t kLargestFile = std::uintmax_t{1} << 31;

} // namespace

ExitCode dump(const DumpOptions& options, const Streams& streams) {
    const auto fail = [&](const std::string& why) {
        streams.err << "orvane: " << options.file << ": " << why << "\n";
        return exitCodeFor(FailureCode::SourceUnreadable);
    };
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(options.file, error);
    std::ifstream in(options.file, std::ios::binary);
    if (error || !in)
        return fail("the file cannot be read");
    if (size > kLargestFile)
        return fail("the file is larger than a DOC can be");
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    const read::doc::Dump found = read::doc::dumpDoc(bytes);
    streams.out << found.text;
    return found.damage.empty() ? ExitCode::Done : fail("the document is damaged: " + found.damage);
}

} // namespace orvane::cli
