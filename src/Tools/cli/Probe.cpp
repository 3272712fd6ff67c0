#include "Media/Asset.h"
#include "Tools/cli/Commands.h"
#include "Tools/cli/Files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace brisklet::cli {

namespace {

/// Null if the file does not state it.
QJsonValue textOrNull(const std::string& text) {
    return text.empty() ? QJsonValue() : QJsonValue(QString::fromStdString(text));
}

QJsonObject describe(media::Size size) {
    return {{QStringLiteral("width"), size.width}, {QStringLiteral("height"), size.height}};
}

QJsonArray describe(const media::AffineTransform& transform) {
    return {transform.a, transform.b, transform.c, transform.d, transform.tx, transform.ty};
}

QJsonObject describe(const media::ColorDescription& color) {
    return {{QStringLiteral("primaries"), textOrNull(color.primaries)},
            {QStringLiteral("transfer"), textOrNull(color.transfer)},
            {QStringLiteral("matrix"), textOrNull(color.matrix)},
            {QStringLiteral("range"), textOrNull(color.range)},
            {QStringLiteral("chromaLocation"), textOrNull(color.chromaLocation)}};
}

QJsonObject describeVideo(const media::AssetTrack& track) {
    return {{QStringLiteral("codec"), textOrNull(track.codec)},
            {QStringLiteral("naturalSize"), describe(track.naturalSize)},
            {QStringLiteral("preferredTransform"), describe(track.preferredTransform)},
            {QStringLiteral("nominalFrameRate"), static_cast<double>(track.nominalFrameRate)},
            {QStringLiteral("pixelFormat"), textOrNull(track.pixelFormat)},
            {QStringLiteral("colour"), describe(track.color)}};
}

QJsonObject describeAudio(const media::AssetTrack& track) {
    return {{QStringLiteral("codec"), textOrNull(track.codec)},
            {QStringLiteral("channels"), track.channels},
            {QStringLiteral("sampleRate"), track.sampleRate},
            {QStringLiteral("language"), textOrNull(track.language)}};
}

} // namespace

void run(const ProbeCommand& command, const std::stop_token& stop) {
    const auto asset = openSource(command.source, stop);
    const auto videoTracks = asset->tracks(media::MediaType::video);
    QJsonArray audioTracks;
    for (const media::AssetTrack& track : asset->tracks(media::MediaType::audio))
        audioTracks.append(describeAudio(track));

    QJsonObject facts{{QStringLiteral("duration"), asset->duration().seconds()},
                      {QStringLiteral("displaySize"), QJsonValue()},
                      {QStringLiteral("videoTrack"), QJsonValue()},
                      {QStringLiteral("audioTracks"), audioTracks}};
    if (!videoTracks.empty()) {
        facts[QStringLiteral("displaySize")] = describe(media::orientedSize(videoTracks.front()));
        facts[QStringLiteral("videoTrack")] = describeVideo(videoTracks.front());
    }
    writeToStandardOutput(QJsonDocument(facts).toJson());
}

} // namespace brisklet::cli
