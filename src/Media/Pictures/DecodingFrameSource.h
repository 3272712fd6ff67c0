#pragma once

#include "Media/Pictures/PictureRenderer.h"
#include "Media/Playback/FrameSource.h"
#include "Media/Reading/VideoReader.h"

#include <deque>
#include <memory>
#include <optional>
#include <stop_token>
#include <utility>

namespace media {
class OpenedAsset;
}

namespace media::playback {

/// The frame source that the engine makes: reads, decodes and renders in this process.
class DecodingFrameSource final : public FrameSource {
public:
    /// Of the asset's first video track. Throws Error if that cannot be decoded.
    DecodingFrameSource(std::shared_ptr<const OpenedAsset> asset, Keep keep);

    [[nodiscard]] DecodingPace::Way wayTo(Ticks ticks) override;
    [[nodiscard]] Goal goalNearEnd(TickRange range) override;
    Outcome advance(const Goal& goal, PreviewSize size, const std::stop_token& stop) override;
    std::optional<Ticks> advanceNear(Ticks earliest, Ticks latest, PreviewSize size,
                                     const std::stop_token& stop) override;

    [[nodiscard]] Ticks arrivedEnd() const override { return m_arrivedEnd; }

    [[nodiscard]] Ticks position() const override { return m_position; }

    [[nodiscard]] Ticks passingTicks() const override { return m_passing->frame->ticks; }

    [[nodiscard]] std::shared_ptr<const CachedFrame> passing(PreviewSize size) override;
    void keepOnePassed(PreviewSize size) override;

    [[nodiscard]] bool hasPassed() const override { return !m_passed.empty(); }

    void releaseDecoder() override;

    [[nodiscard]] std::uint64_t takeDecodedCount() override {
        return std::exchange(m_decodedCount, 0);
    }

    [[nodiscard]] std::size_t decoderBytes() const override { return m_decoderBytes; }

private:
    /// A decoded frame with its place.
    struct Decoded {
        std::shared_ptr<const DecodedFrame> frame;
        TickRange range;
        bool isComplete = false;
    };

    VideoReader& reader();
    bool arriveAtKept(Ticks ticks, PreviewSize size);
    bool readOn(const std::stop_token& stop);
    std::optional<Decoded> decode(const Goal& goal, const std::stop_token& stop);
    Ticks endOf(const DecodedFrame& frame, Ticks goal, const std::stop_token& stop);
    void pass(Decoded decoded, const Goal& goal, PreviewSize size);
    void keep(const Decoded& decoded, PreviewSize size);
    [[nodiscard]] CachedFrame rendered(const Decoded& decoded, PreviewSize size);

    std::shared_ptr<const OpenedAsset> m_asset;
    AssetTrack m_track;
    Keep m_keep;
    /// null after releaseDecoder(), and until more is wanted than the asset's first frame.
    std::unique_ptr<VideoReader> m_reader;
    PictureRenderer m_renderer;

    /// What the reader is on its way to.
    std::optional<Ticks> m_goal;
    /// The next frame decoded is the first since the reader moved.
    bool m_hasMoved = false;
    /// Decoded, but its end was not found out yet.
    std::shared_ptr<const DecodedFrame> m_unfinished;
    Ticks m_position = Ticks::beginning();
    Ticks m_arrivedEnd;

    /// The frame that was arrived at last, in case that it is wanted in another size.
    std::optional<Decoded> m_arrived;
    std::optional<Decoded> m_passing;
    /// Not rendered yet, in order.
    std::deque<Decoded> m_passed;
    std::size_t m_passedBytes = 0;
    std::uint64_t m_decodedCount = 0;
    std::size_t m_decoderBytes = 0;
};

} // namespace media::playback
