#pragma once

#include "Media/PictureRenderer.h"
#include "Media/Playback/Transport.h"
#include "Media/VideoReader.h"

#include <memory>
#include <optional>
#include <stop_token>

namespace media::playback {

/// Decodes and renders what a player shows: the frame of the newest seek or step at once, the
/// frames after it ahead of the clock while playing. Lives on one thread of its own, which owns
/// the reader and the renderer.
class VideoPlayback {
public:
    explicit VideoPlayback(Playback& playback) : m_playback(playback) {}

    void work(const std::stop_token& stop);

private:
    using FramePtr = std::shared_ptr<const DecodedFrame>;

    /// One piece of work, with what it needs of the transport.
    struct Job {
        enum class Kind { seek, step, redraw, ahead };
        Kind kind = Kind::ahead;
        std::uint64_t generation = 0;
        std::shared_ptr<const PlayerItem> item;
        SeekRequest seek;
        int stepCount = 0;
        PreviewSize previewSize;
        ReadyFrame shown;
        std::stop_token stop;
    };

    std::optional<Job> takeJob(Transport& transport);
    [[nodiscard]] bool isRedrawWanted(const Transport& transport) const;
    [[nodiscard]] bool isAheadWanted(const Transport& transport) const;
    void perform(const Job& job);

    void open(const Job& job);
    void seek(const Job& job);
    FramePtr frameSought(const Job& job);
    void step(const Job& job);
    FramePtr stepForward(const Job& job);
    FramePtr stepBackward(const Job& job);
    std::optional<ReadyFrame> takeUpcoming(const Job& job);
    void redraw(const Job& job);
    void decodeAhead(const Job& job);
    [[nodiscard]] bool isTooLate(const DecodedFrame& frame, nanoseconds time, const Job& job);
    void skipTo(nanoseconds time, const Job& job);

    FramePtr nextFrame(const std::stop_token& stop);
    ReadyFrame render(FramePtr frame, PreviewSize size);
    void show(const Job& job, ReadyFrame frame, std::optional<Time> newTime);

    Playback& m_playback;

    std::shared_ptr<const PlayerItem> m_item;
    std::unique_ptr<VideoReader> m_reader;
    std::unique_ptr<PictureRenderer> m_renderer;
    /// There is nothing to decode after the frames that were handed on, or it cannot be decoded.
    bool m_isAtEnd = false;
    /// Frames are being decoded in a row, for playing.
    bool m_isRolling = false;
    /// Frames between the one on show and the next were left out.
    bool m_hasGap = false;
    /// When the last frame was decoded ahead and kept.
    SteadyTime m_lastKept;
};

} // namespace media::playback
