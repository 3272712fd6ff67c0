#pragma once

#include "Export/ExportSettings.h"
#include "Media/EncoderSettings.h"
#include "Media/Geometry.h"

#include <filesystem>
#include <limits>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <variant>

namespace brisklet::cli {

/// Wrong usage; what() says why.
class UsageError final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct HelpCommand {};

struct VersionCommand {};

struct ProbeCommand {
    std::filesystem::path source;
};

struct FilmstripCommand {
    std::filesystem::path source;
    std::filesystem::path directory;
    int count = 12;
};

struct FrameCommand {
    std::filesystem::path source;
    double seconds = 0;
    std::filesystem::path output;
};

struct ExportCommand {
    enum class Progress { bar, json };

    std::filesystem::path source;
    std::filesystem::path output;
    /// Seconds; by default the whole source.
    double start = 0;
    double end = std::numeric_limits<double>::infinity();
    /// In fractions of the displayed picture after the rotation.
    std::optional<media::Rect> crop;
    /// Clockwise, in degrees.
    int rotation = 0;
    bool muted = false;
    std::optional<int> maxShortEdge;
    ExportFormat format = ExportFormat::mp4;
    Progress progress = Progress::bar;
    /// The program's own settings, unless options for measurements change them.
    media::EncoderSettings encoders;
};

using Command = std::variant<HelpCommand, VersionCommand, ProbeCommand, FilmstripCommand,
                             FrameCommand, ExportCommand>;

/// Reads the arguments, without the program's own name. File names are taken byte for byte, and
/// file URLs too. Throws UsageError; std::runtime_error for an address that is not on this
/// computer.
Command parseArguments(std::span<char* const> arguments);

/// One line for each command.
std::string shortUsage();
/// What --help prints.
std::string fullUsage();

} // namespace brisklet::cli
