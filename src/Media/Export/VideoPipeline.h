#pragma once

#include "Media/Export/PacketStream.h"
#include "Media/Export/PicturePath.h"
#include "Media/Export/TransformStage.h"
#include "Media/ExportSession.h"

#include <map>
#include <memory>
#include <optional>
#include <stop_token>

namespace media {

/// The niceness of the threads that feed a video encoder or work beside it, relative to the
/// encoder's own; see standBack(). Measured: 4 gains less, 19 gains no more, and at 7 they still
/// get their share of a busy machine.
constexpr int kFeederNiceness = 7;

/// Takes the video track through an export: decode → transform → encode. The owner runs each stage
/// on a thread of its own, and that of the transform on several; a stage returns when its work is
/// done and throws what went wrong.
class VideoPipeline {
public:
    /// Opens decoder and encoder. Throws Error. `stop` ends the stages early, with Cancelled.
    VideoPipeline(const Composition& composition,
                  const std::optional<VideoComposition>& videoComposition,
                  const EncoderSettings& settings, const std::stop_token& stop);

    void decodeStage();

    /// To be run on transformThreads() threads at the same time; one would do.
    void transformStage() { m_transform.run(); }

    void encodeStage();

    [[nodiscard]] int transformThreads() const { return m_path.usefulMakers(); }

    [[nodiscard]] const AVCodecContext& encoderContext() { return m_path.encoder().context(); }

    [[nodiscard]] std::int64_t expectedPackets() const { return m_schedule->expectedFrames(); }

    /// How many pictures the file is to have, once decodeStage() has returned.
    [[nodiscard]] std::int64_t scheduledFrames() const { return m_scheduledFrames; }

    [[nodiscard]] PacketStream& output() { return m_output; }

private:
    /// True once, for the first picture of the tail: the one that becomes the last key frame.
    bool beginsTail(const ScheduledFrame& frame);
    void drainEncoder();
    void pushLast();

    std::stop_token m_stop;
    PicturePath m_path;
    std::unique_ptr<FrameSchedule> m_schedule;

    /// Decode thread.
    std::int64_t m_scheduledFrames = 0;
    BoundedQueue<ScheduledFrame> m_decoded;
    BoundedQueue<ScheduledFrame> m_transformed;
    TransformStage m_transform;
    PacketStream m_output;
    /// Encode thread: how long each picture inside the encoder is shown, by its pts.
    std::map<std::int64_t, std::int64_t> m_durations;
    std::int64_t m_latestPts = 0;
    /// Encode thread: the latest packet, held back until it is known whether it is the last; the
    /// first packet's dts; and the latest end of any picture so far. In the encoder's time base.
    ffmpeg::PacketPtr m_held;
    /// Not above 0.
    std::int64_t m_firstDts = 0;
    std::int64_t m_end = 0;
    /// Encode thread: the pts from which the last key frame is due; empty once it is requested.
    std::optional<std::int64_t> m_tailStart;
};

} // namespace media
