// orvane: the conversion engine's command line. See docs/cli.md.

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/Interrupt.h"

#include <iostream>

using namespace orvane;

int main(int argc, char** argv) {
    const cli::ParsedCommandLine parsed = cli::parseCommandLine(argc, argv, std::cout, std::cerr);
    if (const int* exitCode = std::get_if<int>(&parsed))
        return *exitCode;

    cli::catchInterrupts();
    const cli::Streams streams{std::cout, std::cerr};
    const auto& command = std::get<cli::Command>(parsed);
    if (const auto* convert = std::get_if<cli::ConvertOptions>(&command))
        return static_cast<int>(cli::convert(*convert, streams));
    if (const auto* inspect = std::get_if<cli::InspectOptions>(&command))
        return static_cast<int>(cli::inspect(*inspect, streams));
    if (const auto* images = std::get_if<cli::ImagesOptions>(&command))
        return static_cast<int>(cli::images(*images, streams));
    if (const auto* dump = std::get_if<cli::DumpOptions>(&command))
        return static_cast<int>(cli::dump(*dump, streams));
    return static_cast<int>(cli::info(std::get<cli::InfoOptions>(command), streams));
}
