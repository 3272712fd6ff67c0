#pragma once

#include "Media/FFmpeg/EncoderTables.h"
#include "Media/FFmpeg/Handles.h"

#include <memory>
#include <optional>

namespace media {
struct EncoderSettings;
}

namespace media::ffmpeg {

struct SourceTrack;

/// What a video encoder has to produce.
struct VideoEncoding {
    int width = 2;
    int height = 2;
    AVRational timeBase{1, 600};
    /// The average, for the encoder's rate control and level; frames may come at any time.
    AVRational frameRate{30, 1};
    AVRational sampleAspectRatio{1, 1};
    AVFieldOrder fieldOrder = AV_FIELD_PROGRESSIVE;
    /// Whether the pictures are scaled down, which asks for a lower rate factor.
    bool isReduced = false;
    /// Of the encoder; 0 for as many as it finds useful.
    int threads = 0;
};

/// Whether a track's pictures need more than 8 bits or HDR signalling, that is HEVC Main 10.
bool needsDeepColor(const SourceTrack& track);

/// A libav encoder. Use from one thread at a time.
class Encoder {
public:
    /// H.264 High 8-bit, or HEVC Main 10 where needsDeepColor(), with the track's colour tags.
    /// Throws Error.
    static Encoder forVideo(const SourceTrack& track, const VideoEncoding& encoding,
                            const EncoderSettings& settings);
    /// AAC-LC at a transparent rate. None if the encoder does not know the channel layout.
    static std::optional<Encoder> forAudio(int sampleRate, const AVChannelLayout& layout);

    Encoder(Encoder&&) = default;

    /// Exchanges the two, so that the tables outlive the encoder that is replaced.
    Encoder& operator=(Encoder&& other) noexcept {
        m_context.swap(other.m_context);
        m_tables.swap(other.m_tables);
        return *this;
    }

    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;
    ~Encoder() = default;

    [[nodiscard]] AVCodecContext& context() { return *m_context; }

    /// Sends one frame; null starts draining. Throws Error.
    void send(const AVFrame* frame);
    /// The next packet; false if the encoder needs more input or is drained. Throws Error.
    bool receive(AVPacket& packet);

private:
    explicit Encoder(CodecContextPtr context, std::unique_ptr<EncoderTables> tables = nullptr)
        : m_tables(std::move(tables)), m_context(std::move(context)) {}

    /// Of libx265 only; they outlive the encoder.
    std::unique_ptr<EncoderTables> m_tables;
    CodecContextPtr m_context;
};

/// The sample rate of AAC for sound of `sampleRate` Hz: the same if AAC supports it, else the next
/// higher one, 48 kHz above 96 kHz.
int aacSampleRate(int sampleRate);

} // namespace media::ffmpeg
