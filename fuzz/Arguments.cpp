#include "CommandLine.h"
#include "Media/Threading/Verify.h"
#include "Tools/cli/Arguments.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <string>
#include <vector>

using namespace brisklet;

/// The arguments of both programs: wrong ones are told, and what is accepted is in its range.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    std::vector<std::string> texts;
    while (input.remaining_bytes() > 0 && texts.size() < 32)
        texts.push_back(input.ConsumeRandomLengthString(256));
    std::vector<char*> arguments;
    for (std::string& text : texts)
        arguments.push_back(text.data());

    const CommandLine line = CommandLine::parse({arguments.data(), arguments.size()});
    media::verify(line.files.size() <= arguments.size(), "no file comes from nowhere");
    try {
        const cli::Command command = cli::parseArguments(arguments);
        if (const auto* request = std::get_if<cli::ExportCommand>(&command)) {
            media::verify(request->start >= 0 && request->start < request->end, "a range");
            const media::Rect whole{0, 0, 1, 1};
            media::verify(!request->crop || whole.contains(*request->crop), "in the picture");
        }
        if (const auto* request = std::get_if<cli::FrameCommand>(&command))
            media::verify(std::isfinite(request->seconds) && request->seconds >= 0, "a time");
    } catch (const std::runtime_error&) {
        // It was told.
    }
    return 0;
}
