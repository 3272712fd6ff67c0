#include "Media/Process/Server/AssetService.h"

#include "Media/FFmpeg/SourceFile.h"
#include "Media/Process/Wire/MediaMessages.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace media::process {

void AssetService::perform(std::int32_t /*operation*/, MessageReader& arguments,
                           MessageWriter& answer, const Report& /*report*/,
                           const std::stop_token& stop) {
    Descriptor file = arguments.getDescriptor();
    auto source = ffmpeg::SourceFile::adopt(std::move(file), arguments.getText());
    auto asset = OpenedAsset::open(std::move(source), stop);
    put(answer, asset->duration());
    std::vector<AssetTrack> tracks = asset->tracks(MediaType::video);
    for (AssetTrack& track : asset->tracks(MediaType::audio))
        tracks.push_back(std::move(track));
    answer.put(static_cast<std::uint32_t>(tracks.size()));
    for (const AssetTrack& track : tracks)
        put(answer, track);
    *m_asset.lock() = std::move(asset);
}

} // namespace media::process
