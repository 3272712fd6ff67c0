#pragma once

#include "Media/Playback/PlayableAsset.h"
#include "Media/Threading/Guarded.h"

#include <memory>

namespace media {

struct DecodedFrame;

namespace ffmpeg {
struct SourceInfo;
class DemuxerPool;
class SourceFile;
} // namespace ffmpeg

/// The asset that the engine makes: the open file, what was found out about it, and the demuxers
/// that its readers borrow. Immutable, but for the pool, which guards itself, and the first frame;
/// any thread.
class OpenedAsset final : public playback::PlayableAsset,
                          public std::enable_shared_from_this<OpenedAsset> {
public:
    /// As Asset::open().
    static std::shared_ptr<const OpenedAsset> open(const std::filesystem::path& path,
                                                   const std::stop_token& stop = {});

    /// The same with a file that is open already.
    static std::shared_ptr<const OpenedAsset> open(std::shared_ptr<const ffmpeg::SourceFile> file,
                                                   const std::stop_token& stop = {});

    /// The engine's side of an asset, for its readers and exports: the only way to it. There are
    /// no other assets than the engine's; with null or one of another kind the program aborts.
    static std::shared_ptr<const OpenedAsset> of(const std::shared_ptr<const Asset>& asset);

    OpenedAsset(std::shared_ptr<const ffmpeg::SourceFile> file,
                std::unique_ptr<const ffmpeg::SourceInfo> info,
                std::unique_ptr<ffmpeg::DemuxerPool> demuxers,
                std::shared_ptr<const DecodedFrame> firstFrame);
    ~OpenedAsset() override;

    [[nodiscard]] const std::filesystem::path& path() const override;
    [[nodiscard]] Time duration() const override;
    [[nodiscard]] std::vector<AssetTrack> tracks(MediaType type) const override;
    void setLossHandler(std::function<void()> handler) const override;
    [[nodiscard]] std::unique_ptr<playback::FrameSource>
    makeFrameSource(playback::FrameSource::Keep keep) const override;
    [[nodiscard]] std::unique_ptr<playback::SoundReader> makeSoundReader() const override;
    void abandon() const override;

    [[nodiscard]] const ffmpeg::SourceInfo& info() const { return *m_info; }

    [[nodiscard]] const std::shared_ptr<const ffmpeg::SourceFile>& file() const { return m_file; }

    [[nodiscard]] ffmpeg::DemuxerPool& demuxers() const { return *m_demuxers; }

    /// The first frame of the first video track, decoded when the file was opened, with its known
    /// end; for whoever asks first, null afterwards and where it is not certain.
    [[nodiscard]] std::shared_ptr<const DecodedFrame> takeFirstFrame() const;

private:
    std::shared_ptr<const ffmpeg::SourceFile> m_file;
    std::unique_ptr<const ffmpeg::SourceInfo> m_info;
    std::unique_ptr<ffmpeg::DemuxerPool> m_demuxers;
    mutable Guarded<std::shared_ptr<const DecodedFrame>> m_firstFrame;
};

} // namespace media
