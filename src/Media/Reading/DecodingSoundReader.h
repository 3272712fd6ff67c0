#pragma once

#include "Media/Playback/SoundReader.h"
#include "Media/Reading/AudioReader.h"

#include <memory>

namespace media {
class OpenedAsset;
}

namespace media::playback {

/// The sound reader that the engine makes: decodes in this process.
class DecodingSoundReader final : public SoundReader {
public:
    /// Of the asset's first audio track that can be decoded; null if there is none.
    static std::unique_ptr<DecodingSoundReader>
    make(const std::shared_ptr<const OpenedAsset>& asset);

    /// Throws Error if the track cannot be decoded.
    DecodingSoundReader(std::shared_ptr<const OpenedAsset> asset, const AssetTrack& track);

    void seek(Time time, const std::stop_token& stop) override;
    [[nodiscard]] std::span<const float> next(const std::stop_token& stop) override;

private:
    AudioReader m_reader;
    ffmpeg::FramePtr m_block;
};

} // namespace media::playback
