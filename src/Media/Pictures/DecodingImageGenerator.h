#pragma once

#include "Media/ImageGenerator.h"
#include "Media/Pictures/PictureRenderer.h"
#include "Media/Reading/VideoReader.h"

#include <memory>
#include <optional>

namespace media {

/// The image generator that the engine makes: decodes with a reader of its own, which stays where
/// the last still was found, and renders what comes out.
class DecodingImageGenerator final : public ImageGenerator {
public:
    /// Throws Error if the asset has no video track.
    explicit DecodingImageGenerator(std::shared_ptr<const Asset> asset);

    void setMaximumSize(int width, int height) override;
    void setTolerance(Time before, Time after) override;
    [[nodiscard]] TimedImage image(Time time, std::stop_token stop = {}) override;
    [[nodiscard]] std::vector<Still> images(const std::vector<Time>& times,
                                            const std::function<void()>& onStill,
                                            std::stop_token stop = {}) override;

private:
    VideoReader& readerFor(VideoReader::Detail detail);
    [[nodiscard]] int generatorsFor(std::size_t count) const;
    /// One with the same settings, whose decoder has that many threads.
    [[nodiscard]] std::unique_ptr<DecodingImageGenerator> another(int threads) const;

    std::shared_ptr<const Asset> m_asset;
    AssetTrack m_track;
    PictureRenderer m_renderer;
    std::optional<VideoReader> m_reader;
    /// Of the decoder; 0 for its own choice.
    int m_threads = 0;
    VideoReader::Detail m_readerDetail = VideoReader::Detail::full;
    int m_maximumWidth = 0;
    int m_maximumHeight = 0;
    Time m_before{0, kComparisonTimescale};
    Time m_after{0, kComparisonTimescale};
};

} // namespace media
