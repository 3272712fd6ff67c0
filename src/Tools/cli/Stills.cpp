#include "Media/Error.h"
#include "Media/ImageGenerator.h"
#include "Support/ImageConversion.h"
#include "Support/LocalizedMessage.h"
#include "Tools/cli/Commands.h"
#include "Tools/cli/Files.h"
#include "Tools/cli/ToolText.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cstdio>
#include <exception>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

namespace brisklet::cli {

namespace {

// The filmstrip of the window.
constexpr int kMaximumHeight = 120;
constexpr double kToleranceSeconds = 0.5;

media::Time timeOf(double seconds) {
    return media::Time::fromSeconds(seconds, media::kComparisonTimescale);
}

std::unique_ptr<media::ImageGenerator>
makeGenerator(const std::filesystem::path& source,
              const std::shared_ptr<const media::Asset>& asset) {
    if (asset->tracks(media::MediaType::video).empty())
        throw CommandError(
            message(ToolText::tr("“%1” contains no video track."), {shownName(source)}));
    return media::ImageGenerator::make(asset);
}

QByteArray pngOf(media::ImagePtr image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!toQImage(std::move(image)).save(&buffer, "PNG"))
        throw CommandError(message(ToolText::tr("Couldn’t write the picture as PNG.")));
    return bytes;
}

/// What the engine says of a still that it could not make; anything but its errors is passed on.
std::string reasonOf(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const media::Error& error) {
        return localizedMessage(error).toStdString();
    }
}

std::string stillName(int number) {
    std::array<char, 16> name = {};
    std::snprintf(name.data(), name.size(), "%02d.png", number);
    return name.data();
}

void createDirectory(const std::filesystem::path& directory) {
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    if (error)
        throw CommandError(message(ToolText::tr("Couldn’t make the folder “%1”: %2."),
                                   {shownName(directory), localizedReason(error).toStdString()}));
}

} // namespace

void run(const FilmstripCommand& command, const std::stop_token& stop) {
    const auto asset = openSource(command.source, stop);
    const auto generator = makeGenerator(command.source, asset);
    generator->setMaximumSize(0, kMaximumHeight);
    generator->setTolerance(timeOf(kToleranceSeconds), timeOf(kToleranceSeconds));
    createDirectory(command.directory);

    const double duration = asset->duration().seconds();
    std::vector<media::Time> requested;
    for (int i = 0; i < command.count && duration > 0; ++i)
        requested.push_back(timeOf((i + 0.5) * duration / command.count));
    QJsonArray times;
    //: A reason: it is about the video.
    std::string lastFailure = message(ToolText::tr("It has no length."));
    std::vector<media::Still> stills = generator->images(requested, {}, stop);
    for (std::size_t i = 0; i < stills.size(); ++i) {
        std::optional<media::TimedImage>& picture = stills[i].picture;
        if (!picture) {
            // As in the window, a damaged place costs only its own picture.
            lastFailure = reasonOf(stills[i].failure);
            continue;
        }
        const auto number = static_cast<int>(times.size());
        writeFile(command.directory / stillName(number), pngOf(std::move(picture->image)));
        times.append(QJsonObject{{QStringLiteral("requested"), requested[i].seconds()},
                                 {QStringLiteral("actual"), picture->time.seconds()}});
    }
    if (times.isEmpty())
        throw CommandError(message(ToolText::tr("Couldn’t make a filmstrip of “%1”: %2"),
                                   {shownName(command.source), lastFailure}));
    writeToStandardOutput(QJsonDocument(times).toJson());
}

void run(const FrameCommand& command, const std::stop_token& stop) {
    const auto asset = openSource(command.source, stop);
    const auto generator = makeGenerator(command.source, asset);
    try {
        writeFile(command.output, pngOf(generator->image(timeOf(command.seconds), stop).image));
    } catch (const media::Error& error) {
        throw CommandError(message(ToolText::tr("Couldn’t make the picture: %1"),
                                   {localizedMessage(error).toStdString()}));
    }
}

} // namespace brisklet::cli
