#include "Media/Asset.h"

#include "Media/FFmpeg/DemuxerPool.h"
#include "Media/FFmpeg/Inspection.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/FFmpeg/SourceInfo.h"

namespace media {

std::shared_ptr<const Asset> Asset::open(const std::filesystem::path& path, std::stop_token stop) {
    auto file = ffmpeg::SourceFile::open(path);
    auto demuxer = std::make_unique<ffmpeg::Demuxer>(file, nullptr, stop);
    auto info = std::make_unique<ffmpeg::SourceInfo>(ffmpeg::inspect(*demuxer, *file, stop));
    auto demuxers = std::make_unique<ffmpeg::DemuxerPool>(file, info->format);
    demuxers->giveBack(std::move(demuxer));
    return std::make_shared<const Asset>(std::move(file), std::move(info), std::move(demuxers));
}

Asset::Asset(std::shared_ptr<const ffmpeg::SourceFile> file,
             std::unique_ptr<ffmpeg::SourceInfo> info,
             std::unique_ptr<ffmpeg::DemuxerPool> demuxers)
    : m_file(std::move(file)), m_info(std::move(info)), m_demuxers(std::move(demuxers)) {}

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
