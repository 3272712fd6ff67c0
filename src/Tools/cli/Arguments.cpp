#include "Tools/cli/Arguments.h"

#include "Export/ExportRequest.h"
#include "Support/FileUrl.h"
#include "Tools/cli/ArgumentList.h"
#include "Tools/cli/ToolText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace brisklet::cli {

namespace {

constexpr int kMostStills = 10'000;

const ArgumentList::Options kNoOptions;
const ArgumentList::Options kFilmstripOptions{.flags = {}, .withValue = {"--count"}};
const ArgumentList::Options kExportOptions{
    .flags = {"--mute"},
    .withValue = {"--start", "--end", "--crop", "--rotate", "--max-short-edge", "--format",
                  "--progress", "--h264-preset", "--h264-crf", "--hevc-preset", "--hevc-crf"}};

void expectOperands(const ArgumentList& list, std::size_t count, const char* names) {
    if (list.operands().size() < count)
        throw UsageError(message(ToolText::tr("something is missing: expected %1"), {names}));
    if (list.operands().size() > count)
        throw UsageError(
            message(ToolText::tr("unexpected argument \"%1\""), {list.operands()[count]}));
    if (std::ranges::any_of(list.operands(), [](const auto& operand) { return operand.empty(); }))
        throw UsageError(message(ToolText::tr("a name is empty")));
}

/// The path that an operand names: a path as it is, or a file URL. Throws if that is not on this
/// computer.
std::filesystem::path fileOf(const std::string& operand) {
    return looksLikeUrl(operand) ? pathOf(urlOfArgument(operand)) : std::filesystem::path(operand);
}

ProbeCommand parseProbe(std::span<char* const> arguments) {
    const ArgumentList list(arguments, kNoOptions);
    expectOperands(list, 1, "SOURCE");
    return {fileOf(list.operands()[0])};
}

FilmstripCommand parseFilmstrip(std::span<char* const> arguments) {
    const ArgumentList list(arguments, kFilmstripOptions);
    expectOperands(list, 2, "SOURCE DIRECTORY");
    FilmstripCommand command{.source = fileOf(list.operands()[0]),
                             .directory = fileOf(list.operands()[1])};
    command.count = list.integer("--count").value_or(command.count);
    if (command.count < 1 || command.count > kMostStills)
        throw UsageError(message(ToolText::tr("--count needs a number from 1 to %1"),
                                 {std::to_string(kMostStills)}));
    return command;
}

FrameCommand parseFrame(std::span<char* const> arguments) {
    const ArgumentList list(arguments, kNoOptions);
    expectOperands(list, 3, "SOURCE SECONDS OUTPUT.png");
    const auto seconds = parseNumber(list.operands()[1]);
    if (!seconds || *seconds < 0)
        throw UsageError(message(ToolText::tr("SECONDS needs a number from 0, not \"%1\""),
                                 {list.operands()[1]}));
    return {fileOf(list.operands()[0]), *seconds, fileOf(list.operands()[2])};
}

std::optional<media::Rect> parseCrop(const std::string& text) {
    std::array<double, 4> sides = {};
    std::string_view rest = text;
    for (std::size_t i = 0; i < sides.size(); ++i) {
        const std::size_t comma = i + 1 < sides.size() ? rest.find(',') : rest.size();
        const auto side =
            comma == std::string_view::npos ? std::nullopt : parseNumber(rest.substr(0, comma));
        if (!side)
            throw UsageError(message(ToolText::tr("--crop needs X,Y,W,H, not \"%1\""), {text}));
        sides[i] = *side;
        rest.remove_prefix(std::min(comma + 1, rest.size()));
    }
    const media::Rect crop{sides[0], sides[1], sides[2], sides[3]};
    const media::Rect whole{0, 0, 1, 1};
    if (crop.width <= 0 || crop.height <= 0 ||
        !whole.insetBy(-kWholePictureMargin, -kWholePictureMargin).contains(crop))
        throw UsageError(message(
            ToolText::tr("--crop needs fractions of the picture, from 0 to 1, with an area")));
    if (coversPicture(crop))
        return std::nullopt;
    return crop.intersected(whole);
}

/// The extensions that exports get, between separators: "mp4|mov".
std::string formatNames(std::string_view separator) {
    std::string names;
    for (const ExportFormatTraits& row : kExportFormatTable) {
        if (!names.empty())
            names += separator;
        names += row.extension.data();
    }
    return names;
}

ExportFormat parseFormat(const ArgumentList& list, const std::filesystem::path& output) {
    if (const auto name = list.value("--format")) {
        if (const auto format = exportFormatOfExtension(QString::fromStdString(*name)))
            return *format;
        //: %1: the formats, such as “mp4, mov”; %2: what was given.
        throw UsageError(message(ToolText::tr("--format knows %1, not \"%2\""),
                                 {formatNames(ToolText::tr(" and ").toStdString()), *name}));
    }
    const std::string extension = output.extension().string();
    if (!extension.empty()) {
        if (const auto format =
                exportFormatOfExtension(QString::fromStdString(extension.substr(1))))
            return *format;
    }
    throw UsageError(
        message(ToolText::tr("the name of the output does not say which format: add --format %1"),
                {formatNames(ToolText::tr(" or ").toStdString())}));
}

std::optional<media::EncoderPreset> parsePreset(const ArgumentList& list, const char* option) {
    const auto name = list.value(option);
    if (!name)
        return std::nullopt;
    for (const auto& [preset, known] : media::kEncoderPresets) {
        if (*name == known)
            return preset;
    }
    throw UsageError(message(ToolText::tr("%1 knows no \"%2\""), {option, *name}));
}

media::EncoderSettings parseEncoders(const ArgumentList& list) {
    media::EncoderSettings settings;
    settings.h264Preset = parsePreset(list, "--h264-preset").value_or(settings.h264Preset);
    if (const auto crf = list.number("--h264-crf"))
        settings.h264Crf = settings.h264ReducedCrf = *crf;
    settings.hevcPreset = parsePreset(list, "--hevc-preset").value_or(settings.hevcPreset);
    settings.hevcCrf = list.number("--hevc-crf").value_or(settings.hevcCrf);
    return settings;
}

void parseRange(ExportCommand& command, const ArgumentList& list) {
    command.start = list.number("--start").value_or(command.start);
    command.end = list.number("--end").value_or(command.end);
    if (command.start < 0)
        throw UsageError(message(ToolText::tr("--start must not be negative")));
    if (command.end <= command.start)
        throw UsageError(message(ToolText::tr("--end must come after --start")));
}

ExportCommand parseExport(std::span<char* const> arguments) {
    const ArgumentList list(arguments, kExportOptions);
    expectOperands(list, 2, "SOURCE OUTPUT");
    ExportCommand command;
    command.source = fileOf(list.operands()[0]);
    command.output = fileOf(list.operands()[1]);
    parseRange(command, list);
    if (const auto crop = list.value("--crop"))
        command.crop = parseCrop(*crop);
    command.rotation = list.integer("--rotate").value_or(0);
    command.muted = list.has("--mute");
    command.maxShortEdge = list.integer("--max-short-edge");
    if (command.maxShortEdge.value_or(1) < 1)
        throw UsageError(message(ToolText::tr("--max-short-edge needs a number of pixels")));
    command.format = parseFormat(list, command.output);
    if (const auto progress = list.value("--progress")) {
        if (*progress != "json")
            throw UsageError(
                message(ToolText::tr("--progress knows json only, not \"%1\""), {*progress}));
        command.progress = ExportCommand::Progress::json;
    }
    command.encoders = parseEncoders(list);
    return command;
}

} // namespace

Command parseArguments(std::span<char* const> arguments) {
    // Before a "--", --help and --version win over everything else.
    for (const std::string_view argument : arguments) {
        if (argument == "--")
            break;
        if (argument == "--help" || argument == "-h")
            return HelpCommand();
        if (argument == "--version")
            return VersionCommand();
    }
    if (arguments.empty())
        throw UsageError(message(ToolText::tr("no command is given")));
    const std::string_view name = arguments.front();
    const auto rest = arguments.subspan(1);
    if (name == "probe")
        return parseProbe(rest);
    if (name == "filmstrip")
        return parseFilmstrip(rest);
    if (name == "frame")
        return parseFrame(rest);
    if (name == "export")
        return parseExport(rest);
    throw UsageError(message(ToolText::tr("\"%1\" is no command"), {std::string(name)}));
}

std::string shortUsage() {
    //: Commands and options stay as they are; %1 is “mp4|mov”. Lines have at most 79 letters.
    return message(
        QCoreApplication::translate(
            "brisklet::cli::ToolText",
            "Usage: brisklet-cli probe SOURCE\n"
            "       brisklet-cli filmstrip SOURCE DIRECTORY [--count N]\n"
            "       brisklet-cli frame SOURCE SECONDS OUTPUT.png\n"
            "       brisklet-cli export SOURCE OUTPUT [--start S] [--end S] [--crop X,Y,W,H]\n"
            "                    [--rotate DEGREES] [--mute] [--max-short-edge N]\n"
            "                    [--format %1] [--progress json]\n"),
        {formatNames("|")});
}

std::string fullUsage() {
    //: Commands and options stay as they are; %1 is “mp4 or mov”. Lines have at most 79 letters.
    const QString explanations = QCoreApplication::translate(
        "brisklet::cli::ToolText",
        "probe      prints what the file is, as one JSON object.\n"
        "filmstrip  writes N (12) small stills from the middles of N equal slices to the\n"
        "           directory as 00.png, 01.png, ..., and prints their times as JSON.\n"
        "frame      writes the upright picture that a player shows at that time.\n"
        "export     writes a copy of the file:\n"
        "  --start, --end        the part to keep, in seconds (all of it)\n"
        "  --crop                in fractions of the picture as displayed after --rotate,\n"
        "                        from its top left corner\n"
        "  --rotate              clockwise quarter turns, in degrees\n"
        "  --mute                leaves the sound out\n"
        "  --max-short-edge      scales down to this many pixels on the shorter side\n"
        "  --format              %1 (what the output’s name ends in)\n"
        "  --progress json       prints one JSON line per report instead of a bar\n"
        "  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf\n"
        "                        other encoder settings than the program’s, for measurements\n"
        "\n"
        "  --help, --version     print this, or the version, and exit\n"
        "\n"
        "Exit status: 0 done; 1 failed; 2 wrong usage; 130 interrupted.\n");
    //: Between the names of formats, of which there are two or more.
    const std::string formats =
        formatNames(QCoreApplication::translate("brisklet::cli::ToolText", " or ").toStdString());
    return shortUsage() + "\n" + message(explanations, {formats});
}

} // namespace brisklet::cli
