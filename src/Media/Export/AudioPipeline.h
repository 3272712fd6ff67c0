#pragma once

#include "Media/Composition.h"
#include "Media/Export/PacketStream.h"
#include "Media/FFmpeg/Encoder.h"
#include "Media/Reading/AudioReader.h"

#include <optional>
#include <stop_token>

namespace media {

/// Takes one audio track through an export: decode → cut to the sample → encode, on one thread that
/// the owner provides.
class AudioPipeline {
public:
    /// Opens decoder and encoder. Throws Error. `stop` ends run() early, with Cancelled.
    AudioPipeline(const Composition& composition, const CompositionTrack& track,
                  const std::stop_token& stop);

    void run();

    [[nodiscard]] const AVCodecContext& encoderContext() { return m_encoder->context(); }

    [[nodiscard]] const CompositionTrack& track() const { return m_track; }

    [[nodiscard]] std::int64_t expectedPackets() const;

    /// How many packets the track has, once run() has returned.
    [[nodiscard]] std::int64_t packets() const { return m_packets; }

    [[nodiscard]] PacketStream& output() { return m_output; }

private:
    void open(const Composition& composition);
    void take(ffmpeg::FramePtr block);
    void encode(ffmpeg::FramePtr block);
    void encodeSilence();
    void drainEncoder();

    CompositionTrack m_track;
    std::stop_token m_stop;
    std::optional<AudioReader> m_reader;
    std::optional<ffmpeg::Encoder> m_encoder;
    PacketStream m_output;
    /// The length of the range in samples, and how many of them have been read and encoded.
    std::int64_t m_wantedSamples = 0;
    std::int64_t m_encodedSamples = 0;
    std::int64_t m_packets = 0;
    /// Samples that do not fill a frame of the encoder yet.
    ffmpeg::FramePtr m_partial;
};

} // namespace media
