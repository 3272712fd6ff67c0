#include "Media/Asset.h"

#include "Media/FFmpeg/DemuxerPool.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/FFmpeg/SourceInfo.h"

namespace media {

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

} // namespace media
