#include "Media/Asset.h"

#include "Media/FFmpeg/Inspection.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/FFmpeg/SourceInfo.h"

namespace media {

std::shared_ptr<const Asset> Asset::open(const std::filesystem::path& path, std::stop_token stop) {
    auto file = ffmpeg::SourceFile::open(path);
    auto info = std::make_unique<ffmpeg::SourceInfo>(ffmpeg::inspect(file, stop));
    return std::make_shared<const Asset>(std::move(file), std::move(info));
}

Asset::Asset(std::shared_ptr<const ffmpeg::SourceFile> file,
             std::unique_ptr<ffmpeg::SourceInfo> info)
    : m_file(std::move(file)), m_info(std::move(info)) {}

Asset::~Asset() = default;

const std::filesystem::path& Asset::path() const {
    return m_file->path();
}

Time Asset::duration() const {
    return m_info->duration;
}

std::vector<AssetTrack> Asset::tracks(MediaType type) const {
    std::vector<AssetTrack> result;
    for (const ffmpeg::SourceTrack& track : m_info->tracks) {
        if (track.facts.type == type)
            result.push_back(track.facts);
    }
    return result;
}

Size orientedSize(const AssetTrack& track) {
    const Rect frame{0, 0, track.naturalSize.width, track.naturalSize.height};
    return track.preferredTransform.apply(frame).size();
}

} // namespace media
