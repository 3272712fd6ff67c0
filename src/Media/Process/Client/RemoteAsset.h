#pragma once

#include "Media/FFmpeg/SourceFile.h"
#include "Media/Playback/PlayableAsset.h"
#include "Media/Process/Client/HelperProcess.h"
#include "Media/Process/Client/RemoteObject.h"

#include <functional>
#include <memory>
#include <stop_token>
#include <vector>

namespace media::process {

class ForkServer;

/// An asset that a helper has opened, and decodes. The file itself is opened here. Immutable; any
/// thread.
class RemoteAsset final : public playback::PlayableAsset {
public:
    /// As Asset::open().
    static std::shared_ptr<const RemoteAsset>
    open(ForkServer& server, const std::filesystem::path& path, const std::stop_token& stop);

    /// The asset as this engine's; with null or one of another kind the program aborts.
    static std::shared_ptr<const RemoteAsset> of(const std::shared_ptr<const Asset>& asset);

    RemoteAsset(std::shared_ptr<HelperProcess> helper,
                std::shared_ptr<const ffmpeg::SourceFile> file, Time duration,
                std::vector<AssetTrack> tracks);

    [[nodiscard]] const std::filesystem::path& path() const override { return m_file->path(); }

    [[nodiscard]] Time duration() const override { return m_duration; }

    [[nodiscard]] std::vector<AssetTrack> tracks(MediaType type) const override;
    void setLossHandler(std::function<void()> handler) const override;
    [[nodiscard]] std::unique_ptr<playback::FrameSource>
    makeFrameSource(playback::FrameSource::Keep keep) const override;
    [[nodiscard]] std::unique_ptr<playback::SoundReader> makeSoundReader() const override;

    void abandon() const override { m_helper->kill(); }

    [[nodiscard]] HelperProcess& helper() const { return *m_helper; }

    [[nodiscard]] const std::shared_ptr<const ffmpeg::SourceFile>& file() const { return m_file; }

private:
    [[nodiscard]] RemoteObject::Abandon abandoning() const;

    std::shared_ptr<HelperProcess> m_helper;
    std::shared_ptr<const ffmpeg::SourceFile> m_file;
    Time m_duration;
    std::vector<AssetTrack> m_tracks;
};

} // namespace media::process
