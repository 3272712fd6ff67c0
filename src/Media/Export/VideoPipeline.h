#pragma once

#include "Media/Export/FieldTransform.h"
#include "Media/Export/FrameSchedule.h"
#include "Media/Export/PacketStream.h"
#include "Media/ExportSession.h"
#include "Media/FFmpeg/Encoder.h"
#include "Media/Pictures/PictureTransform.h"

#include <map>
#include <memory>
#include <optional>
#include <stop_token>

namespace media {

/// How far the threads that feed a video encoder, and those that work beside it, stand back behind
/// its own; see standBack(). Measured: 4 gains less, 19 no more, and a busy machine still gives
/// them their share.
constexpr int kFeederNiceness = 7;

/// The picture's road through an export: decode → transform → encode. The three stages are run
/// by three threads that the owner provides; each returns when its work is done and throws what
/// went wrong.
class VideoPipeline {
public:
    /// Opens decoder and encoder. Throws Error. `stop` ends the stages early, with Cancelled.
    VideoPipeline(const Composition& composition,
                  const std::optional<VideoComposition>& videoComposition,
                  const EncoderSettings& settings, const std::stop_token& stop);

    void decodeStage();
    void transformStage();
    void encodeStage();

    [[nodiscard]] const AVCodecContext& encoderContext() { return m_encoder->context(); }

    [[nodiscard]] std::int64_t expectedPackets() const { return m_schedule->expectedFrames(); }

    /// How many pictures the file is to have, once decodeStage() has returned.
    [[nodiscard]] std::int64_t scheduledFrames() const { return m_scheduledFrames; }

    [[nodiscard]] PacketStream& output() { return m_output; }

private:
    void openEncoder(const ffmpeg::SourceTrack& track, const EncoderSettings& settings,
                     const std::optional<VideoComposition>& videoComposition, Time duration);
    /// What the encoder gets of a source picture.
    ffmpeg::FramePtr transformed(const ScheduledFrame& scheduled);
    /// Once: for the first picture of the tail.
    bool beginsTail(const ScheduledFrame& frame);
    void drainEncoder();
    void pushLast();

    std::stop_token m_stop;
    VideoReader m_reader;
    std::unique_ptr<FrameSchedule> m_schedule;
    std::optional<PictureTransform> m_transform;
    /// Where interlaced pictures stay so.
    std::optional<FieldTransform> m_fieldTransform;
    bool m_deinterlaces = false;
    std::optional<ffmpeg::Encoder> m_encoder;

    /// Decode thread.
    std::int64_t m_scheduledFrames = 0;
    BoundedQueue<ScheduledFrame> m_decoded;
    BoundedQueue<ScheduledFrame> m_transformed;
    PacketStream m_output;
    /// Encode thread: how long each picture inside the encoder is shown, by its pts.
    std::map<std::int64_t, std::int64_t> m_durations;
    std::int64_t m_latestPts = 0;
    /// Encode thread: the latest packet, kept until it is known not to be the last, and when the
    /// last picture's turn is over.
    ffmpeg::PacketPtr m_held;
    /// Not above 0.
    std::int64_t m_firstDts = 0;
    std::int64_t m_end = 0;
    /// Encode thread: from when on the last key frame is due, until it has been asked for.
    std::optional<std::int64_t> m_tailStart;
};

} // namespace media
