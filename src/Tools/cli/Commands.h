#pragma once

#include "Tools/cli/Arguments.h"

#include <stdexcept>
#include <stop_token>

namespace brisklet::cli {

/// A command that failed; what() is the one-line message.
class CommandError final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Each runs one command on the calling thread until it is done. They throw CommandError, or
/// media::Cancelled after a stop request.
void run(const ProbeCommand& command, const std::stop_token& stop);
void run(const FilmstripCommand& command, const std::stop_token& stop);
void run(const FrameCommand& command, const std::stop_token& stop);
void run(const ExportCommand& command, const std::stop_token& stop);

} // namespace brisklet::cli
