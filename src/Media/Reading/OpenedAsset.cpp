#include "Media/Reading/OpenedAsset.h"

#include "Media/Error.h"
#include "Media/FFmpeg/DemuxerPool.h"
#include "Media/FFmpeg/Encryption.h"
#include "Media/FFmpeg/Inspection.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/FFmpeg/SourceInfo.h"
#include "Media/Pictures/DecodingFrameSource.h"
#include "Media/Reading/DecodingSoundReader.h"
#include "Media/Reading/TrackClock.h"
#include "Media/Reading/VideoReader.h"
#include "Media/Threading/Verify.h"

#include <algorithm>
#include <utility>

namespace media {

namespace {

std::unique_ptr<ffmpeg::Demuxer> openDemuxer(const std::shared_ptr<const ffmpeg::SourceFile>& file,
                                             const std::stop_token& stop) {
    try {
        return std::make_unique<ffmpeg::Demuxer>(file, nullptr, stop);
    } catch (const Error&) {
        // libav gives up on some encrypted files as if they were damaged.
        ffmpeg::expectNoEncryption(*file);
        throw;
    }
}

/// Null where the frame after it begins at the same tick: it is the frame at no tick then.
std::shared_ptr<const DecodedFrame> placed(std::optional<ffmpeg::FirstFrame> first,
                                           const ffmpeg::SourceInfo& info) {
    if (!first)
        return nullptr;
    const auto track = std::ranges::find(info.tracks, MediaType::video,
                                         [](const auto& each) { return each.facts.type; });
    const Time time = ffmpeg::assetTime(info, *track, first->timestamp);
    const Ticks end = TrackClock(info, *track).ticksAt(first->next);
    if (end <= time.ticks())
        return nullptr;
    return std::make_shared<const DecodedFrame>(
        DecodedFrame{std::move(first->frame), time, time.ticks(), end});
}

} // namespace

std::shared_ptr<const OpenedAsset> OpenedAsset::open(const std::filesystem::path& path,
                                                     const std::stop_token& stop) {
    return open(ffmpeg::SourceFile::open(path), stop);
}

std::shared_ptr<const OpenedAsset> OpenedAsset::open(std::shared_ptr<const ffmpeg::SourceFile> file,
                                                     const std::stop_token& stop) {
    auto demuxer = openDemuxer(file, stop);
    ffmpeg::Inspected inspected = ffmpeg::inspect(*demuxer, *file, stop);
    auto info = std::make_unique<const ffmpeg::SourceInfo>(std::move(inspected.info));
    auto firstFrame = placed(std::move(inspected.firstFrame), *info);
    auto demuxers = std::make_unique<ffmpeg::DemuxerPool>(file, info->format, info->pictures);
    demuxers->giveBack(std::move(demuxer));
    return std::make_shared<const OpenedAsset>(std::move(file), std::move(info),
                                               std::move(demuxers), std::move(firstFrame));
}

std::shared_ptr<const OpenedAsset> OpenedAsset::of(const std::shared_ptr<const Asset>& asset) {
    auto opened = std::dynamic_pointer_cast<const OpenedAsset>(asset);
    verify(opened != nullptr, "the asset is one of this engine’s");
    return opened;
}

OpenedAsset::OpenedAsset(std::shared_ptr<const ffmpeg::SourceFile> file,
                         std::unique_ptr<const ffmpeg::SourceInfo> info,
                         std::unique_ptr<ffmpeg::DemuxerPool> demuxers,
                         std::shared_ptr<const DecodedFrame> firstFrame)
    : m_file(std::move(file)),
      m_info(std::move(info)),
      m_demuxers(std::move(demuxers)),
      m_firstFrame(std::move(firstFrame)) {}

OpenedAsset::~OpenedAsset() = default;

const std::filesystem::path& OpenedAsset::path() const {
    return m_file->path();
}

std::shared_ptr<const DecodedFrame> OpenedAsset::takeFirstFrame() const {
    return std::exchange(*m_firstFrame.lock(), nullptr);
}

Time OpenedAsset::duration() const {
    return m_info->duration;
}

std::vector<AssetTrack> OpenedAsset::tracks(MediaType type) const {
    std::vector<AssetTrack> result;
    for (const ffmpeg::SourceTrack& track : m_info->tracks) {
        if (track.facts.type == type)
            result.push_back(track.facts);
    }
    return result;
}

/// This process decodes it.
void OpenedAsset::setLossHandler(std::function<void()> /*handler*/) const {}

std::unique_ptr<playback::FrameSource>
OpenedAsset::makeFrameSource(playback::FrameSource::Keep keep) const {
    if (tracks(MediaType::video).empty())
        return nullptr;
    return std::make_unique<playback::DecodingFrameSource>(shared_from_this(), std::move(keep));
}

/// A thread that a disk keeps waiting cannot be ended.
void OpenedAsset::abandon() const {}

std::unique_ptr<playback::SoundReader> OpenedAsset::makeSoundReader() const {
    return playback::DecodingSoundReader::make(shared_from_this());
}

} // namespace media
