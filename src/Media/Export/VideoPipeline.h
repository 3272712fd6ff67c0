#pragma once

#include "Media/Export/FrameSchedule.h"
#include "Media/Export/PacketStream.h"
#include "Media/ExportSession.h"
#include "Media/FFmpeg/Encoder.h"
#include "Media/PictureTransform.h"

#include <map>
#include <memory>
#include <optional>
#include <stop_token>

namespace media {

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

    [[nodiscard]] PacketStream& output() { return m_output; }

private:
    void openEncoder(const ffmpeg::SourceTrack& track, const EncoderSettings& settings,
                     const std::optional<VideoComposition>& videoComposition);
    void drainEncoder();

    std::stop_token m_stop;
    VideoReader m_reader;
    std::unique_ptr<FrameSchedule> m_schedule;
    std::optional<PictureTransform> m_transform;
    std::optional<ffmpeg::Encoder> m_encoder;

    BoundedQueue<ScheduledFrame> m_decoded;
    BoundedQueue<ScheduledFrame> m_transformed;
    PacketStream m_output;
    /// Encode thread: how long each picture inside the encoder is shown, by its pts.
    std::map<std::int64_t, std::int64_t> m_durations;
    std::int64_t m_latestPts = 0;
};

} // namespace media
