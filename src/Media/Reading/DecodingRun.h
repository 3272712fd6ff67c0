#pragma once

#include "Media/FFmpeg/Decoder.h"
#include "Media/FFmpeg/PresentationTimes.h"
#include "Media/Reading/PacketFeed.h"
#include "Media/Reading/SkipPolicy.h"
#include "Media/Reading/VideoReader.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <stop_token>

namespace media {

/// The frames of one track that come out of the decoder from where the demuxer was moved to, in
/// presentation order, some of them ahead. Use from one thread.
///
///     awaitingKeyFrame ─▶ fresh ─▶ running ─▶ draining ─▶ drained
///                           └▶ alone ─▲
class DecodingRun final {
public:
    /// `info`, `track` and `demuxer` outlive it. Throws Error if no decoder can be opened.
    DecodingRun(const ffmpeg::SourceInfo& info, const ffmpeg::SourceTrack& track,
                ffmpeg::Demuxer& demuxer, const VideoReader::Options& options);

    /// The demuxer has moved to a place that the container takes for a random-access point.
    void restartAfterSeek();
    /// The demuxer has been opened anew.
    void restartAtBeginning();

    /// Decodes until `count` frames are ahead or the track has ended, or until it is certain that
    /// the next one begins after `until`. Throws Error; Cancelled.
    void fill(std::size_t count, const std::stop_token& stop, Ticks until = Ticks::forever());

    [[nodiscard]] std::deque<DecodedFrame>& frames() { return m_frames; }

    [[nodiscard]] const std::deque<DecodedFrame>& frames() const { return m_frames; }

    /// No frame comes behind those that are ahead.
    [[nodiscard]] bool isDrained() const { return m_state == State::drained; }

    /// Where the next frame begins, as far as it is known already.
    [[nodiscard]] std::optional<Ticks> nextTicks() const;

    [[nodiscard]] const PacketFeed& feed() const { return m_feed; }

    [[nodiscard]] SkipPolicy& skipPolicy() { return m_skipPolicy; }

    [[nodiscard]] const SkipPolicy& skipPolicy() const { return m_skipPolicy; }

private:
    enum class State {
        /// At a place that need not be a random-access point.
        awaitingKeyFrame,
        /// The decoder was given nothing yet.
        fresh,
        running,
        /// The decoder was given one packet only, and told to give out its picture.
        alone,
        /// The decoder was given the last packet, and told to give out its pictures.
        draining,
        drained,
    };

    void openDecoder();
    void restart(State state);
    void feedDecoder(const std::stop_token& stop);
    void drain(State state);
    void endDraining();

    [[nodiscard]] bool isDraining() const {
        return m_state == State::alone || m_state == State::draining;
    }

    void send(const AVPacket& packet);
    void enqueue(ffmpeg::FramePtr frame);

    const ffmpeg::SourceTrack& m_track;
    VideoReader::Options m_options;
    PacketFeed m_feed;
    SkipPolicy m_skipPolicy;
    ffmpeg::PresentationTimes m_times;
    std::optional<ffmpeg::Decoder> m_decoder;
    State m_state = State::fresh;
    /// While `alone`: when that picture is on show.
    TickRange m_alone;
    std::deque<DecodedFrame> m_frames;
};

} // namespace media
